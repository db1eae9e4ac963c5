#include "panels/PanelBench.h"
#include "support/FailureNumber.h"

namespace quillmere {
namespace {

class SetDGItemsTest : public test::PanelBench {
protected:
    static ui::DataGrid& grid(const A1ctrlUser& panel) { return on<ui::DataGrid>(panel, "DGItems"); }
};

constexpr auto gridSqlOfT =
    "select T.T01 as 名称, T.T02 as 说明, T.T03 as 是否, T.T99 as 序号 from T Where T.A00='p1' order by T99";

TEST_F(SetDGItemsTest, TheCatalogueThenTheGridThenTheFirstRecordIsRead) {
    prepare(setRow).setDGItems();
    ASSERT_EQ(db.statements().size(), 5U);
    EXPECT_TRUE(db.statements()[0].starts_with("select itemname,itemdesc,"));
    EXPECT_EQ(db.statements()[1], gridSqlOfT);
    EXPECT_TRUE(db.statements()[2].starts_with("select itemdesc from s_infoitem"));
    EXPECT_EQ(db.statements()[3], " select * from s_infoitem  where tblname ='T'");
    EXPECT_EQ(db.statements()[4], "select * from T where a00 ='p1' and T99=1");
}

TEST_F(SetDGItemsTest, ForAPersonWithoutRowsTheBlankSetIsReadInstead) {
    prepare(setRow, "p2").setDGItems();
    ASSERT_EQ(db.statements().size(), 3U);
    EXPECT_EQ(db.statements()[2], " select * from s_infoitem  where tblname ='T'");
}

TEST_F(SetDGItemsTest, AnEmptyPersonGivesAnEmptyGrid) {
    A1ctrlUser& panel = prepare(setRow, "");
    panel.setDGItems();
    EXPECT_EQ(grid(panel).rowCount(), 0U);
    EXPECT_NE(db.statements()[1].find(" Where T.A00='' "), std::string::npos);
}

TEST_F(SetDGItemsTest, WithoutATableNothingIsDone) {
    A1ctrlUser& panel = prepare(setRow);
    panel.WhInfo.TabId.clear();
    panel.setDGItems();
    EXPECT_TRUE(db.statements().empty());
    EXPECT_EQ(panel.AdodcRs(), nullptr);
}

TEST_F(SetDGItemsTest, TheGridShowsTheRowsUnderTheirDescriptions) {
    A1ctrlUser& panel = open(setRow);
    ASSERT_EQ(grid(panel).columns().size(), 4U);
    EXPECT_EQ(grid(panel).columns()[1].heading, "说明");
    EXPECT_EQ(grid(panel).rowCount(), 3U);
    EXPECT_EQ(grid(panel).cellText(1, 0), "second");
    EXPECT_EQ(grid(panel).currentRow(), 1);
    EXPECT_EQ(grid(panel).DataSource(), panel.AdodcRs());
}

TEST_F(SetDGItemsTest, TheColumnsGetTheirWidths) {
    db.run("update s_infoitem set FldWidth = null where ItemName = 'T02'");
    db.run("update s_infoitem set FldWidth = 350 where ItemName = 'T99'");
    A1ctrlUser& panel = open(setRow);
    EXPECT_EQ(grid(panel).columns()[0].width, 1000);
    EXPECT_EQ(grid(panel).columns()[1].width, 2000);
    EXPECT_EQ(grid(panel).columns()[3].width, 350);
}

TEST_F(SetDGItemsTest, ColumnsOfNumbersStandAtTheRight) {
    db.run("update s_infoitem set [Check] = 'N 12,2' where ItemName = 'T01'");
    db.run("update s_infoitem set FieldType = 'int' where ItemName = 'T99'");
    for (const char* id : {"p1", "p2"}) {
        A1ctrlUser& panel = prepare(setRow, id);
        panel.setDGItems();
        const auto& columns = grid(panel).columns();
        EXPECT_EQ(columns[0].alignment, ui::Alignment::Right) << id;
        EXPECT_EQ(columns[1].alignment, ui::Alignment::Left) << id;
        EXPECT_EQ(columns[3].alignment, ui::Alignment::Right) << id;
    }
}

TEST_F(SetDGItemsTest, TheGridShowsOnMultiRecordSetsOnly) {
    A1ctrlUser& panel = prepare(setRow);
    panel.WhInfo.IsMult = false;
    panel.setDGItems();
    EXPECT_FALSE(grid(panel).Visible());
    panel.WhInfo.IsMult = true;
    panel.setDGItems();
    EXPECT_TRUE(grid(panel).Visible());
}

TEST_F(SetDGItemsTest, OneMembersGridKeepsItsVisibility) {
    static constexpr PanelRow fixedRow{.className = "A1ctrlUserT",
                                       .widgetTable = "T",
                                       .title = "测试",
                                       .fields = fields,
                                       .gridFollowsSet = false};
    A1ctrlUser& panel = prepare(fixedRow);
    panel.WhInfo.IsMult = false;
    panel.setDGItems();
    EXPECT_TRUE(grid(panel).Visible());
}

TEST_F(SetDGItemsTest, OneMemberAsksTheCatalogueUnderItsOwnAliases) {
    static constexpr PanelRow aliasedRow{.className = "A1ctrlUserT",
                                         .widgetTable = "T",
                                         .title = "测试",
                                         .fields = fields,
                                         .aliasedGridCatalogue = true};
    prepare(aliasedRow).setDGItems();
    EXPECT_NE(db.statements()[0].find(" as Acodetable ,"), std::string::npos);
    EXPECT_EQ(db.statements()[1], gridSqlOfT);
}

TEST_F(SetDGItemsTest, OnAPanelWithGridsOfItsOwnItIsEmpty) {
    static constexpr PanelRow ownRow{
        .className = "A1ctrlUserT", .widgetTable = "T", .title = "测试", .fields = fields, .hasGrid = false};
    A1ctrlUser& panel = prepare(ownRow);
    panel.setDGItems();
    EXPECT_TRUE(db.statements().empty());
    EXPECT_EQ(panel.AdodcRs(), nullptr);
}

TEST_F(SetDGItemsTest, ACodedValueWithoutAMatchShowsAnEmptyCellAndKeepsItsRow) {
    db.createCodeTable("ZW", "", {}, {{.dmcod = "a", .dmcpt = "处长"}, {.dmcod = "b", .dmcpt = "科长"}});
    db.run("update s_infoitem set CodeTable = 'ZW' where ItemName = 'T02'");
    A1ctrlUser& panel = open(setRow);
    ASSERT_EQ(grid(panel).rowCount(), 3U);
    EXPECT_EQ(grid(panel).cellText(0, 1), "处长");
    EXPECT_EQ(grid(panel).cellText(2, 0), "third");
    EXPECT_EQ(grid(panel).cellText(2, 1), "");
    EXPECT_EQ(textOf(panel, "T_T02_v"), "处长");
    EXPECT_TRUE(on<ui::TextBox>(panel, "T_T02_v").Locked());
}

TEST_F(SetDGItemsTest, TwoFieldsOnOneCodeTableShowTheirOwnNames) {
    db.createCodeTable("ZW", "", {}, {{.dmcod = "a", .dmcpt = "处长"}, {.dmcod = "first", .dmcpt = "首位"}});
    db.run("update s_infoitem set CodeTable = 'ZW' where ItemName in ('T01','T02')");
    A1ctrlUser& panel = open(setRow);
    EXPECT_EQ(grid(panel).cellText(0, 0), "首位");
    EXPECT_EQ(grid(panel).cellText(0, 1), "处长");
}

TEST_F(SetDGItemsTest, AnEmptyCatalogueFailsInOpeningTheGrid) {
    A1ctrlUser& panel = prepare(setRow);
    db.run("delete from s_infoitem");
    EXPECT_EQ(failureOf([&] { panel.setDGItems(); }), number(Failure::StatementFailed));
    ASSERT_EQ(db.statements().size(), 2U);
    EXPECT_EQ(db.statements()[1], "");
    EXPECT_EQ(panel.AdodcRs()->State(), 0);
}

TEST_F(SetDGItemsTest, ADescriptionThatIsNoAliasFailsTheGrid) {
    db.run("update s_infoitem set ItemDesc = '名 称' where ItemName = 'T01'");
    A1ctrlUser& panel = prepare(setRow);
    EXPECT_EQ(failureOf([&] { panel.setDGItems(); }), number(Failure::StatementFailed));
}

TEST_F(SetDGItemsTest, AfterAFailedRebuildMovesInTheOldGridNoLongerReachThePanel) {
    A1ctrlUser& panel = open(setRow);
    const auto old = panel.AdodcRs();
    db.failing().failOn(" Where T.A00=", "down");
    EXPECT_EQ(failureOf([&] { panel.setDGItems(); }), number(Failure::StatementFailed));
    db.clearStatements();
    grid(panel).GotFocus.raise();
    panel.WhInfo.IsChange = true;
    EXPECT_EQ(failureOf([&] { old->MoveNext(); }), std::nullopt);
    EXPECT_TRUE(db.statements().empty());
    EXPECT_EQ(textOf(panel, "T_T01_v"), "first");
}

TEST_F(SetDGItemsTest, AFailingCatalogueLeavesTheOldGridAndStopsItsLoading) {
    A1ctrlUser& panel = open(setRow);
    const auto old = panel.AdodcRs();
    db.failing().failOn("fldorder", "down");
    EXPECT_EQ(failureOf([&] { panel.setDGItems(); }), number(Failure::StatementFailed));
    EXPECT_EQ(panel.AdodcRs(), old);
    panel.AdodcRs()->MoveNext();
    EXPECT_EQ(textOf(panel, "T_T01_v"), "first");
}

TEST_F(SetDGItemsTest, EveryRebuildBringsANewRecordset) {
    A1ctrlUser& panel = open(setRow);
    const auto old = panel.AdodcRs();
    db.run("delete from T where T99 = 3");
    panel.setDGItems();
    EXPECT_NE(panel.AdodcRs(), old);
    EXPECT_EQ(grid(panel).rowCount(), 2U);
}

TEST_F(SetDGItemsTest, ARebuildOverUnsavedEditsAsksAndKeepsThemOnNo) {
    A1ctrlUser& panel = open(setRow);
    on<ui::TextBox>(panel, "T_T01_v").setText("edited");
    person.expectBox("数据已被修改并未保存，是否继续？", "", ui::Answer::No);
    panel.setDGItems();
    EXPECT_EQ(textOf(panel, "T_T01_v"), "edited");
    EXPECT_TRUE(panel.WhInfo.IsChange);
}

TEST_F(SetDGItemsTest, TheRecordIsUnchangedAfterwards) {
    EXPECT_FALSE(open(setRow).WhInfo.IsChange);
    EXPECT_FALSE(open(setRow, "p2").WhInfo.IsChange);
}

} // namespace
} // namespace quillmere
