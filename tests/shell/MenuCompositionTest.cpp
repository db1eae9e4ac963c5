#include "shell/MenuComposition.h"

#include "shell/MenuItems.h"
#include "support/FailureNumber.h"
#include "support/TestDatabase.h"

#include <gtest/gtest.h>

#include <algorithm>

// How the groups of the menu are composed: small catalogues, one fact each.

namespace quillmere::test {

namespace {

class Composition : public testing::Test {
protected:
    Composition() {
        database.createCatalogue();
        addGroups(menu);
    }

    void customise(std::string_view code, const std::optional<std::string>& persons,
                   const std::optional<std::string>& projects, const std::optional<std::string>& plans) {
        database.run("insert into TS_SetCustomize values ('" + std::string(code) + "'," + literal(persons) +
                     "," + literal(projects) + "," + literal(plans) + ")");
    }
    void addSets(const std::vector<std::string>& names) {
        int order = 0;
        for (const std::string& name : names)
            database.addSet({.tblName = name, .tblDesc = name + "表", .otherProp = std::to_string(++order)});
    }
    /// The rows "01" to "07", each with the same lists.
    void customiseAll() {
        for (int type = 1; type <= 7; ++type)
            customise("0" + std::to_string(type), "A01", "P01", "Plan1");
        addSets({"A01", "P01", "Plan1"});
    }
    [[nodiscard]] std::optional<int> failure(std::int32_t type) {
        return failureOf([&] { composeMenu(menu, type); });
    }

