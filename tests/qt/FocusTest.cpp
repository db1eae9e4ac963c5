#include "platform/ui/CheckBox.h"
#include "platform/ui/CommandButton.h"
#include "platform/ui/Form.h"
#include "platform/ui/Frame.h"
#include "platform/ui/TextBox.h"
#include "platform/ui/Toolbar.h"
#include "platform/ui/UserControl.h"
#include "qt/RealPerson.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QToolButton>

namespace quillmere::test {

namespace {

constexpr auto refusal = "数据有误！";

/// Two boxes and one of everything that can be pressed. The first box may refuse to be left.
class FocusForm : public ui::Form {
public:
    FocusForm()
        : Form("frmPersonWh", "焦点")
        , bar(add<ui::Toolbar>("TbMain"))
        , area(add<ui::Frame>("frmCtrl"))
        , panel(add<ui::UserControl>("ctlPanel"))
        , first(panel.add<ui::TextBox>("T_1_v"))
        , second(panel.add<ui::TextBox>("T_2_v"))
        , check(panel.add<ui::CheckBox>("T_3_v"))
        , button(panel.add<ui::CommandButton>("cmdGo", "执行(&G)")) {
        panel.setContainer(&area);
        panel.setVisible(true);
        bar.addButton("Save", "保存(&S)");
        bar.addButton("Add", "增加(&N)").setEnabled(false);
        bar.ButtonClick.connect(
            [this](ui::Toolbar::Button& pressed) { log.push_back("toolbar " + pressed.Key()); });
        button.Click.connect([this] { log.emplace_back("button"); });
        first.Validate.connect([this](bool& cancel) { validate(cancel); });
        first.LostFocus.connect([this] { log.emplace_back("left 1"); });
        second.GotFocus.connect([this] { log.emplace_back("got 2"); });
    }

    ui::Toolbar& bar;
    ui::Frame& area;
    ui::UserControl& panel;
    ui::TextBox& first;
    ui::TextBox& second;
    ui::CheckBox& check;
    ui::CommandButton& button;

    /// Refuses to leave the first box, with a message box where `tells` is set.
    bool refuses = false;
    bool tells = false;
    std::vector<std::string> log;

private:
    void validate(bool& cancel) {
        log.emplace_back("validate");
        if (!refuses) return;
        if (tells) (void)ui::desktop().msgBox({refusal, "错误信息", ui::Buttons::Ok, ui::Icon::None});
        cancel = true;
    }
};

using Log = std::vector<std::string>;

class FocusTest : public testing::Test {
protected:
    /// Works with the focus in the first box and an empty log.
    void run(const std::function<void()>& work) {
        screen.show(form, [&](ui::Form&) {
            form.first.SetFocus();
            ASSERT_TRUE(focusComesTo("T_1_v"));
            form.log.clear();
            work();
        });
    }

    /// Refuses from now on, and tells each time.
    void refuse(int messages) {
        form.refuses = true;
        form.tells = true;
        for (int i = 0; i < messages; ++i)
            screen.person.expectBox(refusal, "错误信息", i % 2 == 0 ? Press::EnterKey : Press::Ok);
    }

    void expectStillInFirst() {
        EXPECT_TRUE(focusComesTo("T_1_v"));
        settle();
        EXPECT_EQ("T_1_v", focusedName());
        EXPECT_EQ(&form.first, form.ActiveControl());
    }

