#include "RowGridBench.h"

#include "support/FailureNumber.h"

#include <algorithm>

namespace quillmere {
namespace {

using Texts = std::vector<std::string>;

/// One grid of one panel, with what belongs to it.
struct GridCase {
    const char* panel;
    const char* grid;
    const char* ending;
    const char* select;
    /// A row of the project, as the engine takes it, and the boxes that it fills.
    const char* insert;
    std::vector<std::pair<const char*, const char*>> boxes;
    const char* cancel;
    const char* caption;
    const char* remove;
    const char* bindWords;
    const char* removeWords;
};

const std::vector<GridCase>& grids() {
    static const std::vector<GridCase> all{
        {"A1ctrlUserP02_DG",
         "DGItems_1",
         "",
         "select P0299 as 序号,P0201 as 计划阶段起始年月,P0202 as 计划阶段截止年月,P0203 as 主要工作内容,"
         "P0204 as 考核指标成果 from P02 where A00='p1' order by P0299",
         "insert into P02 values('p1','2026-01','2026-12','work','target',5)",
         {{"txtP0201", "2026年01月"},
          {"txtP0202", "2026年12月"},
          {"txtP0203", "work"},
          {"txtP0204", "target"}},
         "cmdExit_1",
         "申请资助项目进度计划",
         "delete from P02 where A00='p1' and P0299=5",
         "在申请资助项目进度计划的数据绑定的时候出错误，错误原因为：",
         "在删除申请资助项目进度计划时出错！出错原因为："},
        {"A1ctrlUserP03",
         "DGItems_1",
         "",
         "select P0399 as 序号,P0301 as 预算支出科目,P0302 as 金额（万元） from P03 where A00='p1' "
         "order by P0399",
         "insert into P03 values('p1','subject','12.5','',6)",
         {{"txtP0301_t", "subject"}, {"txtP0302_t", "12.5"}},
         "cmdExit_t",
         "申请资助经费预算",
         "delete from P03 where A00='p1' and P0399=6",
         "在经费使用安排的数据绑定的时候出错误，错误原因为：",
         "在删除经费使用安排数据时出错！出错原因为："},
        {"A1ctrlUserP03",
         "DGItems_q",
         "_q",
         "select P0399 as 序号,P0301 as 用途,P0302 as 预算金额（万元）,P0303 as 经费来源 from P03 where "
         "A00='p1' order by P0399",
         "insert into P03 values('p1','purpose','12.5','source',7)",
         {{"txtP0301_q", "purpose"}, {"txtP0302_q", "12.5"}, {"txtP0303_q", "source"}},
         "cmdExit_q",
         "项目总体经费使用安排",
         "delete from P03 where A00='p1' and P0399=7",
         "在经费使用安排的数据绑定的时候出错误，错误原因为：",
         "在删除经费使用安排数据时出错！出错原因为："},
        {"A1ctrlUserC04",
         "DGItems_1",
         "",
         "select C0499 as 序号,C0401 as 用途,C0402 as 资金预算（万元）,C0403 as 资助款,C0404 as "
         "单位匹配款,C0405 as 其他,C0406 as 用款年度 from C04 where A00='p1' order by C0499",
         "insert into C04 values('p1','purpose','1','2','3','4','2026',8)",
         {{"txtC0401", "purpose"},
          {"txtC0402", "1"},
          {"txtC0403", "2"},
          {"txtC0404", "3"},
          {"txtC0405", "4"},
          {"txtC0406", "2026"}},
         "cmdExit",
         "项目总体经费使用安排",
         "delete from C04 where A00='p1' and C0499=8",
         "在申请资助项目进度计划的数据绑定的时候出错误，错误原因为：",
         "在删除经费使用安排数据时出错！出错原因为："},
    };
    return all;
}

class RowGridPanelTest : public test::RowGridBench, public testing::WithParamInterface<std::size_t> {
protected:
    // The grid in question is the one on the screen.
    RowGridPanelTest() { gZZType = std::string(param.ending) == "_q" ? 4 : 1; }

    std::string button(const char* stem) const { return std::string(stem) + param.ending; }
    ui::DataGrid& grid() const { return test::controlOf<ui::DataGrid>(window, param.grid); }

    /// The editor of this grid for the project, which adds in mode 1 and modifies in mode 2.
    void expectEditor(const ui::Form& form, int mode) const {
        const auto& editor = dynamic_cast<const frmC04&>(form);
        EXPECT_EQ(editor.Caption(), param.caption);
        EXPECT_EQ(editor.KeyA00, "p1");
        EXPECT_EQ(editor.EditMode, mode);
    }

