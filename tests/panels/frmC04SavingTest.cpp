#include "RowEditorBench.h"

namespace quillmere {
namespace {

using Texts = std::vector<std::string>;
using frmC04SavingTest = test::RowEditorBench;

// Checks.

TEST_F(frmC04SavingTest, AStageIsCheckedInThisOrder) {
    show("4", [&](ui::Form&) {
        expectRefusal({}, "cmdOK_1", "请输入计划阶段起始年月！", ui::Icon::Information, "txtP0201");
        expectRefusal({wholeStage[0]}, "cmdOK_1", "请输入计划阶段截止年月！", ui::Icon::Warning, "txtP0202");
        expectRefusal({wholeStage[1]}, "cmdOK_1", "请输入主要工作内容！", ui::Icon::Information, "txtP0203");
        expectRefusal({wholeStage[2], {"txtP0204", "  "}}, "cmdOK_1", "请输入考核指标、成果！",
                      ui::Icon::Information, "txtP0204");
    });
    EXPECT_TRUE(db.statements().empty());
}

TEST_F(frmC04SavingTest, AStageMayEndBeforeItStarts) {
    show("4", [&](ui::Form&) {
        enter(wholeStage);
        enter({{"txtP0202", "199901"}});
        press("cmdOK_1");
    });
    EXPECT_EQ(db.cell("select P0201||P0202 from P02"), "2026-011999-01");
}

TEST_F(frmC04SavingTest, ABudgetRowBySubjectIsCheckedInThisOrder) {
    show("2", [&](ui::Form&) {
        expectRefusal({}, "cmdOK_t", "请输入预算支出科目！", ui::Icon::Information, "txtP0301_t");
        expectRefusal({{"txtP0301_t", "a"}, {"txtP0302_t", " "}}, "cmdOK_t", "请输入金额！",
                      ui::Icon::Warning, "txtP0302_t");
        expectRefusal({{"txtP0302_t", "100000000"}}, "cmdOK_t", "金额的整数位数不能超过８位！",
                      ui::Icon::Warning, "txtP0302_t");
    });
    EXPECT_TRUE(db.statements().empty());
}

TEST_F(frmC04SavingTest, ABudgetRowByPurposeIsCheckedInThisOrder) {
    show("3", [&](ui::Form&) {
        expectRefusal({}, "cmdOK_q", "请输入用途！", ui::Icon::Information, "txtP0301_q");
        expectRefusal({{"txtP0301_q", "a"}}, "cmdOK_q", "请输入金额！", ui::Icon::Warning, "txtP0302_q");
        expectRefusal({{"txtP0302_q", "100000000"}}, "cmdOK_q", "金额的整数位数不能超过８位！",
                      ui::Icon::Warning, "txtP0302_q");
        expectRefusal({{"txtP0302_q", "1"}}, "cmdOK_q", "请输入经费来源！", ui::Icon::Information,
                      "txtP0303_q");
    });
    EXPECT_TRUE(db.statements().empty());
}

TEST_F(frmC04SavingTest, ARowOfTheFundingPlanIsCheckedInThisOrder) {
    const auto refuse = [&](const std::vector<Entry>& entries, const char* message, const char* focused) {
        expectRefusal(entries, "cmdOK", message, ui::Icon::Warning, focused);
    };
    show("1", [&](ui::Form&) {
        refuse({}, "请您输入用途！", "txtC0401");
        refuse({{"txtC0401", "a"}}, "请您输入预算金额！", "txtC0402");
        refuse({{"txtC0402", "100000000"}}, "预算金额的整数位数不能超过８位！", "txtC0402");
        refuse({{"txtC0402", "1"},
                {"txtC0403", "100000000"},
                {"txtC0404", "100000000"},
                {"txtC0405", "100000000"}},
               "请您输入用款年度！", "txtC0401");
        refuse({{"txtC0406", "2026"}}, "资助款金额的整数位数不能超过８位！", "txtC0403");
        refuse({{"txtC0403", "1"}}, "单位匹配款金额的整数位数不能超过８位！", "txtC0404");
        refuse({{"txtC0404", "1"}}, "其他金额的整数位数不能超过８位！", "txtC0405");
    });
    EXPECT_TRUE(db.statements().empty());
}

TEST_F(frmC04SavingTest, AnUnfilledYearIsNoDateAndTheFocusLandsOnThePurpose) {
    show("1", [&](ui::Form&) {
        EXPECT_EQ(textOf(editor, "txtC0406"), "____");
        expectRefusal({wholePlan[0], wholePlan[1]}, "cmdOK", "请您输入用款年度！", ui::Icon::Warning,
                      "txtC0401");
    });
}

TEST_F(frmC04SavingTest, AnAmountOf99999999IsAcceptedAndOneOf99999999Point01Refused) {
    struct AmountCase {
        const char* frame;
        const char* box;
        const char* button;
        const char* message;
        std::vector<Entry> others;
    };
    const AmountCase cases[] = {
        {"1", "txtC0402", "cmdOK", "预算金额的整数位数不能超过８位！", wholePlan},
        {"1", "txtC0403", "cmdOK", "资助款金额的整数位数不能超过８位！", wholePlan},
        {"1", "txtC0404", "cmdOK", "单位匹配款金额的整数位数不能超过８位！", wholePlan},
        {"1", "txtC0405", "cmdOK", "其他金额的整数位数不能超过８位！", wholePlan},
        {"2", "txtP0302_t", "cmdOK_t", "金额的整数位数不能超过８位！", {{"txtP0301_t", "a"}}},
        {"3",
         "txtP0302_q",
         "cmdOK_q",
         "金额的整数位数不能超过８位！",
         {{"txtP0301_q", "a"}, {"txtP0303_q", "b"}}},
    };
    for (const AmountCase& row : cases) {
        show(row.frame, [&](ui::Form&) {
            enter(row.others);
            expectRefusal({{row.box, "99999999.01"}}, row.button, row.message, ui::Icon::Warning, row.box);
            enter({{row.box, "99999999"}});
            press(row.button);
            EXPECT_FALSE(editor.isLoaded()) << row.box;
        });
    }
}

// Writing.

TEST_F(frmC04SavingTest, OnAnEmptyTableTheFirstRowGetsNumber1) {
    show("4", [&](ui::Form&) {
        enter(wholeStage);
        press("cmdOK_1");
    });
    EXPECT_EQ(db.statements(), (Texts{"select iif(max(P0299) is null,0,max(P0299)) from P02  ",
                                      "insert into P02 (A00,P0201,P0202,P0203,P0204,P0299) "
                                      "values('p1','2026-01','2026-02','work','target',1)"}));
}

TEST_F(frmC04SavingTest, NumbersRunOverTheWholeTableAndNotOverOneProject) {
    db.run("insert into C04 values('another','a','1','','','','2026',41)");
    show("1", [&](ui::Form&) {
        enter(wholePlan);
        press("cmdOK");
    });
    EXPECT_EQ(db.cell("select C0499 from C04 where A00='p1'"), "42");
}

TEST_F(frmC04SavingTest, ANumberBehind32767OverflowsAndLeavesTheEditorOpen) {
    db.run("insert into P03 values('another','a','1','',32766)");
    const std::vector<Entry> row{{"txtP0301_t", "a"}, {"txtP0302_t", "1"}};
    show("2", [&](ui::Form&) {
        enter(row);
        press("cmdOK_t");
    });
    EXPECT_EQ(db.cell("select max(P0399) from P03"), "32767");
    show("2", [&](ui::Form&) {
        enter(row);
        person.expectBox("在维护经费使用安排时出现错误，错误原因为：溢出", "错误");
        press("cmdOK_t");
        EXPECT_TRUE(editor.isOpen());
    });
    EXPECT_EQ(db.cell("select count(*) from P03"), "2");
}

TEST_F(frmC04SavingTest, OptionalAmountsLeftEmptyAreStoredAsEmptyTexts) {
    show("1", [&](ui::Form&) {
        enter(wholePlan);
        press("cmdOK");
    });
    EXPECT_EQ(db.cell("select C0403||'|'||C0404||'|'||C0405 from C04"), "||");
}

TEST_F(frmC04SavingTest, InAnyOtherModeNothingIsWrittenAndTheEditorCloses) {
    editor.EditMode = 3;
    show("4", [&](ui::Form&) {
        enter(wholeStage);
        press("cmdOK_1");
        EXPECT_FALSE(editor.isLoaded());
    });
    show("2", [&](ui::Form&) {
        enter({{"txtP0301_t", "a"}, {"txtP0302_t", "1"}});
        press("cmdOK_t");
        EXPECT_FALSE(editor.isLoaded());
    });
    EXPECT_TRUE(db.statements().empty());
}

} // namespace
} // namespace quillmere
