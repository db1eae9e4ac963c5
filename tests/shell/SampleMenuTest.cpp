#include "shell/MenuComposition.h"
#include "shell/MenuItems.h"
#include "shell/RegisterTest.h"
#include "support/FailureNumber.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

// What the five groups of the menu hold under the sample catalogue, and the menu on the window.

namespace quillmere::test {

namespace {

/// The sample catalogue's menu of a type.
struct MenuOfType {
    std::int32_t type;
    Items person;
    Items project;
    Items plan;
};

const Items personsSets{"A01 人员基本信息",       "A02 主要学习经历",     "A03 主要工作经历",
                        "A04 主要兼职",           "A05 访问进修培训经历", "A06 参加学术会议情况",
                        "A07 近期成果和在研课题", "A08 专著论文报告",     "A09 获奖成果",
                        "A10 创新点及主要业绩"};

const Items commonPlan{"P01 项目基本信息", "Plan1 项目进度计划", "Plan2 购置仪器设备", "Plan3 材料、试验耗材",
                       "Plan4 科研业务费用"};

const Items reports{"E02 经费使用情况", "E05 配套资金落实", "E06 项目进展情况", "E07 下阶段工作计划",
                    "E08 单位意见"};
const Items collectiveReports{"M02 经费使用情况", "M03 协议书执行情况",   "M04 任务分解责任落实",
                              "M05 报送工作信息", "M06 管理方案落实综述", "M07 下阶段工作计划",
                              "M08 配套资金落实"};
const Items closing{"P01 项目基本信息", "F02 经费使用情况", "F03 购置仪器设备", "F04 材料、试验耗材",
                    "F05 资金使用情况", "F07 完成结题情况", "F08 跟踪培养计划", "F09 单位意见"};
const Items collectiveClosing{"P01 项目基本信息",    "N02 经费使用情况", "N03 资金使用情况",
                              "N04 完成结题情况",    "N05 后续工作计划", "N06 单位党委意见",
                              "N07 任务分解责任落实"};

const std::array<MenuOfType, 7> menus{{
    {1,
     personsSets,
     {"P01 项目基本信息", "P02 项目工作进度计划", "P01 经费使用安排", "P04 其他部门申报立项",
      "P05 匹配资金情况", "P06 所在单位党委意见", "P10 AB类项目情况", "P17 归口推荐单位意见"},
     {"P01 项目基本信息", "Plan1 项目进度计划", "Plan5 学术活动等费用"}},
    {2,
     personsSets,
     {"P01 项目基本信息", "P02 项目工作进度计划", "P01 经费使用安排", "P04 其他部门申报立项",
      "P05 匹配资金情况", "P06 所在单位党委意见", "P10 AB类项目情况", "P17 归口推荐单位意见",
      "P18 项目其他信息"},
     commonPlan},
    {3,
     personsSets,
     {"P01 项目基本信息", "P01 经费使用安排", "P04 其他部门申报立项", "P05 匹配资金情况",
      "P06 所在单位党委意见", "P11 C类项目情况", "P17 归口推荐单位意见"},
     commonPlan},
    {4,
     personsSets,
     {"P01 项目基本信息", "P01 项目工作进度计划", "P01 经费使用安排", "P04 其他部门申报立项",
      "P05 匹配资金情况", "P06 所在单位党委意见", "P07 项目成员及分工", "P08 最终成果和考核指标",
      "P12 创新工作和技术路线", "P17 归口推荐单位意见", "P18 项目其他信息"},
     commonPlan},
    {5,
     personsSets,
     {"P01 项目基本信息", "P01 经费使用安排", "P04 其他部门申报立项", "P05 匹配资金情况",
      "P06 所在单位党委意见", "P13 E类项目情况", "P17 归口推荐单位意见"},
     commonPlan},
    {6,
     {"B01 单位基本情况", "B02 人才培养投入"},
     {"P01 项目基本信息", "P06 所在单位党委意见", "C01 集体项目基本情况", "C02 参加单位职责分工",
      "C03 主要成员及分工", "P01 项目总体经费使用…", "C05 工作规划管理方案", "C06 工作进度和考核指标",
      "C07 重点培养人员情况"},
     {"P01 项目基本信息", "Plan1 项目进度计划", "Plan2 购置仪器设备", "Plan3 材料、试验耗材",
      "Plan4 科研业务费用", "Plan5 学术活动等费用"}},
    {7,
     {"A01 人员基本信息", "A02 主要学习经历", "A09 获奖成果", "A10 创新点及主要业绩", "A11 职业技能竞赛",
      "A12 职业工作经历"},
     {"P01 项目基本信息", "P01 项目工作进度计划", "P01 经费使用安排", "P04 其他部门申报立项",
      "P05 匹配资金情况", "P06 所在单位党委意见", "P07 项目成员及分工", "P08 最终成果和考核指标",
      "P14 技能学习或竞赛", "P15 技术技法研究", "P16 组建工作室", "P17 归口推荐单位意见", "P18 项目其他信息"},
     commonPlan},
}};

class MenuOf : public testing::TestWithParam<MenuOfType> {
protected:
    MenuOf() {
        buildCatalogue(database.engine());
        addGroups(menu);
        composeMenu(menu, GetParam().type);
    }