    FocusForm form;
    Screen screen;
};

} // namespace

TEST_F(FocusTest, ARefusedTabStaysWithOneQuestionAndOneMessage) {
    run([&] {
        refuse(1);
        pressKey(Qt::Key_Tab);
        expectStillInFirst();
        EXPECT_EQ(Log{"validate"}, form.log);
        typeKeys("x");
        EXPECT_EQ("x", form.first.Text());
        form.refuses = false;
    });
}

TEST_F(FocusTest, ARefusedClickIntoAnotherBoxStaysWithOneQuestionAndOneMessage) {
    run([&] {
        refuse(1);
        clickOn(widgetNamed("T_2_v"));
        expectStillInFirst();
        EXPECT_EQ(Log{"validate"}, form.log);
        form.refuses = false;
    });
}

TEST_F(FocusTest, EachRefusedTryAsksOnceMore) {
    run([&] {
        refuse(3);
        clickOn(widgetNamed("T_2_v"));
        expectStillInFirst();
        pressKey(Qt::Key_Tab);
        expectStillInFirst();
        pressKey(Qt::Key_Tab, Qt::ShiftModifier);
        expectStillInFirst();
        EXPECT_EQ((Log{"validate", "validate", "validate"}), form.log);
        form.refuses = false;
    });
}

TEST_F(FocusTest, ARefusedPressDoesNotPressTheButton) {
    run([&] {
        refuse(1);
        clickOn(widgetNamed("cmdGo"));
        expectStillInFirst();
        EXPECT_EQ(Log{"validate"}, form.log);
        form.refuses = false;
        clickOn(widgetNamed("cmdGo"));
        ASSERT_FALSE(form.log.empty());
        EXPECT_EQ("button", form.log.back());
    });
}

TEST_F(FocusTest, TheShortcutOfAButtonAsksToo) {
    run([&] {
        refuse(1);
        pressShortcut(Qt::Key_G);
        // Qt shows the button pressed for a moment before it clicks.
        ASSERT_TRUE(waitUntil([&] { return !form.log.empty(); }));
        expectStillInFirst();
        EXPECT_EQ(Log{"validate"}, form.log);
        form.refuses = false;
        pressShortcut(Qt::Key_G);
        EXPECT_TRUE(waitUntil([&] { return form.log.back() == "button"; }));
    });
}

TEST_F(FocusTest, ARefusedPressDoesNotToggleTheCheckBox) {
    run([&] {
        refuse(1);
        clickOn(widgetNamed("T_3_v"));
        expectStillInFirst();
        EXPECT_EQ(0, form.check.Value());
        EXPECT_FALSE(widgetNamed<QCheckBox>("T_3_v").isChecked());
        form.refuses = false;
        clickOn(widgetNamed("T_3_v"));
        EXPECT_EQ(1, form.check.Value());
        EXPECT_TRUE(widgetNamed<QCheckBox>("T_3_v").isChecked());
        pressKey(Qt::Key_Space);
        EXPECT_EQ(0, form.check.Value());
    });
}

TEST_F(FocusTest, AToolbarButtonTakesNoFocusAndAsksNobody) {
    run([&] {
        form.refuses = true;
        clickOn(widgetNamed("TbMain_Save"));
        expectStillInFirst();
        EXPECT_EQ(Log{"toolbar Save"}, form.log);
        form.refuses = false;
    });
}

TEST_F(FocusTest, TheShortcutOfAToolbarButtonPressesIt) {
    run([&] {
        pressShortcut(Qt::Key_S);
        ASSERT_TRUE(waitUntil([&] { return !form.log.empty(); }));
        EXPECT_EQ(Log{"toolbar Save"}, form.log);
    });
}

TEST_F(FocusTest, ADisabledToolbarButtonDoesNothingUntilItIsEnabled) {
    run([&] {
        auto& button = widgetNamed<QToolButton>("TbMain_Add");
        EXPECT_FALSE(button.isEnabled());
        clickOn(button);
        EXPECT_EQ(Log{}, form.log);
        form.bar.Buttons("Add").setEnabled(true);
        EXPECT_TRUE(button.isEnabled());
        clickOn(button);
        EXPECT_EQ(Log{"toolbar Add"}, form.log);
    });
}

TEST_F(FocusTest, AnotherWindowRaisesNoFocusEvents) {
    run([&] {
        QWidget& window = windowNamed("frmPersonWh");
        QWidget other;
        other.setAttribute(Qt::WA_QuitOnClose, false);
        other.setWindowModality(Qt::ApplicationModal);
        other.show();
        other.activateWindow();
        ASSERT_TRUE(waitUntil([&] { return other.isActiveWindow(); }));
        other.hide();
        window.activateWindow();
        expectStillInFirst();
        EXPECT_EQ(Log{}, form.log);
    });
}

TEST_F(FocusTest, WhatQtMovesByItselfIsPutBack) {
    run([&] {
        widgetNamed("T_2_v").setFocus();
        expectStillInFirst();
        EXPECT_EQ(Log{}, form.log);
    });
}

TEST_F(FocusTest, MovingOnRaisesEachEventOnceInItsOrder) {
    run([&] {
        pressKey(Qt::Key_Tab);
        ASSERT_TRUE(focusComesTo("T_2_v"));
        EXPECT_EQ((Log{"validate", "left 1", "got 2"}), form.log);
    });
}

TEST_F(FocusTest, TabGoesInTheOrderOfTheModelAndBack) {
    form.first.setTabIndex(1);
    form.second.setTabIndex(3);
    form.check.setTabIndex(2);
    form.button.setTabIndex(4);
    run([&] {
        for (const char* next : {"T_3_v", "T_2_v", "cmdGo", "T_1_v"}) {
            pressKey(Qt::Key_Tab);
            EXPECT_TRUE(focusComesTo(next)) << next;
        }
        pressKey(Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_TRUE(focusComesTo("cmdGo"));
    });
}

TEST_F(FocusTest, TabPassesOverWhatIsHiddenOrDisabled) {
    form.second.setVisible(false);
    form.check.setEnabled(false);
    run([&] {
        pressKey(Qt::Key_Tab);
        EXPECT_TRUE(focusComesTo("cmdGo"));
    });
}

TEST_F(FocusTest, AFocusedBoxThatIsDisabledLosesTheFocusWithoutAQuestion) {
    run([&] {
        form.refuses = true;
        form.first.setEnabled(false);
        settle();
        EXPECT_EQ(nullptr, form.ActiveControl());
        EXPECT_NE("T_1_v", focusedName());
        EXPECT_EQ(Log{}, form.log);
        pressKey(Qt::Key_Tab);
        EXPECT_TRUE(focusComesTo("T_2_v"));
    });
}

TEST_F(FocusTest, ADisabledFrameDisablesWhatStandsOnIt) {
    run([&] {
        form.area.setEnabled(false);
        EXPECT_FALSE(widgetNamed("T_2_v").isEnabled());
        clickOn(widgetNamed("cmdGo"));
        EXPECT_EQ(Log{}, form.log);
        form.area.setEnabled(true);
        EXPECT_TRUE(widgetNamed("T_2_v").isEnabled());
    });
}

TEST_F(FocusTest, AFieldThatIsRemovedInItsOwnEventLeavesNothingBehind) {
    run([&] {
        form.first.KeyPress.connect([&](char32_t&) { form.panel.removeAll(); });
        typeKeys("x");
        settle();
        EXPECT_EQ(nullptr, form.ActiveControl());
        EXPECT_TRUE(windowNamed("frmPersonWh").findChildren<QLineEdit*>().isEmpty());
    });
}

TEST_F(FocusTest, AFieldThatIsAddedLaterShowsAndWorks) {
    run([&] {
        auto& late = form.panel.add<ui::TextBox>("T_9_v");
        late.setTabIndex(9);
        clickOn(widgetNamed("T_9_v"));
        ASSERT_TRUE(focusComesTo("T_9_v"));
        typeKeys("晚");
        EXPECT_EQ("晚", late.Text());
    });
}

} // namespace quillmere::test
