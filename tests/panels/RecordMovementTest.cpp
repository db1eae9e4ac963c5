#include "panels/PanelBench.h"
#include "support/FailureNumber.h"

namespace quillmere {
namespace {

using Statements = std::vector<std::string>;

constexpr auto question = "数据已被修改并未保存，是否继续？";
constexpr auto descriptionSql = "select itemdesc from s_infoitem where itemdesc <>'' and  tblname = 'T' and "
                                "itemname = 'T99' ";
constexpr auto catalogueSql = " select * from s_infoitem  where tblname ='T'";

using ArrivalTest = test::PanelBench;

TEST_F(ArrivalTest, AnArrivalReadsTheNumbersColumnThenTheCatalogueThenTheRecord) {
    A1ctrlUser& panel = open(setRow);
    panel.AdodcRs()->MoveNext();
    EXPECT_EQ(db.statements(),
              (Statements{descriptionSql, catalogueSql, "select * from T where a00 ='p1' and T99=2"}));
}

TEST_F(ArrivalTest, AnArrivalFillsTheWidgetsAndNamesTheRecord) {
    A1ctrlUser& panel = open(setRow);
    panel.AdodcRs()->MoveNext();
    EXPECT_EQ(panel.WhInfo.id, 2);
    EXPECT_EQ(panel.FieldItems->Item("T_T01").code(), "second");
    EXPECT_EQ(textOf(panel, "T_T01_v"), "second");
    EXPECT_EQ(textOf(panel, "T_T02_v"), "b");
    EXPECT_EQ(on<ui::CheckBox>(panel, "T_T03_v").Value(), 1);
}

TEST_F(ArrivalTest, AnArrivalNamesTheOperationAndEnablesAddAndDeleteOnly) {
    A1ctrlUser& panel = prepare(setRow);
    panel.setDGItems();
    EXPECT_EQ(on<ui::Label>(panel, "labOpt").Caption(), "当前操作：修改 ");
    EXPECT_TRUE(window.toolbarButton("Add").Enabled());
    EXPECT_TRUE(window.toolbarButton("Delete").Enabled());
    EXPECT_FALSE(window.toolbarButton("Save").Enabled());
    EXPECT_TRUE(window.clicked.empty());
}

TEST_F(ArrivalTest, WithoutADescriptionOfTheNumberEveryRowShowsEmptyFields) {
    db.run("update s_infoitem set ItemDesc = '' where ItemName = 'T99'");
    A1ctrlUser& panel = prepare(setRow);
    panel.WhInfo.id = 7;
    on<ui::Label>(panel, "labOpt").setCaption("as it was");
    panel.setDGItems();
    db.clearStatements();
    panel.AdodcRs()->MoveNext();
    EXPECT_EQ(db.statements(), (Statements{descriptionSql, catalogueSql}));
    EXPECT_EQ(panel.FieldItems->Count(), 4);
    EXPECT_EQ(textOf(panel, "T_T01_v"), "");
    EXPECT_EQ(panel.WhInfo.id, 7);
    EXPECT_EQ(on<ui::Label>(panel, "labOpt").Caption(), "as it was");
    EXPECT_FALSE(window.toolbarButton("Add").Enabled());
    EXPECT_FALSE(window.toolbarButton("Delete").Enabled());
}

TEST_F(ArrivalTest, ANumberBelow1ShowsEmptyFields) {
    db.run("update T set T99 = 0 where T01 = 'second'");
    A1ctrlUser& panel = open(setRow);
    ASSERT_EQ(panel.AdodcRs()->AbsolutePosition(), 1);
    EXPECT_EQ(textOf(panel, "T_T01_v"), "");
    EXPECT_EQ(panel.WhInfo.id, 0);
    panel.AdodcRs()->MoveNext();
    EXPECT_EQ(textOf(panel, "T_T01_v"), "first");
}

TEST_F(ArrivalTest, ANumberOver32767FailsOnReadingIt) {
    A1ctrlUser& panel = prepare(setRow);
    db.run("update T set T99 = 32768 where T01 = 'third'");
    panel.setDGItems();
    panel.AdodcRs()->MoveNext();
    EXPECT_EQ(failureOf([&] { panel.AdodcRs()->MoveNext(); }), number(Failure::Overflow));
}

TEST_F(ArrivalTest, TheNumber32767IsStillRead) {
    db.run("update T set T99 = 32767 where T01 = 'third'");
    A1ctrlUser& panel = open(setRow);
    panel.AdodcRs()->MoveLast();
    EXPECT_EQ(panel.WhInfo.id, 32767);
}

TEST_F(ArrivalTest, ANullNumberFailsOnReadingIt) {
    db.run("update T set T99 = null where T01 = 'second'");
    A1ctrlUser& panel = prepare(setRow);
    EXPECT_EQ(failureOf([&] { panel.setDGItems(); }), number(Failure::InvalidUseOfNull));
}

TEST_F(ArrivalTest, WhileTheGridIsNotLiveNothingHappensAtAll) {
    A1ctrlUser& panel = open(setRow);
    stopLoading(panel);
    panel.AdodcRs()->MoveNext();
    EXPECT_EQ(panel.AdodcRs()->AbsolutePosition(), 2);
    EXPECT_TRUE(db.statements().empty());
    EXPECT_EQ(textOf(panel, "T_T01_v"), "first");
    EXPECT_EQ(panel.WhInfo.id, 1);
}

TEST_F(ArrivalTest, TheGridTakingTheFocusMakesItLive) {
    A1ctrlUser& panel = open(setRow);
    stopLoading(panel);
    on<ui::DataGrid>(panel, "DGItems").GotFocus.raise();
    on<ui::DataGrid>(panel, "DGItems").LostFocus.raise();
    panel.AdodcRs()->MoveNext();
    EXPECT_EQ(textOf(panel, "T_T01_v"), "second");
}

TEST_F(ArrivalTest, AnArrivalTakesTheFocusOutOfTheGrid) {
    A1ctrlUser& panel = open(setRow);
    auto& grid = on<ui::DataGrid>(panel, "DGItems");
    person.show(window, [&](ui::Form& form) {
        EXPECT_TRUE(grid.clickRow(3));
        EXPECT_EQ(textOf(panel, "T_T01_v"), "third");
        EXPECT_EQ(form.ActiveControl(), panel.find("T_T01_v"));
    });
}

TEST_F(ArrivalTest, AnArrivalWithoutRecordsOnlySetsTheFocus) {
    A1ctrlUser& panel = open(setRow);
    auto& grid = on<ui::DataGrid>(panel, "DGItems");
    person.show(window, [&](ui::Form& form) {
        form.moveFocus(grid);
        const auto before = panel.FieldItems;
        panel.AdodcRs()->setFilter("名称=''");
        EXPECT_EQ(panel.AdodcRs()->RecordCount(), 0);
        EXPECT_TRUE(db.statements().empty());
        EXPECT_EQ(panel.FieldItems, before);
        EXPECT_EQ(textOf(panel, "T_T01_v"), "first");
        EXPECT_EQ(form.ActiveControl(), panel.find("T_T01_v"));
    });
}

TEST_F(ArrivalTest, AFailingStatementGoesToWhoeverMoved) {
    A1ctrlUser& panel = open(setRow);
    db.failing().failOn("T99=2", "down");
    EXPECT_EQ(failureOf([&] { panel.AdodcRs()->MoveNext(); }), number(Failure::StatementFailed));
    // What ran before the failure stays.
    EXPECT_EQ(panel.WhInfo.id, 2);
    EXPECT_EQ(textOf(panel, "T_T01_v"), "first");
}

TEST_F(ArrivalTest, AFieldThatTheCatalogueDoesNotHaveIsAFailureOfTheMove) {
    A1ctrlUser& panel = open(setRow);
    db.run("delete from s_infoitem where ItemName = 'T02'");
    EXPECT_EQ(failureOf([&] { panel.AdodcRs()->MoveNext(); }), number(Failure::InvalidCall));
    // The widgets keep what was written so far.
    EXPECT_EQ(textOf(panel, "T_T01_v"), "second");
    EXPECT_EQ(textOf(panel, "T_T02_v"), "a");
}

TEST_F(ArrivalTest, APersonWithoutRowsSeesABlankFieldSetAndTheOperationStays) {
    A1ctrlUser& panel = prepare(setRow, "p2");
    on<ui::Label>(panel, "labOpt").setCaption("当前操作：添加");
    on<ui::TextBox>(panel, "T_T01_v").setText("left over");
    panel.setDGItems();
    EXPECT_EQ(textOf(panel, "T_T01_v"), "");
    EXPECT_EQ(panel.FieldItems->Count(), 4);
    EXPECT_TRUE(panel.FieldItems->Item("T_T01").Dmcod.isNull());
    EXPECT_EQ(on<ui::Label>(panel, "labOpt").Caption(), "当前操作：添加");
    EXPECT_EQ(panel.WhInfo.id, 0);
    EXPECT_FALSE(window.toolbarButton("Add").Enabled());
}

using LeavingTest = test::PanelBench;

TEST_F(LeavingTest, AnUnchangedRowIsLeftWithoutAQuestion) {
    A1ctrlUser& panel = open(setRow);
    panel.AdodcRs()->MoveNext();
    EXPECT_TRUE(person.boxes().empty());
}

TEST_F(LeavingTest, AChangedRowAsksYesOrNoWithoutATitle) {
    A1ctrlUser& panel = open(setRow);
    panel.WhInfo.IsChange = true;
    person.expectBox(question, "", ui::Answer::Yes);
    panel.AdodcRs()->MoveNext();
    ASSERT_EQ(person.boxes().size(), 1U);
    EXPECT_EQ(person.boxes()[0].buttons, ui::Buttons::YesNo);
}

TEST_F(LeavingTest, AnsweringNoKeepsTheRowAndTheEdits) {
    A1ctrlUser& panel = open(setRow);
    on<ui::TextBox>(panel, "T_T01_v").setText("edited");
    ASSERT_TRUE(panel.WhInfo.IsChange);
    person.expectBox(question, "", ui::Answer::No);
    panel.AdodcRs()->MoveNext();
    EXPECT_EQ(panel.AdodcRs()->AbsolutePosition(), 1);
    EXPECT_TRUE(panel.WhInfo.IsChange);
    EXPECT_EQ(textOf(panel, "T_T01_v"), "edited");
    EXPECT_TRUE(db.statements().empty());
}

TEST_F(LeavingTest, AnsweringYesMovesOnAndDropsTheEditsUnsaved) {
    A1ctrlUser& panel = open(setRow);
    on<ui::TextBox>(panel, "T_T01_v").setText("edited");
    person.expectBox(question, "", ui::Answer::Yes);
    panel.AdodcRs()->MoveNext();
    EXPECT_EQ(textOf(panel, "T_T01_v"), "second");
    EXPECT_FALSE(panel.WhInfo.IsChange);
    EXPECT_EQ(db.column("select T01 from T order by T99"), (Statements{"first", "second", "third"}));
}

TEST_F(LeavingTest, AToggledCheckBoxCountsAsNoEdit) {
    A1ctrlUser& panel = open(setRow);
    person.show(window, [&](ui::Form& form) {
        form.click(*panel.find("T_T03_v"));
        EXPECT_EQ(on<ui::CheckBox>(panel, "T_T03_v").Value(), 1);
        EXPECT_FALSE(panel.WhInfo.IsChange);
        EXPECT_TRUE(on<ui::DataGrid>(panel, "DGItems").clickRow(2));
    });
    EXPECT_TRUE(person.boxes().empty());
    EXPECT_EQ(panel.WhInfo.id, 2);
}

TEST_F(LeavingTest, ATypedCharacterCountsAsAnEdit) {
    A1ctrlUser& panel = open(setRow);
    person.show(window, [&](ui::Form& form) {
        form.moveFocus(*panel.find("T_T01_v"));
        form.typeCharacter(U'x');
    });
    EXPECT_TRUE(panel.WhInfo.IsChange);
}

using SingleRecordTest = test::PanelBench;

TEST_F(SingleRecordTest, WithoutAGridRecordsetTheRecordKeysDoNothing) {
    A1ctrlUser& panel = prepare(setRow);
    panel.WhInfo.IsMult = false;
    panel.setCtrl(test::itemsOf(setRow));
    ASSERT_EQ(panel.AdodcRs(), nullptr);
    press(panel, 188);
    press(panel, 190);
    EXPECT_EQ(panel.AdodcRs(), nullptr);
    EXPECT_TRUE(db.statements().empty());
}

TEST_F(SingleRecordTest, WithoutAGridRecordsetThereIsNothingToCloseAtTheEnd) {
    A1ctrlUser& panel = prepare(setRow);
    panel.setCtrl(test::itemsOf(setRow));
    EXPECT_EQ(failureOf([&] { window.remove(window.Count() - 1); }), std::nullopt);
    EXPECT_EQ(window.find("A1ctrlUserT"), nullptr);
}

using TerminationTest = test::PanelBench;

TEST_F(TerminationTest, TheOpenRecordsetIsClosed) {
    const auto records = open(setRow).AdodcRs();
    ASSERT_EQ(records->State(), 1);
    window.remove(window.Count() - 1);
    EXPECT_EQ(records->State(), 0);
}

TEST_F(TerminationTest, AClosedRecordsetIsLeftAlone) {
    const auto records = open(setRow).AdodcRs();
    records->close();
    EXPECT_EQ(failureOf([&] { window.remove(window.Count() - 1); }), std::nullopt);
}

} // namespace
} // namespace quillmere
