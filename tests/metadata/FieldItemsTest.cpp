#include "metadata/cFieldItems.h"

#include "support/FailureNumber.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillmere {
namespace {

std::shared_ptr<cFieldItem> named(const char* name) {
    auto item = std::make_shared<cFieldItem>();
    item->ItemName = name;
    return item;
}

std::vector<std::string> namesOf(const cFieldItems& items) {
    std::vector<std::string> names;
    for (const auto& item : items)
        names.push_back(item->ItemName);
    return names;
}

class FieldItemsTest : public testing::Test {
protected:
    void SetUp() override {
        items.Add(named("A0101"), "A01_A0101");
        items.Add(named("A0102"), "A01_A0102");
        items.Add(named("A0103"), "");
    }

    cFieldItems items;
};

TEST_F(FieldItemsTest, AnItemIsFoundByAKeyInOtherCase) {
    EXPECT_EQ(items.Item("a01_a0102").ItemName, "A0102");
    EXPECT_EQ(items.Item("A01_A0102").ItemName, "A0102");
}

TEST_F(FieldItemsTest, AnItemIsFoundByPositionFromOne) {
    EXPECT_EQ(items.Item(1).ItemName, "A0101");
    EXPECT_EQ(items.Item(3).ItemName, "A0103");
}

TEST_F(FieldItemsTest, APositionOutsideRaises) {
    EXPECT_EQ(failureOf([&] { (void)items.Item(0); }), number(Failure::SubscriptOutOfRange));
    EXPECT_EQ(failureOf([&] { (void)items.Item(4); }), number(Failure::SubscriptOutOfRange));
}

TEST_F(FieldItemsTest, AnUnknownKeyRaises) {
    EXPECT_EQ(failureOf([&] { (void)items.Item("A01_A0199"); }), number(Failure::InvalidCall));
    EXPECT_EQ(failureOf([&] { items.remove("A01_A0199"); }), number(Failure::InvalidCall));
    EXPECT_EQ(items.find("A01_A0199"), nullptr);
}

TEST_F(FieldItemsTest, TheEmptyKeyIsNoKey) {
    items.Add(named("A0104"), "");
    EXPECT_EQ(items.Count(), 4);
    EXPECT_EQ(items.find(""), nullptr);
}

TEST_F(FieldItemsTest, ARepeatedKeyRaisesAndAddsNothing) {
    EXPECT_EQ(failureOf([&] { items.Add(named("again"), "a01_A0101"); }), number(Failure::KeyAlreadyUsed));
    EXPECT_EQ(namesOf(items), (std::vector<std::string>{"A0101", "A0102", "A0103"}));
}

TEST_F(FieldItemsTest, AddAnswersWithTheItem) {
    EXPECT_EQ(items.Add(named("A0105"), "A01_A0105").ItemName, "A0105");
}

TEST_F(FieldItemsTest, AnItemRemovedByPositionIsGoneUnderItsKeyToo) {
    items.remove(1);
    EXPECT_EQ(namesOf(items), (std::vector<std::string>{"A0102", "A0103"}));
    EXPECT_EQ(items.find("A01_A0101"), nullptr);
}

TEST_F(FieldItemsTest, AnItemRemovedByKeyIsGoneFromTheOrderToo) {
    items.remove("a01_a0102");
    EXPECT_EQ(namesOf(items), (std::vector<std::string>{"A0101", "A0103"}));
    items.Add(named("A0102"), "A01_A0102");
    EXPECT_EQ(items.Item(3).ItemName, "A0102");
}

TEST(FieldItemTest, ANewFieldHasTheDefaultsOfTheCatalogue) {
    const cFieldItem item;
    EXPECT_EQ(item.FldWidth, 2000);
    EXPECT_TRUE(item.IsNUll);
    EXPECT_EQ(item.FieldLength, "0");
    EXPECT_TRUE(item.Dmcod.isNull());
    EXPECT_EQ(item.code(), "");
}

TEST(FieldItemTest, TheChildCollectionIsMadeEmptyAndKept) {
    cFieldItem item;
    EXPECT_EQ(item.children().Count(), 0);
    item.children().Add(named("A0101"), "A01_A0101");
    EXPECT_EQ(item.children().Count(), 1);
}

} // namespace
} // namespace quillmere
