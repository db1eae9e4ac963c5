#include "ui/FocusBench.h"

#include "platform/ui/Frame.h"
#include "platform/ui/TabStrip.h"
#include "platform/ui/TextBox.h"
#include "platform/ui/UserControl.h"

namespace quillmere::ui {
namespace {

using FocusLossTest = FocusBench;

TEST_F(FocusLossTest, HidingDisablingOrRemovingTheFocusedControlDropsTheFocusSilently) {
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

TEST_F(FocusLossTest, WithoutAFocusedControlKeysGoNowhere) {
    work([&] {
        a.setEnabled(false);
        form.typeCharacter(U'x');
        form.paste("x");
        form.selectAll();
        form.pressKey({key::Delete, shift::None});
        EXPECT_EQ(a.Text() + b.Text() + c.Text(), "");
    });
}

TEST_F(FocusLossTest, HidingOrDisablingTheFrameDropsTheFocusInIt) {
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

TEST_F(FocusLossTest, TurningThePageDropsTheFocusOnThePageBehind) {
    auto& strip = form.add<TabStrip>("strip", Texts{"一", "二"});
    b.setContainer(&strip);
    work([&] {
        ASSERT_TRUE(form.moveFocus(b));
        strip.setTab(1);
        EXPECT_EQ(focused(), "");
        EXPECT_FALSE(form.moveFocus(b));
    });
}

TEST_F(FocusLossTest, AHandlerOfValidateMayTakeTheTargetAway) {
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

} // namespace
} // namespace quillmere::ui
