#include "platform/ui/CheckBox.h"
#include "platform/ui/CommandButton.h"
#include "platform/ui/DataGrid.h"
#include "platform/ui/Frame.h"
#include "platform/ui/Label.h"
#include "platform/ui/TabStrip.h"
#include "platform/ui/TextBox.h"
#include "platform/ui/UserControl.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace quillmere::ui {
namespace {

using Names = std::vector<std::string>;

class TabOrderTest : public testing::Test {
protected:
    TextBox& box(std::string name, int tabIndex) {
        auto& added = form.add<TextBox>(std::move(name));
        added.setTabIndex(tabIndex);
        return added;
    }

    void onOpenForm(const std::function<void()>& work) {
        person.show(form, [&](Form&) { work(); });
    }

    [[nodiscard]] Names stops() const {
        Names names;
        for (const Control* control : form.tabOrder())
            names.push_back(control->name());
        return names;
    }

    /// Where the focus is after each of so many presses.
    Names tabs(int presses, int state = shift::None) {
        Names names;
        for (int i = 0; i < presses; ++i) {
            form.pressKey({key::Tab, state});
            names.push_back(form.ActiveControl() == nullptr ? "" : form.ActiveControl()->name());
        }
        return names;
    }

    test::ScriptedPerson person;
    Form form{"frmTab", "tab"};
};

TEST_F(TabOrderTest, AControlsTabIndexIsItsPlaceAtFirst) {
    auto& label = form.add<Label>("label");
    auto& text = form.add<TextBox>("text");
    EXPECT_EQ(label.TabIndex(), 0);
    EXPECT_EQ(text.TabIndex(), 1);
}

TEST_F(TabOrderTest, TabFollowsTabIndexAndWraps) {
    box("c", 3);
    box("a", 1);
    box("b", 2);
    onOpenForm([&] { EXPECT_EQ(tabs(4), (Names{"a", "b", "c", "a"})); });
}

TEST_F(TabOrderTest, ShiftTabGoesBackAndWraps) {
    box("c", 3);
    box("a", 1);
    box("b", 2);
    onOpenForm([&] { EXPECT_EQ(tabs(4, shift::Shift), (Names{"c", "b", "a", "c"})); });
}

TEST_F(TabOrderTest, EqualTabIndexesKeepTheOrderOfAdding) {
    box("first", 5);
    box("second", 5);
    box("before", 4);
    onOpenForm([&] { EXPECT_EQ(stops(), (Names{"before", "first", "second"})); });
}

TEST_F(TabOrderTest, SkipsWhatIsInvisibleDisabledNoStopOrTakesNoFocus) {
    box("a", 0);
    box("invisible", 1).setVisible(false);
    box("disabled", 2).setEnabled(false);
    box("noStop", 3).setTabStop(false);
    form.add<Label>("label").setTabIndex(4);
    box("b", 5);
    onOpenForm([&] {
        EXPECT_EQ(stops(), (Names{"a", "b"}));
        EXPECT_EQ(tabs(3), (Names{"a", "b", "a"}));
    });
}

TEST_F(TabOrderTest, SkipsAGridWithoutRowsToShowAndWhatStandsInAHiddenFrame) {
    box("a", 0);
    form.add<DataGrid>("gridWithoutSource");
    auto& frame = form.add<Frame>("frame");
    form.add<TextBox>("inHiddenFrame").setContainer(&frame);
    form.add<TextBox>("b");
    frame.setVisible(false);
    onOpenForm([&] { EXPECT_EQ(stops(), (Names{"a", "b"})); });
}

TEST_F(TabOrderTest, PassesOverThePagesBehind) {
    auto& strip = form.add<TabStrip>("strip", Names{"一", "二"});
    for (int page = 0; page < 2; ++page) {
        auto& onPage = form.add<TextBox>("page" + std::to_string(page));
        onPage.setContainer(&strip);
        onPage.setPage(page);
    }
    onOpenForm([&] {
        EXPECT_EQ(stops(), (Names{"strip", "page0"}));
        strip.setTab(1);
        EXPECT_EQ(stops(), (Names{"strip", "page1"}));
    });
}

TEST_F(TabOrderTest, TabGoesOnFromAFieldThatIsNoStopItself) {
    box("a", 0);
    auto& between = box("between", 1);
    between.setTabStop(false);
    box("b", 2);
    onOpenForm([&] {
        ASSERT_TRUE(form.moveFocus(between));
        EXPECT_EQ(tabs(1), Names{"b"});
        ASSERT_TRUE(form.moveFocus(between));
        EXPECT_EQ(tabs(1, shift::Shift), Names{"a"});
    });
}

TEST_F(TabOrderTest, AlsoFromTheLastAndTheFirstWhenTheyAreNoStops) {
    auto& front = box("front", 0);
    front.setTabStop(false);
    box("a", 1);
    box("b", 2);
    auto& last = box("last", 3);
    last.setTabStop(false);
    onOpenForm([&] {
        ASSERT_TRUE(form.moveFocus(last));
        EXPECT_EQ(tabs(1), Names{"a"});
        ASSERT_TRUE(form.moveFocus(front));
        EXPECT_EQ(tabs(1, shift::Shift), Names{"b"});
    });
}

TEST_F(TabOrderTest, WithoutAnyStopNothingHappens) {
    form.add<Label>("label");
    onOpenForm([&] {
        EXPECT_EQ(stops(), Names{});
        EXPECT_EQ(tabs(1), Names{""});
    });
}

TEST_F(TabOrderTest, TheOnlyStopKeepsTheFocusWithoutAnEvent) {
    auto& only = box("only", 0);
    int events = 0;
    only.Validate.connect([&](bool&) { ++events; });
    only.LostFocus.connect([&] { ++events; });
    onOpenForm([&] {
        EXPECT_EQ(tabs(3), (Names{"only", "only", "only"}));
        EXPECT_EQ(events, 0);
    });
}

TEST_F(TabOrderTest, CtrlTabIsNoTab) {
    auto& a = box("a", 0);
    box("b", 1);
    onOpenForm([&] {
        ASSERT_TRUE(form.moveFocus(a));
        EXPECT_EQ(tabs(1, shift::Ctrl), Names{"a"});
    });
}

TEST_F(TabOrderTest, ASwallowedTabStays) {
    auto& a = box("a", 0);
    box("b", 1);
    a.KeyDown.connect([](int& code, int) { code = 0; });
    onOpenForm([&] { EXPECT_EQ(tabs(2), (Names{"a", "a"})); });
}

TEST_F(TabOrderTest, ThePanelsFieldsStandWhereThePanelStands) {
    box("before", 0);
    auto& panel = form.add<UserControl>("panel");
    panel.setTabIndex(1);
    panel.setVisible(true);
    // A panel counts its own fields from 0.
    panel.add<TextBox>("inner1").setTabIndex(1);
    panel.add<CheckBox>("inner0").setTabIndex(0);
    box("after", 2);
    onOpenForm([&] {
        EXPECT_EQ(tabs(5), (Names{"before", "inner0", "inner1", "after", "before"}));
        EXPECT_EQ(tabs(3, shift::Shift), (Names{"after", "inner1", "inner0"}));
    });
}

TEST_F(TabOrderTest, AnInvisibleOrDisabledPanelTakesItsFieldsAlong) {
    box("before", 0);
    auto& panel = form.add<UserControl>("panel");
    auto& inner = panel.add<TextBox>("inner");
    onOpenForm([&] {
        EXPECT_EQ(stops(), Names{"before"});
        panel.setVisible(true);
        EXPECT_EQ(stops(), (Names{"before", "inner"}));
        ASSERT_TRUE(form.moveFocus(inner));
        panel.setEnabled(false);
        EXPECT_EQ(stops(), Names{"before"});
        EXPECT_EQ(form.ActiveControl(), nullptr);
    });
}

} // namespace
} // namespace quillmere::ui
