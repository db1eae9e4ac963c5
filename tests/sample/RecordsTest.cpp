#include "SampleDatabase.h"

#include "sample/Recipes.h"
#include "sample/RowWriters.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillmere::sample {
namespace {

using test::column;
using test::count;
using test::defaultRegister;
using test::makeRegister;
using test::TextRows;
using test::textRows;

/// Runs a query that finds what is wrong; each row found is one failure.
void expectNone(const std::string& sql) { EXPECT_EQ(textRows(defaultRegister(), sql), TextRows{}) << sql; }

/// The sets of the register that begin with one of the letters; plan sets begin with "Plan".
std::vector<std::string> setsOf(const std::string& letters) {
    std::vector<std::string> sets;
    for (const std::string& set : column("select tblname from s_infotable order by OtherProp")) {
        const bool plan = set.starts_with("Plan");
        if (letters.find(set.front()) != std::string::npos && !plan) sets.push_back(set);
    }
    return sets;
}

const std::vector<std::string> planSets{"Plan2", "Plan3", "Plan4", "Plan5"};

/// Everyone's sponsorship type, one digit, with the project's stage.
constexpr const char* projects =
    "(select P01.A00 as A00, P0123 as stage, iif(A0136 is null,'6',substr(A0136,2)) as type "
    "from P01 left join A01 on A01.A00=P01.A00)";

void expectStages(const std::string& set, const std::string& stages) {
    expectNone("select '" + set + "', A00, stage from " + projects + " where A00 in (select A00 from " + set +
               ") and stage not in (" + stages + ")");
}

TEST(Records, EverySetHasRowsOfSeveral) {
    for (const std::string& set : column("select tblname from s_infotable"))
        EXPECT_GE(count("select count(distinct A00) from " + set), 3) << set;
}

TEST(Records, SixtyProjectsAndMoreGoBeyondTheirBasicData) {
    EXPECT_GE(count("select count(distinct A00) from P06"), 60);
    EXPECT_GE(count("select count(*) from P01 where A00 not in (select A00 from P06)"), 60);
}

TEST(Records, EveryTypeHasThemInEveryStage) {
    for (const char type : {'1', '2', '3', '4', '5', '6', '7'}) {
        for (const char* stage : {"01", "02", "03"}) {
            EXPECT_GE(count(std::string("select count(*) from ") + projects + " where type='" + type +
                            "' and stage='" + stage + "' and A00 in (select A00 from P06)"),
                      1)
                << type << ' ' << stage;
        }
    }
}

TEST(Records, PlansAndReportsBeginWithTheSecondStageAndClosingWithTheThird) {
    for (const std::string& set : planSets)
        expectStages(set, "'02','03'");
    for (const std::string& set : setsOf("EM"))
        expectStages(set, "'02','03'");
    for (const std::string& set : setsOf("FN"))
        expectStages(set, "'03'");
}

TEST(Records, WhatHasReachedAStageHasItsRecords) {
    const std::string beyond =
        "select A00 from " + std::string(projects) + " where A00 in (select A00 from P06)";
    expectNone(beyond + " and stage<>'01' and A00 not in (select A00 from E06 union select A00 from M03)");
    expectNone(beyond + " and stage='03' and A00 not in (select A00 from F05 union select A00 from N03)");
}

TEST(Records, OnlyTheSetsOfTheOwnMenuAreFilled) {
    for (const auto& menu :
         textRows(defaultRegister(), "select substr(DmCod,2), ',' || PersonItem || ',' || ProjectItem || ',' "
                                     "from TS_SetCustomize")) {
        for (const std::string& set : setsOf("AP")) {
            // The basic sets of a curriculum are everyone's.
            const bool basic = set == "A02" || set == "A03" || set == "A08";
            if (basic || menu[1].find("," + set + ",") != std::string::npos) continue;
            expectNone("select '" + set + "', A00, type from " + projects + " where type='" + menu[0] +
                       "' and A00 in (select A00 from " + set + ")");
        }
    }
}

TEST(Records, CollectiveProjectsAloneHaveTheCollectiveSets) {
    for (const std::string& set : setsOf("CMN"))
        expectNone("select A00 from " + set + " where A00 not in (select A00 from B01)");
    for (const std::string& set : setsOf("AEF"))
        expectNone("select A00 from " + set + " where A00 not in (select A00 from A01)");
}

TEST(Records, NobodyHasMoreThanTheSetAllows) {
    for (const auto& row :
         textRows(defaultRegister(), "select tblname, maxnumber from s_infotable where maxnumber > 0")) {
        expectNone("select A00 from " + row[0] + " group by A00 having count(*) > " + row[1]);
    }
}

TEST(Records, SingleRecordSetsHoldOneOfEach) {
    for (const std::string& set : column("select tblname from s_infotable where Property = true"))
        expectNone("select A00 from " + set + " group by A00 having count(*) > 1");
}

TEST(Records, TheFirstOfTheRegisterHaveTheBasicSetsAlone) {
    for (const std::string& set : column("select tblname from s_infotable where tblname not in "
                                         "('A01','A02','A03','A08','B01','B02','P01','Plan1')")) {
        expectNone("select A00 from " + set +
                   " where A00 in (select A00 from A01 where A0199 <= 50) or A00 in "
                   "(select A00 from B01 where B0199 <= 10)");
    }
}

TEST(Records, ABiggerRegisterBeginsWithTheRowsOfASmallerOne) {
    const auto small = makeRegister({.persons = 50, .units = 10});
    for (const char* set : {"A01", "A02", "A03", "A08", "B01", "B02", "P01", "Plan1"}) {
        const std::string all = std::string("select * from ") + set + " order by rowid";
        const TextRows first = textRows(*small, all);
        ASSERT_FALSE(first.empty()) << set;
        EXPECT_EQ(first, textRows(defaultRegister(), all + " limit " + std::to_string(first.size()))) << set;
    }
}

TEST(Records, ReportsAreOfTheYearsOfTheProject) {
    for (const std::string& set : setsOf("EM")) {
        expectNone("select R.A00, SHBYear from " + set +
                   " R join P01 on P01.A00=R.A00 where SHBYear < P0125 or SHBYear > substr(P0107,1,4) or "
                   "SHBYear > '2025'");
    }
}

TEST(Records, AProjectClosedAfterTwoYearsReportsOnBoth) {
    expectNone("select A00 from P01 where P0123='03' and A00 in (select A00 from E06) and "
               "(select count(distinct SHBYear) from E06 where E06.A00=P01.A00) <> 2");
}

/// The sums of a project, in hundredths, so that nothing is lost.
std::string hundredths(const std::string& field) { return "cast(round(100*" + field + ") as integer)"; }

/// Each project's sum over the set's field, against the project's own amount.
void expectSum(const std::string& set, const std::string& field, const std::string& amount,
               const std::string& types) {
    expectNone("select R.A00, sum(" + hundredths(field) + "), " + hundredths(amount) + " from " + set +
               " R join P01 on P01.A00=R.A00 join " + projects + " T on T.A00=R.A00 where type in (" + types +
               ") group by R.A00 having sum(" + hundredths(field) + ") <> " + hundredths(amount));
}

TEST(Records, BudgetsAddUpToTheProjectsAmounts) {
    expectSum("P03", "P0302", "P0102", "'1','2','3','5'");
    expectSum("P03", "P0302", "P0103", "'4','7'");
    expectSum("C04", "C0402", "P0103", "'6'");
    expectSum("C04", "C0403", "P0102", "'6'");
    expectSum("P05", "P0503", "P0127", "'1','2','3','4','5','7') and stage in ('02','03'");
}

TEST(Records, ClosedProjectsHaveSpentWhatTheyWereGranted) {
    for (const char* set : {"F02", "N02"})
        expectSum(set, std::string(set) + "03", "P0126", "'1','2','3','4','5','6','7'");
}

TEST(Records, ASumOfTheOverallBudgetIsMadeUpOfItsSources) {
    expectNone("select C0402 from C04 where " + hundredths("C0402") + " <> " + hundredths("C0403") + " + " +
               hundredths("C0404"));
}

TEST(Records, TotalsAreQuantityTimesPrice) {
    for (const char* set : {"Plan2", "Plan3", "F03", "F04"}) {
        const std::string name = set;
        expectNone("select " + name + "05 from " + name + " where " + name + "03 * " + name + "04 <> " +
                   name + "05");
    }
}

TEST(Records, BudgetsAreNumberedOverTheWholeTableWithGapsInAProject) {
    for (const char* set : {"P03", "C04"}) {
        const std::string name = set;
        const int rows = count("select count(*) from " + name);
        EXPECT_EQ(count("select count(distinct " + name + "99) from " + name), rows);
        EXPECT_EQ(count("select min(" + name + "99) from " + name), 1);
        EXPECT_EQ(count("select max(" + name + "99) from " + name), rows);
        EXPECT_GE(count("select count(*) from (select A00 from " + name + " group by A00 having max(" + name +
                        "99) - min(" + name + "99) >= count(*))"),
                  3);
    }
}

TEST(Records, SchedulesOfTheTypesThatKeepThemInTheEditorAreNumberedSoToo) {
    const std::string rows =
        std::string(" from P02 R join ") + projects + " T on T.A00=R.A00 where type in ('4','7')";
    EXPECT_EQ(count("select count(distinct P0299)" + rows), count("select count(*)" + rows));
    EXPECT_EQ(count("select max(P0299)" + rows), count("select count(*)" + rows));
    // In the order of their dates.
    expectNone("select R.A00 from P02 R join P02 S on S.A00=R.A00 and S.P0299 > R.P0299 "
               "where S.P0201 < R.P0201");
}

TEST(Records, NumbersLeaveRoomForNewRowsInTheLargestRegister) {
    EXPECT_EQ(runningNumber(1), 1);
    EXPECT_EQ(runningNumber(30000), 30000);
    EXPECT_EQ(runningNumber(30001), 1);
    EXPECT_EQ(runningNumber(1000000), 10000);
}

TEST(Records, BudgetsOfTheLargestRegisterStayBelowTheHighestNumber) {
    const Pools pools;
    int checked = 0;
    for (const SetRecipe& recipe : recordRecipes(pools)) {
        if (recipe.name != "P02" && recipe.name != "P03" && recipe.name != "C04") continue;
        EXPECT_LT(recipe.most * lastWithRecords, 32767) << recipe.name;
        ++checked;
    }
    EXPECT_EQ(checked, 3);
}

TEST(Records, TextsAreFilledInAndHoldNoQuote) {
    for (const auto& row : textRows(defaultRegister(), "select TblName, ItemName from s_infoitem where "
                                                       "FieldType in ('varchar','ntext')")) {
        expectNone("select " + row[1] + " from " + row[0] + " where " + row[1] + " like '%{%' or " + row[1] +
                   " like '%''%'");
    }
}

TEST(Records, PeopleNamedInRecordsHaveNumbersThatNobodyHas) {
    expectNone("select P0702 from P07 where substr(P0702,15,2) <> '99'");
    expectNone("select C0105, C0108 from C01 where C0105 not like '010-0%' or C0108 not like '010-0%'");
    expectNone("select C0109 from C01 where C0109 not like '%@example.org'");
}

} // namespace
} // namespace quillmere::sample