    const GridCase& param = grids()[GetParam()];
    static constexpr const char* question = "您确认删除当前数据吗 ？";
};

INSTANTIATE_TEST_SUITE_P(All, RowGridPanelTest, testing::Range<std::size_t>(0, 4), [](const auto& testCase) {
    const GridCase& row = grids()[testCase.param];
    return std::string(row.panel).substr(10) + "_" + row.grid;
});

TEST_P(RowGridPanelTest, ItsButtonsAreCaptionedAddModifyAndDelete) {
    open(param.panel);
    const auto caption = [&](const char* stem) {
        return test::controlOf<ui::CommandButton>(window, button(stem)).Caption();
    };
    EXPECT_EQ(caption("cmdAdd"), "增加");
    EXPECT_EQ(caption("cmdModify"), "修改");
    EXPECT_EQ(caption("cmdDel"), "删除");
}

TEST_P(RowGridPanelTest, FillingThePanelBindsTheGridAndHidesItsFirstColumn) {
    db.run(param.insert);
    open(param.panel);
    const auto& sent = db.statements();
    EXPECT_EQ(std::ranges::count(sent, param.select), 1);
    ASSERT_EQ(grid().rowCount(), 1U);
    EXPECT_FALSE(grid().columns().front().visible);
    for (std::size_t i = 1; i < grid().columns().size(); ++i)
        EXPECT_TRUE(grid().columns()[i].visible) << i;
}

TEST_P(RowGridPanelTest, SetDGItemsDoesNothing) {
    A1ctrlUser& panel = open(param.panel);
    db.clearStatements();
    const auto source = grid().DataSource();
    panel.setDGItems();
    EXPECT_TRUE(db.statements().empty());
    EXPECT_EQ(grid().DataSource(), source);
    EXPECT_EQ(panel.AdodcRs(), nullptr);
    EXPECT_EQ(panel.find("DGItems"), nullptr);
}

TEST_P(RowGridPanelTest, OnAnEmptyGridModifyAndDeleteDoNothingAndSayNothing) {
    open(param.panel);
    db.clearStatements();
    click(button("cmdModify"));
    click(button("cmdDel"));
    EXPECT_TRUE(db.statements().empty());
    EXPECT_TRUE(person.boxes().empty());
    EXPECT_EQ(person.opened(), (Texts{"window", "window"}));
}

TEST_P(RowGridPanelTest, AddingOpensAnEmptyEditorForTheProject) {
    db.run(param.insert);
    open(param.panel);
    person.onForm([&](ui::Form& form) {
        expectEditor(form, 1);
        for (const auto& [box, text] : param.boxes) {
            const auto* masked = dynamic_cast<const ui::MaskEdBox*>(form.find(box));
            EXPECT_EQ(textOf(form, box), masked == nullptr ? "" : masked->emptyText()) << box;
        }
    });
    click(button("cmdAdd"));
}

TEST_P(RowGridPanelTest, ModifyingFillsTheEditorFromTheRowOnShow) {
    db.run(param.insert);
    open(param.panel);
    person.onForm([&](ui::Form& form) {
        expectEditor(form, 2);
        EXPECT_EQ(focus(), param.boxes.front().first);
        for (const auto& [box, text] : param.boxes)
            EXPECT_EQ(textOf(form, box), text) << box;
    });
    click(button("cmdModify"));
}

TEST_P(RowGridPanelTest, CancelAfterModifyRebindsTheGridAllTheSame) {
    db.run(param.insert);
    open(param.panel);
    db.clearStatements();
    inEditor({}, param.cancel);
    click(button("cmdModify"));
    EXPECT_EQ(db.statements(), (Texts{param.select}));
    EXPECT_FALSE(grid().columns().front().visible);
}

TEST_P(RowGridPanelTest, ClosingTheEditorByItsFrameRebindsTheGridToo) {
    open(param.panel);
    db.clearStatements();
    person.onForm([](ui::Form&) {});
    click(button("cmdAdd"));
    EXPECT_EQ(db.statements(), (Texts{param.select}));
}

TEST_P(RowGridPanelTest, DeletingAsksAndLeavesTheRowOnNo) {
    db.run(param.insert);
    open(param.panel);
    db.clearStatements();
    person.expectBox(question, "注意", ui::Answer::No);
    click(button("cmdDel"));
    EXPECT_EQ(person.boxes().back().buttons, ui::Buttons::YesNo);
    EXPECT_TRUE(db.statements().empty());
}

TEST_P(RowGridPanelTest, DeletingOnYesRemovesTheRowAndRebindsTheGrid) {
    db.run(param.insert);
    open(param.panel);
    db.clearStatements();
    person.expectBox(question, "注意", ui::Answer::Yes);
    click(button("cmdDel"));
    EXPECT_EQ(db.statements(), (Texts{param.remove, param.select}));
    EXPECT_EQ(grid().rowCount(), 0U);
}

TEST_P(RowGridPanelTest, AFailingDeletionIsToldAndLeavesTheGrid) {
    db.run(param.insert);
    open(param.panel);
    db.failing().failOn("delete", "broken");
    person.expectBox(question, "注意", ui::Answer::Yes);
    person.expectBox(std::string(param.removeWords) + "broken", "注意");
    click(button("cmdDel"));
    EXPECT_EQ(person.boxes().back().icon, ui::Icon::Warning);
    EXPECT_EQ(grid().rowCount(), 1U);
}

TEST_P(RowGridPanelTest, AFailingBindingIsToldAndTheGridKeepsItsRows) {
    db.run(param.insert);
    A1ctrlUser& panel = open(param.panel);
    db.failing().failOn(param.select, "broken");
    person.expectBox(std::string(param.bindWords) + "broken", "错误");
    panel.setCtrl(test::itemsOf(panel.row()));
    EXPECT_EQ(person.boxes().back().icon, ui::Icon::Error);
    EXPECT_EQ(grid().rowCount(), 1U);
}

TEST_P(RowGridPanelTest, RowsDoNotMarkThePanelAsChanged) {
    db.run(param.insert);
    const A1ctrlUser& panel = open(param.panel);
    person.onForm([](ui::Form&) {});
    click(button("cmdAdd"));
    person.expectBox(question, "注意", ui::Answer::Yes);
    click(button("cmdDel"));
    EXPECT_FALSE(panel.WhInfo.IsChange);
}

TEST_P(RowGridPanelTest, AFailureWhileAddingIsToldInTheGenericBoxButOnTheFundingPlan) {
    open(param.panel);
    person.onForm([](ui::Form&) { throw Error(Failure::Overflow); });
    const auto adding = [&] { click(button("cmdAdd")); };
    if (param.panel == std::string("A1ctrlUserC04")) {
        EXPECT_EQ(failureOf(adding), number(Failure::Overflow));
        return;
    }
    person.expectBox("Quillmere(6) 发生错误 \r\n溢出", "提示");
    adding();
    EXPECT_EQ(person.boxes().back().icon, ui::Icon::Error);
}

TEST_P(RowGridPanelTest, AFailureWhileModifyingGoesToWhoeverClicked) {
    db.run(param.insert);
    open(param.panel);
    person.onForm([](ui::Form&) { throw Error(Failure::Overflow); });
    EXPECT_EQ(failureOf([&] { click(button("cmdModify")); }), number(Failure::Overflow));
}

using ScheduleGridTest = test::RowGridBench;

TEST_F(ScheduleGridTest, TheSecondRowIsEditedWhenTheGridStandsOnIt) {
    db.run("insert into P02 values('p1','2026-01','2026-02','a','b',3)");
    db.run("insert into P02 values('p1','2026-03','2026-04','c','d',9)");
    open("A1ctrlUserP02_DG");
    person.onForm([&](ui::Form& form) {
        EXPECT_EQ(dynamic_cast<const frmC04&>(form).SeqP0299, "9");
        EXPECT_EQ(textOf(form, "txtP0203"), "c");
    });
    person.show(window, [&](ui::Form& form) {
        test::controlOf<ui::DataGrid>(form, "DGItems_1").clickRow(2);
        form.click(test::controlOf<ui::CommandButton>(form, "cmdModify"));
    });
}

TEST_F(ScheduleGridTest, AStoredTextThatIsNoMonthGoesIntoTheBoxAsItIs) {
    db.run("insert into P02 values('p1','soon',null,'a','b',3)");
    open("A1ctrlUserP02_DG");
    person.onForm([&](ui::Form& form) {
        EXPECT_EQ(textOf(form, "txtP0201"), "soon");
        EXPECT_EQ(textOf(form, "txtP0202"), "");
    });
    click("cmdModify");
}

} // namespace
} // namespace quillmere
