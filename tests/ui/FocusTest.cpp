#include "platform/ui/CheckBox.h"
#include "platform/ui/CommandButton.h"
#include "platform/ui/DataGrid.h"
#include "platform/ui/Form.h"
#include "platform/ui/Frame.h"
#include "platform/ui/Label.h"
#include "platform/ui/TabStrip.h"
#include "platform/ui/TextBox.h"
#include "platform/ui/Toolbar.h"
#include "platform/ui/UserControl.h"
#include "platform/ui/VerticalMenu.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillmere::ui {
namespace {

using Texts = std::vector<std::string>;

/// Three text boxes "a", "b", "c" on a form, and a log of their focus events.
class FocusTest : public testing::Test {
protected:
    FocusTest() {
        for (TextBox* box : {&a, &b, &c}) {
            const std::string& name = box->name();
            box->Validate.connect([this, name](bool& cancel) {
                log.push_back("validate " + name);
                cancel = name == refusing;
            });
            box->LostFocus.connect([this, name] { log.push_back("lost " + name); });
            box->GotFocus.connect([this, name] { log.push_back("got " + name); });
        }
    }

    /// Works on the open form with the focus in "a" and an empty log.
    void work(const std::function<void()>& what) {
        person.show(form, [&](Form&) {
            ASSERT_TRUE(form.moveFocus(a));
            log.clear();
            what();
        });
    }

    [[nodiscard]] std::string focused() const {
        return form.ActiveControl() == nullptr ? "" : form.ActiveControl()->name();
    }

    /// Where the focus is after each of that many Tabs.
    Texts tabs(int count, bool back = false) {
        Texts seen;
        for (int i = 0; i < count; ++i) {
            form.pressKey({key::Tab, back ? shift::Shift : shift::None});
            seen.push_back(focused());
        }
        return seen;
    }