    TestDatabase database;
    ui::VerticalMenu menu{"VMenu1"};
};

TEST_F(Composition, OfType3TakesGroups1And2FromRow03AndGroup3FromRow02) {
    customise("02", "A02", "P02", "Plan2");
    customise("03", "A03", "P13", "Plan3");
    addSets({"A02", "A03", "P02", "P13", "Plan2", "Plan3", "E02", "F02", "M02", "N02", "P01"});
    composeMenu(menu, 3);
    EXPECT_EQ(keysOf(menu, 1), Items{"A03"});
    EXPECT_EQ(keysOf(menu, 2), Items{"P13"});
    EXPECT_EQ(keysOf(menu, 3), Items{"Plan2"});
    EXPECT_EQ(keysOf(menu, 4), Items{"E02"});
    EXPECT_EQ(keysOf(menu, 5), (Items{"F02", "P01"}));
}

TEST_F(Composition, OfType6TakesGroup3FromRow06AndTheLettersMAndN) {
    customise("02", "A02", "P02", "Plan2");
    customise("06", "B01", "C01", "Plan5");
    addSets({"B01", "C01", "Plan2", "Plan5", "E02", "F02", "M02", "N02", "P01"});
    composeMenu(menu, 6);
    EXPECT_EQ(keysOf(menu, 3), Items{"Plan5"});
    EXPECT_EQ(keysOf(menu, 4), Items{"M02"});
    EXPECT_EQ(keysOf(menu, 5), (Items{"N02", "P01"}));
}

TEST_F(Composition, OfType1TakesThePlanOfRow01) {
    customise("01", "A01", "P01", "Plan1");
    customise("02", "A02", "P02", "Plan2");
    addSets({"A01", "P01", "Plan1", "Plan2"});
    composeMenu(menu, 1);
    EXPECT_EQ(keysOf(menu, 3), Items{"Plan1"});
}

TEST_F(Composition, OfATypeWithoutARowFailsInGroup1OnTheEmptyList) {
    customise("02", "A02", "P02", "Plan2");
    addSets({"A02"});
    EXPECT_EQ(failure(3), number(Failure::StatementFailed));
    EXPECT_EQ(database.statements(),
              (Items{"select * from TS_SetCustomize where DmCod='03'",
                     "SELECT * FROM s_infotable where tblname in () order by otherprop"}));
}

TEST_F(Composition, WithoutTheRowOfGroup3ShowsGroup2sListOnceMoreWithPlainKeys) {
    customise("03", "A03", "P01,P03,C04", "Plan3");
    addSets({"A03", "P01", "P03", "C04", "Plan3"});
    composeMenu(menu, 3);
    EXPECT_EQ(itemsOf(menu, 2), (Items{"P01 P01表", "P01 P03表", "P01 C04表"}));
    EXPECT_EQ(itemsOf(menu, 3), (Items{"P01 P01表", "P03 P03表", "C04 C04表"}));
    EXPECT_EQ(database.statements().size(), 8U);
}

TEST_F(Composition, KeepsABlankBehindTheCommaAndFindsNoSuchTable) {
    customise("02", "A02, A03,A04", "P01", "Plan1");
    addSets({"A02", "A03", "A04", "P01", "Plan1"});
    composeMenu(menu, 2);
    EXPECT_EQ(keysOf(menu, 1), (Items{"A02", "A04"}));
    EXPECT_EQ(database.statements()[1],
              "SELECT * FROM s_infotable where tblname in ('A02',' A03','A04') order by otherprop");
}

TEST_F(Composition, PassesOverANameThatTheCatalogueDoesNotHold) {
    customise("02", "A02,A99,A04", "P01", "Plan1");
    addSets({"A02", "A04", "P01", "Plan1"});
    composeMenu(menu, 2);
    EXPECT_EQ(keysOf(menu, 1), (Items{"A02", "A04"}));
}

TEST_F(Composition, KeepsTheEmptyElementsOfAList) {
    customise("02", ",A02,,A03,", "P01", "Plan1");
    addSets({"A02", "A03", "P01", "Plan1"});
    composeMenu(menu, 2);
    EXPECT_EQ(keysOf(menu, 1), (Items{"A02", "A03"}));
    EXPECT_EQ(database.statements()[1],
              "SELECT * FROM s_infotable where tblname in ('','A02','','A03','') order by otherprop");
}

TEST_F(Composition, ShowsATableThatIsListedTwiceOnce) {
    customise("02", "A02,A02", "P01", "Plan1");
    addSets({"A02", "P01", "Plan1"});
    composeMenu(menu, 2);
    EXPECT_EQ(keysOf(menu, 1), Items{"A02"});
}

TEST_F(Composition, LeavesAGroupEmptyWhenNoListedTableIsThere) {
    customise("02", "A99", "P99", "Plan9");
    composeMenu(menu, 2);
    for (int group = 1; group <= 5; ++group)
        EXPECT_TRUE(keysOf(menu, group).empty()) << group;
}

TEST_F(Composition, UsesTheFirstRowOfACustomisingQueryOnly) {
    customise("02", "A02", "P01", "Plan1");
    customise("02", "A03", "P02", "Plan2");
    addSets({"A02", "A03", "P01", "P02", "Plan1", "Plan2"});
    composeMenu(menu, 2);
    EXPECT_EQ(keysOf(menu, 1), Items{"A02"});
}

TEST_F(Composition, SortsByThePositionAndNotByTheList) {
    customise("02", "A04,A02,A03", "P01", "Plan1");
    for (const auto& [name, position] : {std::pair{"A02", "30"}, {"A03", "4"}, {"A04", "200"}})
        database.addSet({.tblName = name, .otherProp = position});
    composeMenu(menu, 2);
    EXPECT_EQ(keysOf(menu, 1), (Items{"A03", "A02", "A04"}));
}

TEST_F(Composition, LeavesEqualPositionsToTheDatabase) {
    customise("02", "A02,A03", "P01", "Plan1");
    database.addSet({.tblName = "A02", .otherProp = "1"});
    database.addSet({.tblName = "A03", .otherProp = "1"});
    composeMenu(menu, 2);
    auto keys = keysOf(menu, 1);
    std::ranges::sort(keys);
    EXPECT_EQ(keys, (Items{"A02", "A03"}));
    // No further column in the order of any statement.
    for (const std::size_t item : {1U, 3U, 5U, 6U, 7U})
        EXPECT_TRUE(database.statements()[item].ends_with(" order by otherprop"));
}

TEST_F(Composition, ReadsANullDescriptionAsAnEmptyCaption) {
    customise("02", "A02", "P01", "Plan1");
    database.addSet({.tblName = "A02", .tblDesc = std::nullopt});
    composeMenu(menu, 2);
    EXPECT_EQ(itemsOf(menu, 1), Items{"A02 "});
}

struct KeyRow {
    std::int32_t type;
    const char* table;
    const char* key;
};

class ProjectKey : public Composition, public testing::WithParamInterface<KeyRow> {};

TEST_P(ProjectKey, OfGroup2FollowsTheTableAndTheType) {
    const KeyRow& row = GetParam();
    for (int type = 1; type <= 7; ++type)
        customise("0" + std::to_string(type), row.table, row.table, row.table);
    addSets({row.table});
    composeMenu(menu, row.type);
    EXPECT_EQ(itemsOf(menu, 2), Items{std::string(row.key) + " " + row.table + "表"});
    // The rule is that of group 2 alone.
    EXPECT_EQ(keysOf(menu, 1), Items{row.table});
    EXPECT_EQ(keysOf(menu, 3), Items{row.table});
}

INSTANTIATE_TEST_SUITE_P(
    Menu, ProjectKey,
    testing::Values(KeyRow{1, "P02", "P02"}, KeyRow{2, "P02", "P02"}, KeyRow{3, "P02", "P02"},
                    KeyRow{4, "P02", "P01"}, KeyRow{5, "P02", "P02"}, KeyRow{6, "P02", "P02"},
                    KeyRow{7, "P02", "P01"}, KeyRow{1, "P03", "P01"}, KeyRow{2, "P03", "P01"},
                    KeyRow{3, "P03", "P01"}, KeyRow{4, "P03", "P01"}, KeyRow{5, "P03", "P01"},
                    KeyRow{6, "P03", "P01"}, KeyRow{7, "P03", "P01"}, KeyRow{1, "C04", "P01"},
                    KeyRow{2, "C04", "P01"}, KeyRow{6, "C04", "P01"}, KeyRow{7, "C04", "P01"},
                    KeyRow{4, "P04", "P04"}, KeyRow{7, "P01", "P01"}, KeyRow{6, "C03", "C03"},
                    KeyRow{4, "A02", "A02"}));

TEST_F(Composition, OfATypeOutside1To7FailsWithNoCustomisingQuery) {
    customiseAll();
    for (const std::int32_t type : {0, 8, -1, 32767, -32768, 10}) {
        database.clearStatements();
        EXPECT_EQ(failure(type), number(Failure::StatementFailed)) << type;
        EXPECT_EQ(database.statements(), Items{""}) << type;
    }
}

TEST_F(Composition, FailsOnAnEmptyListOfAnyColumn) {
    addSets({"A01", "P01", "Plan1"});
    customise("01", "", "P01", "Plan1");
    customise("02", "A01", "", "Plan1");
    EXPECT_EQ(failure(1), number(Failure::StatementFailed));
    EXPECT_EQ(database.statements().size(), 2U);
    EXPECT_EQ(database.statements().back(),
              "SELECT * FROM s_infotable where tblname in () order by otherprop");
    database.clearStatements();
    EXPECT_EQ(failure(2), number(Failure::StatementFailed));
    EXPECT_EQ(database.statements().size(), 4U);
    EXPECT_EQ(database.statements().back(),
              "SELECT * FROM s_infotable where tblname in () order by otherprop");
}

TEST_F(Composition, AnEmptyPlanDoesNotFallBackOnTheListOfGroup2) {
    addSets({"A01", "P01", "Plan1"});
    customise("06", "A01", "P01", "");
    EXPECT_EQ(failure(6), number(Failure::StatementFailed));
    EXPECT_EQ(database.statements().size(), 6U);
    EXPECT_EQ(database.statements().back(),
              "SELECT * FROM s_infotable where tblname in () order by otherprop");
}

TEST_F(Composition, FailsAtReadingANullList) {
    addSets({"A01", "P01", "Plan1"});
    customise("01", std::nullopt, "P01", "Plan1");
    customise("02", "A01", std::nullopt, "Plan1");
    customise("06", "A01", "P01", std::nullopt);
    EXPECT_EQ(failure(1), number(Failure::InvalidUseOfNull));
    EXPECT_EQ(failure(2), number(Failure::InvalidUseOfNull));
    EXPECT_EQ(failure(6), number(Failure::InvalidUseOfNull));
}

TEST_F(Composition, IgnoresANullInAColumnThatTheTypeDoesNotRead) {
    addSets({"A01", "P01", "Plan1"});
    customise("02", std::nullopt, std::nullopt, "Plan1");
    customise("03", "A01", "P01", std::nullopt);
    EXPECT_EQ(failure(3), std::nullopt);
}

TEST_F(Composition, AFailureOfAnyStatementGoesToTheCaller) {
    customiseAll();
    for (int k = 1; k <= 8; ++k) {
        database.failing().failAfter(k, "断线");
        EXPECT_EQ(failure(2), number(Failure::StatementFailed)) << k;
    }
    EXPECT_EQ(failure(2), std::nullopt);
}

TEST_F(Composition, RaisesNoClick) {
    customiseAll();
    int clicks = 0;
    menu.ItemClick.connect([&](int&, int&) { ++clicks; });
    composeMenu(menu, 2);
    EXPECT_EQ(clicks, 0);
}

TEST_F(Composition, KeepsTheGroupsCaptionsAndReplacesTheirItems) {
    customiseAll();
    composeMenu(menu, 2);
    ASSERT_EQ(menu.groups().size(), 5U);
    EXPECT_EQ(menu.groups()[0].caption, "基本信息");
    EXPECT_EQ(menu.groups()[4].caption, "结题信息");
    EXPECT_EQ(menu.groups()[0].items.size(), 1U);
    composeMenu(menu, 2);
    EXPECT_EQ(menu.groups()[0].items.size(), 1U);
}

} // namespace

} // namespace quillmere::test
