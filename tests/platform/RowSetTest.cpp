#include "platform/data/RowSet.h"
#include "../support/FailureNumber.h"

#include <gtest/gtest.h>

namespace quillmere::data {
namespace {

RowSet people() {
    RowSet rows({"A00", "A0101", "姓名", "a0101"});
    rows.addRow({"p1", "Li", "李", 1});
    rows.addRow({"p2", Null{}, "王", 2});
    return rows;
}

TEST(RowSet, WithoutColumnsOrRowsItIsEmpty) {
    const RowSet rows;
    EXPECT_TRUE(rows.empty());
    EXPECT_EQ(rows.rowCount(), 0U);
    EXPECT_FALSE(rows.findColumn("A00"));
}

TEST(RowSet, KeepsTheSpellingOfColumnNames) {
    EXPECT_EQ(people().columns(), (std::vector<std::string>{"A00", "A0101", "姓名", "a0101"}));
}

TEST(RowSet, FindsAColumnWithoutRegardToCase) {
    EXPECT_EQ(people().findColumn("a00"), 0U);
    EXPECT_EQ(people().findColumn("A00"), 0U);
}

TEST(RowSet, TheFirstOfSeveralColumnsOfOneNameIsFound) { EXPECT_EQ(people().findColumn("a0101"), 1U); }

TEST(RowSet, FindsAChineseColumnName) { EXPECT_EQ(people().findColumn("姓名"), 2U); }

TEST(RowSet, APartOfANameFindsNothing) {
    EXPECT_FALSE(people().findColumn("A0"));
    EXPECT_FALSE(people().findColumn("A0101x"));
    EXPECT_FALSE(people().findColumn(""));
}

TEST(RowSet, OnlyLettersHaveACase) {
    // '[' and '{', '@' and '`' are as far apart as a letter's two forms.
    const RowSet rows({"a[", "b@"});
    EXPECT_FALSE(rows.findColumn("a{"));
    EXPECT_FALSE(rows.findColumn("b`"));
}

TEST(RowSet, CellsAreReadByNameAndByPosition) {
    const auto rows = people();
    EXPECT_EQ(rows.at(0, "a0101"), Value("Li"));
    EXPECT_EQ(rows.at(1, 2), Value("王"));
    EXPECT_TRUE(rows.at(1, "A0101").isNull());
}

TEST(RowSet, AnUnknownColumnRaisesItemNotFound) {
    const auto rows = people();
    EXPECT_EQ(failureOf([&] { (void)rows.at(0, "A0199"); }), number(Failure::ItemNotFound));
    EXPECT_EQ(failureOf([&] { (void)rows.at(0, 4); }), number(Failure::ItemNotFound));
}

TEST(RowSet, ARowThatIsNotThereRaisesNoCurrentRecord) {
    const auto rows = people();
    EXPECT_EQ(failureOf([&] { (void)rows.at(2, "A00"); }), number(Failure::NoCurrentRecord));
    EXPECT_EQ(failureOf([&] { (void)rows.at(2, 0); }), number(Failure::NoCurrentRecord));
}

TEST(RowSet, ARowShorterThanTheColumnsRaisesItemNotFound) {
    RowSet rows({"a", "b"});
    rows.addRow({1});
    EXPECT_EQ(failureOf([&] { (void)rows.at(0, "b"); }), number(Failure::ItemNotFound));
}

} // namespace
} // namespace quillmere::data