    test::ScriptedPerson person;
    Form form{"frm", "frm"};
    TextBox& a = form.add<TextBox>("a");
    TextBox& b = form.add<TextBox>("b");
    TextBox& c = form.add<TextBox>("c");
    std::string refusing;
    Texts log;
};

const Texts moveFromAToB{"validate a", "lost a", "got b"};

// ---- the order of events

TEST_F(FocusTest, AMoveAsksThenLeavesThenArrives) {
    work([&] {
        EXPECT_TRUE(form.moveFocus(b));
        EXPECT_EQ(log, moveFromAToB);
    });
}

TEST_F(FocusTest, TheFirstFocusOfAFormAsksNobody) {
    person.show(form, [&](Form&) {
        EXPECT_EQ(form.ActiveControl(), nullptr);
        EXPECT_TRUE(form.moveFocus(a));
        EXPECT_EQ(log, Texts{"got a"});
    });
}

TEST_F(FocusTest, ARefusalKeepsTheFocus) {
    refusing = "a";
    work([&] {
        EXPECT_FALSE(form.moveFocus(b));
        EXPECT_EQ(log, Texts{"validate a"});
        EXPECT_EQ(focused(), "a");
        EXPECT_EQ(tabs(1), Texts{"a"});
        b.SetFocus();
        EXPECT_EQ(focused(), "a");
    });
}

TEST_F(FocusTest, AMoveToWhereTheFocusIsRaisesNothing) {
    work([&] {
        EXPECT_TRUE(form.moveFocus(a));
        EXPECT_EQ(log, Texts{});
    });
}

TEST_F(FocusTest, SetFocusByProgramAsksToo) {
    work([&] {
        b.SetFocus();
        EXPECT_EQ(log, moveFromAToB);
        EXPECT_TRUE(b.hasFocus());
        EXPECT_FALSE(a.hasFocus());
    });
}

TEST_F(FocusTest, SetFocusOnAFormThatIsNotOpenDoesNothing) {
    a.SetFocus();
    EXPECT_EQ(focused(), "");
    EXPECT_EQ(log, Texts{});
}

TEST_F(FocusTest, AHandlerOfValidateCannotMoveTheFocusItself) {
    a.Validate.connect([this](bool&) { c.SetFocus(); });
    work([&] {
        EXPECT_TRUE(form.moveFocus(b));
        EXPECT_EQ(log, moveFromAToB);
    });
}

TEST_F(FocusTest, AHandlerOfLostFocusHasTheLastWord) {
    a.LostFocus.connect([this] { c.SetFocus(); });
    work([&] {
        EXPECT_FALSE(form.moveFocus(b));
        EXPECT_EQ(focused(), "c");
        EXPECT_EQ(log, (Texts{"validate a", "lost a", "got c"}));
    });
}

TEST_F(FocusTest, AHandlerOfValidateThatDisablesTheTargetKeepsTheFocus) {
    a.Validate.connect([this](bool&) { b.setEnabled(false); });
    work([&] {
        EXPECT_FALSE(form.moveFocus(b));
        EXPECT_EQ(log, Texts{"validate a"});
        EXPECT_EQ(focused(), "a");
    });
}

TEST_F(FocusTest, AFormThatClosesWhileTheFocusLeavesGivesItToNobody) {
    a.LostFocus.connect([this] { form.unload(); });
    work([&] {
        EXPECT_FALSE(form.moveFocus(b));
        EXPECT_EQ(log, (Texts{"validate a", "lost a"}));
    });
}

TEST_F(FocusTest, AFailureInValidateKeepsTheFocusAndLaterMovesWork) {
    bool fails = true;
    a.Validate.connect([&](bool&) {
        if (std::exchange(fails, false)) throw Error(Failure::Overflow);
    });
    work([&] {
        EXPECT_THROW(form.moveFocus(b), Error);
        EXPECT_EQ(focused(), "a");
        EXPECT_TRUE(form.moveFocus(b));
        EXPECT_EQ(focused(), "b");
    });
}

TEST_F(FocusTest, AFormThatIsShownAgainBeginsWithoutFocus) {
    work([&] { EXPECT_EQ(focused(), "a"); });
    person.show(form, [&](Form&) {
        EXPECT_EQ(focused(), "");
        log.clear();
        EXPECT_TRUE(form.moveFocus(a));
        EXPECT_EQ(log, Texts{"got a"});
    });
}

// ---- clicks

TEST_F(FocusTest, AClickMovesTheFocusBeforeItsOwnEvents) {
    b.MouseDown.connect([this](int button) { log.push_back("down " + std::to_string(button)); });
    b.Click.connect([this] { log.emplace_back("click"); });
    work([&] {
        EXPECT_TRUE(form.click(b));
        EXPECT_EQ(log, (Texts{"validate a", "lost a", "got b", "down 1", "click"}));
    });
}

TEST_F(FocusTest, ARefusedClickDoesNotHappen) {
    auto& check = form.add<CheckBox>("check");
    auto& button = form.add<CommandButton>("button");
    int clicks = 0;
    button.Click.connect([&] { ++clicks; });
    button.MouseDown.connect([&](int) { ++clicks; });
    button.DblClick.connect([&] { ++clicks; });
    refusing = "a";
    work([&] {
        EXPECT_FALSE(form.click(check));
        EXPECT_EQ(check.Value(), 0);
        EXPECT_FALSE(form.click(button));
        EXPECT_FALSE(form.doubleClick(button));
        EXPECT_EQ(clicks, 0);
        EXPECT_EQ(focused(), "a");
    });
}

TEST_F(FocusTest, ARightClickRaisesMouseDownAndNoClick) {
    b.MouseDown.connect([this](int button) { log.push_back("down " + std::to_string(button)); });
    b.Click.connect([this] { log.emplace_back("click"); });
    work([&] {
        log.clear();
        EXPECT_TRUE(form.click(b, mouse::Right));
        EXPECT_EQ(log, (Texts{"validate a", "lost a", "got b", "down 2"}));
    });
}

TEST_F(FocusTest, ADoubleClickIsAClickAndADoubleClick) {
    b.Click.connect([this] { log.emplace_back("click"); });
    b.DblClick.connect([this] { log.emplace_back("double"); });
    work([&] {
        EXPECT_TRUE(form.doubleClick(b));
        EXPECT_EQ(log, (Texts{"validate a", "lost a", "got b", "click", "double"}));
    });
}

TEST_F(FocusTest, ADoubleClickEndsWhenItsClickDisablesTheControl) {
    int doubles = 0;
    b.Click.connect([this] { b.setEnabled(false); });
    b.DblClick.connect([&] { ++doubles; });
    work([&] {
        EXPECT_TRUE(form.doubleClick(b));
        EXPECT_EQ(doubles, 0);
    });
}

TEST_F(FocusTest, AHiddenOrDisabledControlIsNotClicked) {
    int events = 0;
    b.MouseDown.connect([&](int) { ++events; });
    b.MouseMove.connect([&](int) { ++events; });
    work([&] {
        b.setEnabled(false);
        EXPECT_FALSE(form.click(b));
        form.moveMouse(b);
        b.setEnabled(true);
        b.setVisible(false);
        EXPECT_FALSE(form.click(b));
        form.moveMouse(b);
        EXPECT_EQ(events, 0);
        EXPECT_EQ(log, Texts{});
    });
}

TEST_F(FocusTest, ALabelIsClickedWithoutTakingTheFocus) {
    auto& label = form.add<Label>("label");
    int clicks = 0;
    label.Click.connect([&] { ++clicks; });
    work([&] {
        EXPECT_TRUE(form.click(label));
        EXPECT_EQ(clicks, 1);
        EXPECT_EQ(log, Texts{});
    });
}

TEST_F(FocusTest, ToolbarAndMenuAskNobody) {
    auto& bar = form.add<Toolbar>("bar");
    auto& menu = form.add<VerticalMenu>("menu");
    auto& save = bar.addButton("Save", "保存(&S)");
    menu.addGroup("组", 1);
    refusing = "a";
    int clicks = 0;
    bar.ButtonClick.connect([&](Toolbar::Button&) { ++clicks; });
    menu.ItemClick.connect([&](int&, int&) { ++clicks; });
    work([&] {
        EXPECT_TRUE(bar.clickButton(save));
        EXPECT_TRUE(menu.clickItem(1, 1));
        EXPECT_EQ(clicks, 2);
        EXPECT_EQ(log, Texts{});
        EXPECT_EQ(focused(), "a");
    });
}

TEST_F(FocusTest, ClosingByTheFrameAsksNobody) {
    refusing = "a";
    work([&] {
        form.closeByFrame();
        EXPECT_FALSE(form.isOpen());
        EXPECT_EQ(log, Texts{});
    });
}

// ---- Tab

TEST_F(FocusTest, TabGoesRoundInTheOrderOfAdding) {
    work([&] { EXPECT_EQ(tabs(4), (Texts{"b", "c", "a", "b"})); });
}

TEST_F(FocusTest, ShiftTabGoesRoundTheOtherWay) {
    work([&] { EXPECT_EQ(tabs(4, true), (Texts{"c", "b", "a", "c"})); });
}

TEST_F(FocusTest, TabFollowsTabIndex) {
    a.setTabIndex(2);
    b.setTabIndex(0);
    c.setTabIndex(1);
    work([&] { EXPECT_EQ(tabs(3), (Texts{"b", "c", "a"})); });
}

TEST_F(FocusTest, TabPassesOverWhatCannotTakeTheFocusAndWhatIsNoStop) {
    form.add<Label>("label");
    form.add<DataGrid>("gridWithoutSource");
    auto& frame = form.add<Frame>("frame");
    form.add<TextBox>("inHiddenFrame").setContainer(&frame);
    form.add<TextBox>("noStop").setTabStop(false);
    auto& last = form.add<TextBox>("last");
    frame.setVisible(false);
    b.setEnabled(false);
    c.setVisible(false);
    work([&] {
        EXPECT_EQ(tabs(2), (Texts{"last", "a"}));
        EXPECT_EQ(form.tabOrder(), (std::vector<Control*>{&a, &last}));
    });
}

TEST_F(FocusTest, TabGoesThroughAPanelWhereThePanelStands) {
    auto& panel = form.add<UserControl>("panel");
    panel.add<TextBox>("second").setTabIndex(5);
    panel.add<TextBox>("first").setTabIndex(1);
    panel.setVisible(true);
    form.add<TextBox>("last");
    work([&] { EXPECT_EQ(tabs(6), (Texts{"b", "c", "first", "second", "last", "a"})); });
}

TEST_F(FocusTest, TabPassesOverThePagesBehind) {
    auto& strip = form.add<TabStrip>("strip", Texts{"一", "二"});
    for (int page = 0; page < 2; ++page) {
        auto& box = form.add<TextBox>("page" + std::to_string(page));
        box.setContainer(&strip);
        box.setPage(page);
    }
    work([&] {
        EXPECT_EQ(tabs(5), (Texts{"b", "c", "strip", "page0", "a"}));
        strip.setTab(1);
        EXPECT_EQ(tabs(5), (Texts{"b", "c", "strip", "page1", "a"}));
    });
}

TEST_F(FocusTest, TabGoesOnFromAControlThatIsNoStop) {
    b.setTabStop(false);
    work([&] {
        ASSERT_TRUE(form.moveFocus(b));
        EXPECT_EQ(tabs(1), Texts{"c"});
        ASSERT_TRUE(form.moveFocus(b));
        EXPECT_EQ(tabs(1, true), Texts{"a"});
    });
}

TEST_F(FocusTest, TabWithoutFocusGoesToTheFirstStopAndShiftTabToTheLast) {
    person.show(form, [&](Form&) { EXPECT_EQ(tabs(1), Texts{"a"}); });
    person.show(form, [&](Form&) { EXPECT_EQ(tabs(1, true), Texts{"c"}); });
}

TEST_F(FocusTest, ASwallowedTabStays) {
    a.KeyDown.connect([](int& code, int) { code = 0; });
    work([&] { EXPECT_EQ(tabs(1), Texts{"a"}); });
}

// ---- controls that go away under the focus

TEST_F(FocusTest, HidingDisablingOrRemovingTheFocusedControlDropsTheFocusSilently) {
    work([&] {
        a.setVisible(false);
        EXPECT_EQ(focused(), "");
        ASSERT_TRUE(form.moveFocus(b));
        b.setEnabled(false);
        EXPECT_EQ(focused(), "");
        ASSERT_TRUE(form.moveFocus(c));
        form.remove(2);
        EXPECT_EQ(focused(), "");
        EXPECT_EQ(log, (Texts{"got b", "got c"}));
    });
}

TEST_F(FocusTest, WithoutAFocusedControlKeysGoNowhere) {
    work([&] {
        a.setEnabled(false);
        form.typeCharacter(U'x');
        form.paste("x");
        form.selectAll();
        form.pressKey({key::Delete, shift::None});
        EXPECT_EQ(a.Text() + b.Text() + c.Text(), "");
    });
}

TEST_F(FocusTest, HidingOrDisablingTheFrameDropsTheFocusInIt) {
    auto& frame = form.add<Frame>("frame");
    b.setContainer(&frame);
    work([&] {
        ASSERT_TRUE(form.moveFocus(b));
        frame.setEnabled(false);
        EXPECT_EQ(focused(), "");
        EXPECT_FALSE(form.moveFocus(b));
        frame.setEnabled(true);
        ASSERT_TRUE(form.moveFocus(b));
        frame.setVisible(false);
        EXPECT_EQ(focused(), "");
    });
}

TEST_F(FocusTest, TurningThePageDropsTheFocusOnThePageBehind) {
    auto& strip = form.add<TabStrip>("strip", Texts{"一", "二"});
    b.setContainer(&strip);
    work([&] {
        ASSERT_TRUE(form.moveFocus(b));
        strip.setTab(1);
        EXPECT_EQ(focused(), "");
        EXPECT_FALSE(form.moveFocus(b));
    });
}

TEST_F(FocusTest, AHandlerOfValidateMayTakeTheTargetAway) {
    auto& panel = form.add<UserControl>("panel");
    auto& inner = panel.add<TextBox>("inner");
    panel.setVisible(true);
    int events = 0;
    inner.GotFocus.connect([&] { ++events; });
    inner.Click.connect([&] { ++events; });
    a.Validate.connect([this](bool&) {
        if (form.Count() == 4) form.remove(3);
    });
    work([&] {
        EXPECT_FALSE(form.click(inner));
        EXPECT_EQ(events, 0);
        EXPECT_EQ(focused(), "a");
    });
}

// ---- injected keys

TEST_F(FocusTest, InjectedKeysRunAfterTheEventThatSentThem) {
    a.KeyPress.connect([this](char32_t& character) {
        if (character != key::Enter) return;
        desktop().sendKeys("{tab}");
        log.push_back("still " + focused());
    });
    work([&] {
        form.pressKey({key::Enter, shift::None});
        EXPECT_EQ(log, (Texts{"still a", "validate a", "lost a", "got b"}));
    });
}

TEST_F(FocusTest, InjectedKeysSelectTheContentOfTheNextField) {
    b.setText("张三丰");
    a.KeyPress.connect([](char32_t& character) {
        character = 0;
        desktop().sendKeys("{tab}");
        desktop().sendKeys("{Home}+{End}");
    });
    work([&] {
        form.typeCharacter(U'x');
        EXPECT_EQ(focused(), "b");
        EXPECT_EQ(b.SelStart(), 0U);
        EXPECT_EQ(b.SelLength(), 3U);
    });
}

TEST_F(FocusTest, KeysInjectedByAnInjectedKeyRunInTheirTurn) {
    b.GotFocus.connect([] { desktop().sendKeys("{tab}"); });
    work([&] {
        desktop().sendKeys("{tab}{tab}");
        EXPECT_EQ(log, (Texts{"validate a", "lost a", "got b", "validate b", "lost b", "got c", "validate c",
                              "lost c", "got a"}));
    });
}

TEST_F(FocusTest, KeysInjectedBeforeTheFormClosesAreLost) {
    a.KeyPress.connect([this](char32_t&) {
        desktop().sendKeys("{tab}");
        form.unload();
    });
    work([&] {
        form.typeCharacter(U'x');
        EXPECT_EQ(log, Texts{});
    });
}

TEST_F(FocusTest, KeysInjectedBeforeAFailureAreLost) {
    a.KeyPress.connect([](char32_t&) {
        desktop().sendKeys("{tab}");
        throw Error(Failure::Overflow);
    });
    work([&] {
        EXPECT_THROW(form.typeCharacter(U'x'), Error);
        form.perform([] {});
        EXPECT_EQ(focused(), "a");
    });
}

} // namespace
} // namespace quillmere::ui
