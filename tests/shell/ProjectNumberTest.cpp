#include "shell/ProjectNumber.h"

#include "metadata/Globals.h"
#include "platform/convert/Clock.h"
#include "support/FailureNumber.h"
#include "support/TestDatabase.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>

// Project numbers, and the list of the sets that a record fills: operations that no command calls.

namespace quillmere::test {

namespace {

TEST(PadZeros, PutsZerosInFrontForSide0) { EXPECT_EQ(PadZeros("7", 0, 2), "007"); }
TEST(PadZeros, PutsZerosBehindForSide1) { EXPECT_EQ(PadZeros("7", 1, 2), "700"); }

TEST(PadZeros, IsEmptyForAnyOtherSide) {
    EXPECT_EQ(PadZeros("7", 2, 2), "");
    EXPECT_EQ(PadZeros("7", -1, 2), "");
}

TEST(PadZeros, AddsCountZerosWhateverTheLength) {
    EXPECT_EQ(PadZeros("12345", 0, 1), "012345");
    EXPECT_EQ(PadZeros("", 0, 3), "000");
    EXPECT_EQ(PadZeros("7", 0, 0), "7");
}

class ProjectNumber : public testing::Test {
protected:
    ProjectNumber() {
        clock::fix(convert::DateTime{2026, 1, 15, 23, 59, 59});
        database.createDataTable("P01", {"P0120"});
    }
    ~ProjectNumber() override { clock::fix(std::nullopt); }

    void addNumbers(int count, const std::string& date = "260115") {
        database.run("insert into P01 with recursive n(i) as (select 1 union all select i+1 from n where i<" +
                     std::to_string(count) + ") select 'id'||i, 'KVEL" + date + "001472' from n");
    }

    TestDatabase database;
};

struct SerialRow {
    int numbered;
    const char* serial;
};

class Serial : public ProjectNumber, public testing::WithParamInterface<SerialRow> {};

TEST_P(Serial, IsTheNumberOfTodaysProjectsPlusOneInThreeCharacters) {
    if (GetParam().numbered > 0) addNumbers(GetParam().numbered);
    EXPECT_EQ(NextDaySerial(), GetParam().serial);
}

INSTANTIATE_TEST_SUITE_P(ProjectNumber, Serial,
                         testing::Values(SerialRow{0, "001"}, SerialRow{1, "002"}, SerialRow{8, "009"},
                                         SerialRow{9, "010"}, SerialRow{98, "099"}, SerialRow{99, "100"},
                                         SerialRow{998, "999"}, SerialRow{999, "100"}, SerialRow{1000, "100"},
                                         SerialRow{1009, "101"}));

TEST_F(ProjectNumber, SerialAsksForTodaysDateBehindFourLetters) {
    EXPECT_EQ(NextDaySerial(), "001");
    EXPECT_EQ(database.statements(),
              std::vector<std::string>{"select * from P01 where mid(P0120,5,6)='260115'"});
}

TEST_F(ProjectNumber, SerialPassesOverOtherDaysAndEmptyNumbers) {
    addNumbers(3, "260114");
    addNumbers(2, "261501");
    database.addRow("P01", {"a", ""});
    database.addRow("P01", {"b", std::nullopt});
    database.addRow("P01", {"c", "260115001472"});
    addNumbers(1);
    EXPECT_EQ(NextDaySerial(), "002");
}

TEST_F(ProjectNumber, SerialWritesTheDateInSixDigits) {
    clock::fix(convert::DateTime{2009, 12, 3, 0, 0, 0});
    (void)NextDaySerial();
    EXPECT_EQ(database.statements().back(), "select * from P01 where mid(P0120,5,6)='091203'");
}

TEST_F(ProjectNumber, SerialLetsAFailureThrough) {
    database.failing().failAfter(1, "断线");
    EXPECT_EQ(failureOf([] { (void)NextDaySerial(); }), number(Failure::StatementFailed));
}

TEST(RandomDigits, AreThreeDigits) {
    for (int draw = 0; draw < 200; ++draw) {
        const std::string digits = RandomDigits();
        ASSERT_EQ(digits.size(), 3U);
        EXPECT_TRUE(std::ranges::all_of(digits, [](char c) { return c >= '0' && c <= '9'; })) << digits;
    }
}

TEST(RandomDigits, TakeEveryDigitInEveryPlace) {
    std::array<std::set<char>, 3> seen;
    for (int draw = 0; draw < 2000; ++draw) {
        const std::string digits = RandomDigits();
        for (std::size_t place = 0; place < seen.size(); ++place)
            seen[place].insert(digits[place]);
    }
    for (const auto& digits : seen)
        EXPECT_EQ(digits.size(), 10U);
}

TEST(RandomDigits, AskTheDatabaseNothing) {
    const TestDatabase database;
    (void)RandomDigits();
    EXPECT_TRUE(database.statements().empty());
}

TEST_F(ProjectNumber, IsFourLettersTheDateTheSerialAndThreeDigits) {
    addNumbers(2);
    const std::string made = MakeProjectNo();
    ASSERT_EQ(made.size(), 16U);
    EXPECT_EQ(made.substr(0, 13), "KVEL260115003");
    EXPECT_TRUE(std::all_of(made.begin() + 13, made.end(), [](char c) { return c >= '0' && c <= '9'; }))
        << made;
    EXPECT_EQ(database.statements().size(), 1U);
}

TEST_F(ProjectNumber, CountsInTheNextOneOnceItIsStored) {
    database.addRow("P01", {"a", MakeProjectNo()});
    EXPECT_EQ(MakeProjectNo().substr(0, 13), "KVEL260115002");
}

TEST_F(ProjectNumber, IsEmptyOnAFailure) {
    database.failing().failAfter(1, "断线");
    EXPECT_EQ(MakeProjectNo(), "");
}

TEST_F(ProjectNumber, IsEmptyWithoutAConnection) {
    publishConnection(nullptr);
    EXPECT_EQ(MakeProjectNo(), "");
}

class FilledSets : public testing::Test {
protected:
    FilledSets() {
        database.createCatalogue();
        for (const char* table : {"A01", "A02", "P01"})
            database.createDataTable(table, {});
        database.addSet({.tblName = "P01", .tblDesc = "项目", .otherProp = "30"});
        database.addSet({.tblName = "A01", .tblDesc = "人员", .otherProp = "4"});
        database.addSet({.tblName = "A02", .tblDesc = "学习", .otherProp = "10"});
    }

