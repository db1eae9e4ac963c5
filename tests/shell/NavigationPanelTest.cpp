#include "panels/A1ctrlUser.h"
#include "shell/NavigationTest.h"
#include "support/FailureNumber.h"

#include <gtest/gtest.h>

// Which panel a click on an item loads.

namespace quillmere::test {

namespace {

struct PanelChoice {
    std::int16_t zzType;
    int group;
    const char* key;
    const char* caption;
    /// Class without "A1ctrlUser".
    const char* panel;
};

void PrintTo(const PanelChoice& row, std::ostream* out) {
    *out << "type " << row.zzType << ", group " << row.group << ", " << row.key << " " << row.caption;
}

class PanelFor : public NavigationTest, public testing::WithParamInterface<PanelChoice> {};

TEST_P(PanelFor, TheItemIsChosenByTypeGroupKeyAndCaption) {
    const PanelChoice& row = GetParam();
    maintain(
        [&](frmPersonWh& shown) {
            clickAs(shown, row.group, row.key, row.caption);
            EXPECT_EQ(panelName(), std::string("A1ctrlUser") + row.panel);
            // The table is the item's key, whatever the panel.
            EXPECT_EQ(shown.GetUserCtrl()->WhInfo.TabId, row.key);
            EXPECT_FALSE(shown.GetUserCtrl()->WhInfo.IsChange);
        },
        row.zzType);
}

constexpr auto schedule = "项目工作进度计划";
constexpr auto budget = "经费使用安排";
constexpr auto collectiveBudget = "项目总体经费使用…";
constexpr auto project = "项目基本信息";

INSTANTIATE_TEST_SUITE_P(
    ProjectInThePlanGroup, PanelFor,
    testing::Values(PanelChoice{1, 3, "P01", project, "PP01A"}, PanelChoice{2, 3, "P01", project, "PP01"},
                    PanelChoice{3, 3, "P01", project, "PP01"}, PanelChoice{4, 3, "P01", project, "PP01"},
                    PanelChoice{5, 3, "P01", project, "PP01"}, PanelChoice{6, 3, "P01", project, "PP01"},
                    PanelChoice{7, 3, "P01", project, "PP01"},
                    // The caption has no say here.
                    PanelChoice{1, 3, "P01", schedule, "PP01A"}, PanelChoice{6, 3, "P01", budget, "PP01"}));

INSTANTIATE_TEST_SUITE_P(ProjectInTheClosingGroup, PanelFor,
                         testing::Values(PanelChoice{1, 5, "P01", project, "JP01"},
                                         PanelChoice{2, 5, "P01", project, "JP01"},
                                         PanelChoice{6, 5, "P01", project, "JP01"},
                                         PanelChoice{7, 5, "P01", project, "JP01"},
                                         PanelChoice{4, 5, "P01", schedule, "JP01"},
                                         PanelChoice{6, 5, "P01", collectiveBudget, "JP01"}));

INSTANTIATE_TEST_SUITE_P(ProjectElsewhere, PanelFor,
                         testing::Values(PanelChoice{1, 1, "P01", project, "P01"},
                                         PanelChoice{1, 2, "P01", project, "P01"},
                                         PanelChoice{6, 2, "P01", project, "P01"},
                                         PanelChoice{7, 4, "P01", project, "P01"},
                                         PanelChoice{2, 2, "P01", "", "P01"}));

INSTANTIATE_TEST_SUITE_P(ProjectByCaption, PanelFor,
                         testing::Values(PanelChoice{4, 2, "P01", schedule, "P02_DG"},
                                         PanelChoice{7, 2, "P01", schedule, "P02_DG"},
                                         PanelChoice{1, 2, "P01", schedule, "P02_DG"},
                                         PanelChoice{6, 1, "P01", schedule, "P02_DG"},
                                         PanelChoice{6, 2, "P01", budget, "C04"},
                                         PanelChoice{6, 2, "P01", collectiveBudget, "C04"},
                                         PanelChoice{6, 4, "P01", budget, "C04"},
                                         PanelChoice{2, 2, "P01", budget, "P03"},
                                         PanelChoice{2, 2, "P01", collectiveBudget, "P03"},
                                         PanelChoice{7, 1, "P01", budget, "P03"}));

INSTANTIATE_TEST_SUITE_P(ProjectByACaptionThatIsNotToTheLetter, PanelFor,
                         testing::Values(PanelChoice{6, 2, "P01", "项目总体经费使用...", "P01"},
                                         PanelChoice{6, 2, "P01", "项目总体经费使用", "P01"},
                                         PanelChoice{6, 2, "P01", "项目总体经费使用……", "P01"},
                                         PanelChoice{2, 2, "P01", "经费使用安排 ", "P01"},
                                         PanelChoice{4, 2, "P01", " 项目工作进度计划", "P01"}));

INSTANTIATE_TEST_SUITE_P(
    AnyOtherKey, PanelFor,
    testing::Values(PanelChoice{2, 2, "P02", schedule, "P02"}, PanelChoice{1, 3, "Plan1", project, "Plan1"},
                    PanelChoice{7, 1, "A02", project, "A02"}, PanelChoice{7, 1, "B01", project, "B01"},
                    PanelChoice{1, 5, "F02", project, "F02"}, PanelChoice{6, 4, "M02", project, "M02"}));

// The person's item under type 7.

struct StoredType {
    const char* a0136;
    const char* panel;
};

void PrintTo(const StoredType& row, std::ostream* out) { *out << row.a0136; }

class SkilledWorkerFor : public NavigationTest, public testing::WithParamInterface<StoredType> {};

TEST_P(SkilledWorkerFor, TheStoredTypeIsComparedAsANumber) {
    database.run(std::string("update A01 set A0136=") + GetParam().a0136);
    maintain(
        [](frmPersonWh& shown) {
            EXPECT_EQ(panelName(), std::string("A1ctrlUser") + GetParam().panel);
            EXPECT_EQ(shown.GetUserCtrl()->WhInfo.TabId, "A01");
            EXPECT_TRUE(enabled("Add"));
            EXPECT_TRUE(enabled("Delete"));
        },
        7);
}

INSTANTIATE_TEST_SUITE_P(Rows, SkilledWorkerFor,
                         testing::Values(StoredType{"'07'", "G01"}, StoredType{"'7'", "G01"},
                                         StoredType{"' 7'", "G01"}, StoredType{"'7.0'", "G01"},
                                         StoredType{"'02'", "A01"}, StoredType{"'70'", "A01"},
                                         StoredType{"'-7'", "A01"}, StoredType{"'7.4'", "A01"},
                                         StoredType{"'6.6'", "A01"}, StoredType{"'70000000000'", "A01"},
                                         StoredType{"null", "A01"}, StoredType{"''", "A01"},
                                         StoredType{"'七'", "A01"}, StoredType{"'07a'", "A01"}));

class NavigationPanel : public NavigationTest {};

TEST_F(NavigationPanel, OfType7WithoutAPersonsRowIsTheSkilledWorkers) {
    maintain(
        [this](frmPersonWh& shown) {
            EXPECT_EQ(panelName(), "A1ctrlUserA01");
            database.run("delete from A01");
            click(shown, 1, "A01");
            EXPECT_EQ(panelName(), "A1ctrlUserG01");
            EXPECT_EQ(shown.GetUserCtrl()->WhInfo.TabId, "A01");
        },
        7);
}

TEST_F(NavigationPanel, OfAnyOtherTypeAsksNothingOfThePerson) {
    database.run("update A01 set A0136='07'");
    for (const std::int16_t type : {std::int16_t{1}, std::int16_t{2}, std::int16_t{4}, std::int16_t{5}}) {
        maintain([](frmPersonWh&) { EXPECT_EQ(panelName(), "A1ctrlUserA01"); }, type);
    }
    EXPECT_EQ(journal.count("SQL select * from A01 where A00='"), 0);
}

TEST_F(NavigationPanel, OfType7ReadsThePersonForThePersonsItemAlone) {
    maintain(
        [this](frmPersonWh& shown) {
            journal.clear();
            click(shown, 1, "A02");
            click(shown, 2, "P01");
            EXPECT_EQ(journal.count("SQL select * from A01 where A00='"), 0);
            click(shown, 1, "A01");
            EXPECT_EQ(journal.count("SQL select * from A01 where A00='"), 1);
        },
        7);
}

TEST_F(NavigationPanel, OfType7GoesByTheFirstOfTwoRows) {
    allowDuplicates();
    database.run("update A01 set A0136='02'");
    database.run("insert into A01 (A00,A0199,A0136) values ('" + id + "',2,'07')");
    addUnit(id, "甲公司");
    maintain([](frmPersonWh&) { EXPECT_EQ(panelName(), "A1ctrlUserA01"); }, 7);
}

TEST_F(NavigationPanel, OfABudgetUnderItsOwnKeyIsLoadedAndFailsAtTheFieldsOfTheProject) {
    for (const std::string key : {"P03", "C04"}) {
        std::string left;
        EXPECT_EQ(failureOf([&] {
                      maintain([&](frmPersonWh& shown) {
                          try {
                              clickAs(shown, 1, key, "经费使用安排");
                          } catch (...) {
                              left = panelName();
                              throw;
                          }
                      });
                  }),
                  number(Failure::InvalidCall));
        EXPECT_EQ(left, "A1ctrlUser" + key);
    }
}

TEST_F(NavigationPanel, OfAKeyInAnotherCaseIsFoundUnderTheKeysOwnName) {
    maintain([](frmPersonWh& shown) {
        clickAs(shown, 2, "p01", "经费使用安排");
        EXPECT_EQ(panelName(), "A1ctrlUserp01");
        EXPECT_EQ(shown.GetUserCtrl()->row().className, "A1ctrlUserP01");
        clickAs(shown, 1, "A01", "");
        EXPECT_EQ(panelName(), "A1ctrlUserA01");
    });
}

} // namespace

} // namespace quillmere::test
