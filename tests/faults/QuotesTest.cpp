#include "faults/RunTest.h"
#include "platform/ui/CommandButton.h"
#include "support/TestDatabase.h"

// Texts that would end the statement around them: a statement that a quote breaks is a failure that is told,
// and never another statement.

namespace quillmere::test {
namespace {

class Quotes : public RunTest {
protected:
    Quotes() { makeSmallRegister(database.engine()); }

    /// Pastes, since a panel swallows the typed quote.
    static void paste(ui::Form& form, std::string_view widget, std::string_view text) {
        ASSERT_TRUE(form.moveFocus(*form.findDeep(widget)));
        form.selectAll();
        form.paste(text);
    }

    TestDatabase database;
};

constexpr const char* endings[] = {
    "x'", "x' --", "x' /*", "x'; delete from A01; --", "x'; delete from A01", "x');delete from P02"};

TEST_F(Quotes, InTheNameOfANewPersonFailInTheQuestionForTheName) {
    const Lines before = allRows(database.engine());
    for (const char* ending : endings) {
        person.forget();
        person.answerAnyBox(ui::Answer::No);
        run(
            database.connection(),
            [&](frmPersonWh& window) {
                paste(window, "A01_A0101_v", ending);
                press(window, "Save");
            },
            0);
        ASSERT_EQ(person.boxes().size(), 1U) << ending;
        EXPECT_EQ(person.boxes()[0].title, saveTitle) << ending;
        EXPECT_TRUE(person.boxes()[0].text.starts_with("语句执行失败：")) << person.boxes()[0].text;
        EXPECT_EQ(allRows(database.engine()), before) << ending;
    }
}

TEST_F(Quotes, InARowOfTheScheduleEndInTheErrorBoxAndChangeNoRow) {
    for (const char* id : {thePerson.data(), theUnit.data()})
        database.run("insert into P02 (A00,P0299,P0201,P0202,P0203,P0204) values ('" + std::string(id) +
                     "',1,'2026-01','2026-06','试制','样机')");
    const Lines before = allRows(database.engine());
    person.answerAnyBox(ui::Answer::No);
    for (const char* ending : endings) {
        for (const char* button : {"cmdAdd", "cmdModify"}) {
            person.forget();
            run(
                database.connection(),
                [&](frmPersonWh& window) {
                    open(window, "项目工作进度计划");
                    person.onForm(
                        [&](ui::Form& editor) {
                            type(editor, "txtP0201", "202701");
                            type(editor, "txtP0202", "202706");
                            type(editor, "txtP0203", "试验");
                            paste(editor, "txtP0204", ending);
                            paste(editor, "txtP0203", ending);
                            editor.click(controlOf<ui::CommandButton>(editor, "cmdOK_1"));
                            EXPECT_TRUE(editor.isOpen()) << ending;
                        },
                        "frmC04");
                    ASSERT_TRUE(window.click(controlOf<ui::CommandButton>(window, button)));
                },
                4, 4);
            ASSERT_EQ(person.boxes().size(), 1U) << ending;
            EXPECT_EQ(person.boxes()[0].title, "提示") << ending;
            EXPECT_EQ(allRows(database.engine()), before) << ending << " by " << button;
        }
    }
}

} // namespace
} // namespace quillmere::test