    TestDatabase database;
};

TEST_F(FilledSets, AreEmptyForAnIdentityWithoutRows) { EXPECT_EQ(ListFilledSets("x"), ""); }

TEST_F(FilledSets, AreTheDescriptionsInTheOrderOfTheMenuEachWithACarriageReturn) {
    database.addRow("P01", {"x"});
    database.addRow("A02", {"x"});
    database.addRow("A02", {"x"});
    database.addRow("A01", {"x"});
    EXPECT_EQ(ListFilledSets("x"), "人员\r学习\r项目\r");
}

TEST_F(FilledSets, LeaveOutWhatOthersFilled) {
    database.addRow("A01", {"y"});
    database.addRow("P01", {"x"});
    EXPECT_EQ(ListFilledSets("x"), "项目\r");
}

TEST_F(FilledSets, TakeOneStatementForTheCatalogueAndOneForEachSet) {
    (void)ListFilledSets("x");
    EXPECT_EQ(database.statements(), (std::vector<std::string>{
                                         "SELECT * FROM s_infotable order by OtherProp",
                                         "select count(1) from A01 where A00='x'",
                                         "select count(1) from A02 where A00='x'",
                                         "select count(1) from P01 where A00='x'",
                                     }));
}

TEST_F(FilledSets, EndAtAFailureWithWhatWasGatheredSoFar) {
    for (const char* table : {"A01", "A02", "P01"})
        database.addRow(table, {"x"});
    database.failing().failOn("from A02", "断线");
    EXPECT_EQ(ListFilledSets("x"), "人员\r");
    EXPECT_EQ(database.statements().back(), "select count(1) from A02 where A00='x'");
}

TEST_F(FilledSets, EndAtASetWithoutATable) {
    database.addSet({.tblName = "A09", .tblDesc = "获奖", .otherProp = "5"});
    database.addRow("A01", {"x"});
    database.addRow("A02", {"x"});
    EXPECT_EQ(ListFilledSets("x"), "人员\r");
}

TEST_F(FilledSets, AreEmptyWhenTheCatalogueCannotBeRead) {
    database.addRow("A01", {"x"});
    database.failing().failAfter(1, "断线");
    EXPECT_EQ(ListFilledSets("x"), "");
}

TEST_F(FilledSets, ReadANullDescriptionAsEmpty) {
    database.run("update s_infotable set tbldesc=null where tblname='A01'");
    database.addRow("A01", {"x"});
    database.addRow("A02", {"x"});
    EXPECT_EQ(ListFilledSets("x"), "\r学习\r");
}

} // namespace

} // namespace quillmere::test
