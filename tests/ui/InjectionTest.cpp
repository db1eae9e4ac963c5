#include "platform/ui/CommandButton.h"
#include "platform/ui/TextBox.h"
#include "support/FailureNumber.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace quillmere::ui {
namespace {

using Log = std::vector<std::string>;

class InjectionTest : public testing::Test {
protected:
    InjectionTest() {
        first.KeyDown.connect([this](int& code, int state) { note("first", code, state); });
        second.KeyDown.connect([this](int& code, int state) { note("second", code, state); });
    }

    void note(const std::string& name, int code, int state) {
        log.push_back(name + " " + std::to_string(code) + (state == shift::Shift ? " shift" : ""));
    }

    void onOpenForm(const std::function<void()>& work) {
        person.show(form, [&](Form&) {
            ASSERT_TRUE(form.moveFocus(first));
            log.clear();
            work();
        });
    }

    test::ScriptedPerson person;
    Form form{"frmKeys", "keys"};
    TextBox& first = form.add<TextBox>("first");
    TextBox& second = form.add<TextBox>("second");
    CommandButton& button = form.add<CommandButton>("button");
    Log log;
};

TEST_F(InjectionTest, KeysRunAfterTheRunningEventHasEnded) {
    button.Click.connect([&] {
        first.SetFocus();
        desktop().sendKeys("{tab}");
        EXPECT_TRUE(first.hasFocus());
        log.push_back("end of event");
    });
    onOpenForm([&] {
        form.click(button);
        EXPECT_EQ(log, (Log{"end of event", "first 9"}));
        EXPECT_TRUE(second.hasFocus());
    });
}

TEST_F(InjectionTest, SequencesRunInTheOrderOfInjection) {
    second.setText("abcd");
    second.setSelection(2, 0);
    button.Click.connect([&] {
        first.SetFocus();
        desktop().sendKeys("{tab}");
        desktop().sendKeys("{Home}+{End}");
    });
    onOpenForm([&] {
        form.click(button);
        EXPECT_EQ(log, (Log{"first 9", "second 36", "second 35 shift"}));
        EXPECT_EQ(second.SelStart(), 0U);
        EXPECT_EQ(second.SelLength(), 4U);
    });
}

TEST_F(InjectionTest, KeysSelectTheContentOfTheNextField) {
    second.setText("张三丰");
    first.KeyPress.connect([](char32_t& character) {
        character = 0;
        desktop().sendKeys("{tab}");
        desktop().sendKeys("{Home}+{End}");
    });
    onOpenForm([&] {
        form.typeCharacter(U'x');
        EXPECT_TRUE(second.hasFocus());
        EXPECT_EQ(second.SelStart(), 0U);
        EXPECT_EQ(second.SelLength(), 3U);
    });
}

TEST_F(InjectionTest, KeysOfANestedOperationWaitForTheOuterOne) {
    button.Click.connect([&] {
        form.perform([&] { desktop().sendKeys("{home}"); });
        log.push_back("outer");
        first.SetFocus();
    });
    onOpenForm([&] {
        form.click(button);
        EXPECT_EQ(log, (Log{"outer", "first 36"}));
    });
}

TEST_F(InjectionTest, AKeyInjectedByAnInjectedKeyRunsAfterTheOnesThatWait) {
    bool once = true;
    first.KeyDown.connect([&](int&, int) {
        if (once) desktop().sendKeys("{left}");
        once = false;
    });
    onOpenForm([&] {
        desktop().sendKeys("{home}{end}");
        EXPECT_EQ(log, (Log{"first 36", "first 35", "first 37"}));
    });
}

TEST_F(InjectionTest, OutsideAnyEventTheyRunAtOnce) {
    onOpenForm([&] {
        desktop().sendKeys("{tab}");
        EXPECT_TRUE(second.hasFocus());
    });
}

TEST_F(InjectionTest, AFocusSetByProgramOutsideAnyEventLetsItsHandlersEndFirst) {
    second.GotFocus.connect([&] {
        desktop().sendKeys("{home}");
        log.push_back("end of GotFocus");
    });
    onOpenForm([&] {
        second.SetFocus();
        EXPECT_EQ(log, (Log{"end of GotFocus", "second 36"}));
    });
}

TEST_F(InjectionTest, KeysGoToTheFormInFront) {
    Form dialog("frmDialog", "dialog");
    auto& inner = dialog.add<TextBox>("inner");
    inner.KeyDown.connect([&](int& code, int state) { note("inner", code, state); });
    onOpenForm([&] {
        person.show(dialog, [&](Form&) {
            dialog.moveFocus(inner);
            desktop().sendKeys("{end}");
        });
        desktop().sendKeys("{home}");
        EXPECT_EQ(log, (Log{"inner 35", "first 36"}));
    });
}

TEST_F(InjectionTest, WithoutAFormTheyGoNowhere) {
    desktop().sendKeys("{tab}");
    onOpenForm([&] { EXPECT_TRUE(first.hasFocus()); });
    EXPECT_EQ(log, Log{});
}

TEST_F(InjectionTest, ASequenceThatIsNotUnderstoodInjectsNothing) {
    onOpenForm([&] {
        EXPECT_EQ(failureOf([] { desktop().sendKeys("{tab}{nokey}"); }), number(Failure::InvalidCall));
        EXPECT_TRUE(first.hasFocus());
    });
}

TEST_F(InjectionTest, KeysForAFormThatClosesAreForgotten) {
    button.Click.connect([&] {
        first.SetFocus();
        desktop().sendKeys("{home}");
        form.unload();
    });
    onOpenForm([&] { form.click(button); });
    EXPECT_EQ(log, Log{});
    onOpenForm([&] { form.typeCharacter(U'a'); });
    EXPECT_EQ(log, Log{});
}

TEST_F(InjectionTest, KeysOfAnOperationThatFailsAreForgotten) {
    button.Click.connect([&] {
        first.SetFocus();
        desktop().sendKeys("{home}");
        throw std::runtime_error("click");
    });
    onOpenForm([&] {
        EXPECT_THROW(form.click(button), std::runtime_error);
        form.moveFocus(second);
    });
    EXPECT_EQ(log, Log{});
}

TEST_F(InjectionTest, AnInjectedTabIsRefusedByAValidateLikeAnyOther) {
    first.Validate.connect([](bool& cancel) { cancel = true; });
    onOpenForm([&] {
        desktop().sendKeys("{tab}{home}");
        EXPECT_EQ(log, (Log{"first 9", "first 36"}));
        EXPECT_TRUE(first.hasFocus());
    });
}

} // namespace
} // namespace quillmere::ui