    [[nodiscard]] static bool collective() { return GetParam().type == 6; }

    TestDatabase database;
    ui::VerticalMenu menu{"VMenu1"};
};

TEST_P(MenuOf, TheTypeHasItsPersonGroup) { EXPECT_EQ(itemsOf(menu, 1), GetParam().person); }
TEST_P(MenuOf, TheTypeHasItsProjectGroup) { EXPECT_EQ(itemsOf(menu, 2), GetParam().project); }
TEST_P(MenuOf, TheTypeHasItsPlanGroup) { EXPECT_EQ(itemsOf(menu, 3), GetParam().plan); }

TEST_P(MenuOf, TheTypeHasTheProgressTablesOfItsLetter) {
    EXPECT_EQ(itemsOf(menu, 4), collective() ? collectiveReports : reports);
}

TEST_P(MenuOf, TheTypeHasTheClosingTablesOfItsLetterAndTheProject) {
    EXPECT_EQ(itemsOf(menu, 5), collective() ? collectiveClosing : closing);
}

TEST_P(MenuOf, TheTypeTakesEightStatementsInTheOrderOfTheGroups) {
    const auto& said = database.statements();
    ASSERT_EQ(said.size(), 8U);
    const std::int32_t type = GetParam().type;
    const std::string own = "select * from TS_SetCustomize where DmCod='0" + std::to_string(type) + "'";
    const std::string plan =
        std::string("select * from TS_SetCustomize where DmCod='0") + (type == 1   ? "1'"
                                                                       : type == 6 ? "6'"
                                                                                   : "2'");
    EXPECT_EQ(said[0], own);
    EXPECT_EQ(said[2], own);
    EXPECT_EQ(said[4], plan);
    for (const std::size_t list : {1U, 3U, 5U}) {
        EXPECT_TRUE(said[list].starts_with("SELECT * FROM s_infotable where tblname in ('")) << said[list];
        EXPECT_TRUE(said[list].ends_with("') order by otherprop")) << said[list];
    }
    EXPECT_EQ(said[6], collective() ? "SELECT * FROM s_infotable where tblname like 'M%' order by otherprop"
                                    : "SELECT * FROM s_infotable where tblname like 'E%' order by otherprop");
    EXPECT_EQ(said[7],
              collective()
                  ? "SELECT * FROM s_infotable where tblname like 'N%' or tblname='P01' order by otherprop"
                  : "SELECT * FROM s_infotable where tblname like 'F%' or tblname='P01' order by otherprop");
}

INSTANTIATE_TEST_SUITE_P(Menu, MenuOf, testing::ValuesIn(menus),
                         [](const auto& row) { return "Type" + std::to_string(row.param.type); });

// The menu on the window.

using WindowMenu = RegisterTest;

TEST(WindowMenuDesign, HasFiveGroupsWithTheirPlaceholders) {
    const frmPersonWh designed;
    const auto& groups = designed.menu().groups();
    ASSERT_EQ(groups.size(), 5U);
    const std::array<std::pair<const char*, std::size_t>, 5> expected{
        {{"基本信息", 50}, {"项目信息", 30}, {"计划信息", 20}, {"进展信息", 20}, {"结题信息", 20}}};
    for (std::size_t group = 0; group < expected.size(); ++group) {
        EXPECT_EQ(groups[group].caption, expected[group].first);
        EXPECT_EQ(groups[group].items.size(), expected[group].second);
    }
}

TEST_F(WindowMenu, HoldsAllFiveGroupsWhateverTheWindowIsOpenedFor) {
    addPerson(somePerson, "秦志明");
    for (const std::int16_t operationType : std::array<std::int16_t, 6>{1, 2, 3, 4, 7, -5}) {
        run(operationType, somePerson, 2, [&](frmPersonWh& shown) {
            EXPECT_EQ(itemsOf(shown.menu(), 1), menus[1].person) << operationType;
            EXPECT_EQ(itemsOf(shown.menu(), 2), menus[1].project) << operationType;
            EXPECT_EQ(itemsOf(shown.menu(), 3), menus[1].plan) << operationType;
            EXPECT_EQ(itemsOf(shown.menu(), 4), reports) << operationType;
            EXPECT_EQ(itemsOf(shown.menu(), 5), closing) << operationType;
        });
    }
}

TEST_F(WindowMenu, IsComposedAnewAtEveryOpening) {
    addPerson(somePerson, "秦志明");
    run(4, somePerson, 2);
    database.run("update TS_SetCustomize set PersonItem='A01,A10' where DmCod='02'");
    run(4, somePerson, 2, [](frmPersonWh& shown) {
        EXPECT_EQ(keysOf(shown.menu(), 1), (Items{"A01", "A10"}));
    });
}

TEST_F(WindowMenu, IsNotComposedAgainByASaveOrADelete) {
    addPerson(somePerson, "秦志明");
    person.expectBox("保存成功!", "提示");
    person.expectBox("此操作将删除此人所有信息，是否删除？", "信息维护", ui::Answer::Yes);
    run(4, somePerson, 2, [this](frmPersonWh&) {
        journal.clear();
        press("Save");
        press("Delete");
        EXPECT_EQ(journal.count("SQL select * from TS_SetCustomize"), 0);
        EXPECT_EQ(journal.count("SQL SELECT * FROM s_infotable"), 0);
    });
}

TEST_F(WindowMenu, GivesTheWindowNoTitle) {
    addPerson(somePerson, "秦志明");
    run(4, somePerson, 2, [](frmPersonWh& shown) {
        EXPECT_EQ(shown.Caption(), "信息维护");
        shown.menu().clickItem(1, 2);
        EXPECT_EQ(shown.Caption(), "信息维护");
    });
}

/// Clicks the item of group 2 that has this caption.
void clickProjectItem(frmPersonWh& window, std::string_view caption) {
    const auto& items = window.menu().groups()[1].items;
    const auto found = std::ranges::find(items, caption, &ui::VerticalMenu::Item::caption);
    ASSERT_NE(found, items.end()) << caption;
    ASSERT_TRUE(window.menu().clickItem(2, static_cast<int>(found - items.begin()) + 1));
}

TEST_F(WindowMenu, TheScheduleOpensItsOwnPanelByItsCaptionUnderType4) {
    addPerson(somePerson, "秦志明");
    run(4, somePerson, 4, [](frmPersonWh& shown) {
        clickProjectItem(shown, "项目工作进度计划");
        EXPECT_EQ(shown.menu().ItemKey(), "P01");
        EXPECT_EQ(panelName(), "A1ctrlUserP02_DG");
    });
}

TEST_F(WindowMenu, TheScheduleKeepsItsKeyAndOpensItsPanelByItUnderType2) {
    addPerson(somePerson, "秦志明");
    run(4, somePerson, 2, [](frmPersonWh& shown) {
        clickProjectItem(shown, "项目工作进度计划");
        EXPECT_EQ(shown.menu().ItemKey(), "P02");
        EXPECT_EQ(panelName(), "A1ctrlUserP02");
    });
}

TEST_F(WindowMenu, AHostsTypeOutside1To7FailsTheRun) {
    addPerson(somePerson, "秦志明");
    for (const std::int16_t type : std::array<std::int16_t, 3>{0, 8, -2}) {
        IUserCtrl host;
        give(host, 4, somePerson, type);
        EXPECT_EQ(failureOf([&] { (void)runUnseen(host); }), number(Failure::StatementFailed)) << type;
        EXPECT_FALSE(window().isLoaded());
    }
}

} // namespace

} // namespace quillmere::test
