#include "RowEditorBench.h"

namespace quillmere {
namespace {

struct FailureCase {
    const char* frame;
    const char* button;
    /// Boxes to fill, the one for a text first and the one for an amount, if there is one, second.
    std::vector<std::pair<const char*, const char*>> entries;
    const char* beginning;
    const char* title;
    const char* table;
};

const std::vector<FailureCase>& failureCases() {
    static const std::vector<FailureCase> all{
        {"1",
         "cmdOK",
         {{"txtC0401", "a"}, {"txtC0402", "1"}, {"txtC0406", "2026"}},
         "在保存集体资助的经费使用安排时出错，错误原因为：",
         "错误",
         "C04"},
        {"2",
         "cmdOK_t",
         {{"txtP0301_t", "a"}, {"txtP0302_t", "1"}},
         "在维护经费使用安排时出现错误，错误原因为：",
         "错误",
         "P03"},
        {"3",
         "cmdOK_q",
         {{"txtP0301_q", "a"}, {"txtP0302_q", "1"}, {"txtP0303_q", "b"}},
         "在维护经费使用安排时出现错误，错误原因为：",
         "错误",
         "P03"},
        {"4",
         "cmdOK_1",
         {{"txtP0203", "a"}, {"txtP0204", "b"}, {"txtP0201", "202601"}, {"txtP0202", "202602"}},
         "Quillmere(-2147217900) 发生错误 \r\n",
         "提示",
         "P02"},
    };
    return all;
}

using frmC04FailuresTest = test::RowEditorBench;

class frmC04FailureTest : public test::RowEditorBench, public testing::WithParamInterface<std::size_t> {
protected:
    void fill() {
        for (const auto& [box, text] : param.entries)
            enter({{box, text}});
    }

    const FailureCase& param = failureCases()[GetParam()];
};

INSTANTIATE_TEST_SUITE_P(Frames, frmC04FailureTest, testing::Range<std::size_t>(0, 4));

TEST_P(frmC04FailureTest, AFailingStatementIsToldAndLeavesTheEditorOpenWithItsInputs) {
    struct Step {
        std::int16_t mode;
        const char* part;
    };
    for (const Step& step : {Step{1, "select iif"}, Step{1, "insert into"}, Step{2, "update"}}) {
        editor.EditMode = step.mode;
        editor.SeqC0499 = editor.SeqP0399 = editor.SeqP0299 = "1";
        show(param.frame, [&](ui::Form&) {
            fill();
            db.failing().failOn(step.part, "broken");
            person.expectBox(std::string(param.beginning) + "broken", param.title);
            press(param.button);
            EXPECT_EQ(person.boxes().back().icon, ui::Icon::Error);
            EXPECT_TRUE(editor.isOpen());
            EXPECT_EQ(textOf(editor, param.entries.front().first), "a");
        });
    }
    EXPECT_EQ(db.cell("select count(*) from " + std::string(param.table)), "0");
}

TEST_P(frmC04FailureTest, AQuoteInATextBreaksTheStatementAndEndsInTheErrorBox) {
    show(param.frame, [&](ui::Form&) {
        fill();
        enter({{param.entries.front().first, "a'b"}});
        person.answerAnyBox(ui::Answer::No);
        press(param.button);
        ASSERT_EQ(person.boxes().size(), 1U);
        EXPECT_EQ(person.boxes().front().title, param.title);
        const std::string& text = person.boxes().front().text;
        const std::string beginning = param.beginning;
        if (beginning.starts_with("Quillmere"))
            EXPECT_NE(text.find("(-2147217900) 发生错误 \r\n"), std::string::npos) << text;
        else
            EXPECT_TRUE(text.starts_with(beginning)) << text;
        EXPECT_TRUE(editor.isOpen());
    });
    EXPECT_EQ(db.cell("select count(*) from " + std::string(param.table)), "0");
}

TEST_F(frmC04FailuresTest, AnAmountWithTwoPointsEndsInTheErrorBox) {
    for (const FailureCase& row : failureCases()) {
        if (row.table == std::string("P02")) continue;
        show(row.frame, [&](ui::Form&) {
            for (const auto& [box, text] : row.entries)
                enter({{box, text}});
            enter({{row.entries[1].first, "1.2.3"}});
            person.expectBox(std::string(row.beginning) + "类型不匹配", row.title);
            press(row.button);
            EXPECT_TRUE(editor.isOpen()) << row.frame;
        });
    }
    EXPECT_EQ(person.boxes().size(), 3U);
    EXPECT_TRUE(db.statements().empty());
}

TEST_F(frmC04FailuresTest, TheGenericBoxNamesSourceAndNumberOfTheFailure) {
    db.run("insert into P02 values('another','','','','',32767)");
    show("4", [&](ui::Form&) {
        enter(wholeStage);
        person.expectBox("Quillmere(6) 发生错误 \r\n溢出", "提示");
        press("cmdOK_1");
    });
}

} // namespace
} // namespace quillmere
