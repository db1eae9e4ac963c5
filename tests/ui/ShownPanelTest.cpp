#include "ui/FormBench.h"

#include "platform/ui/TextBox.h"
#include "platform/ui/UserControl.h"

namespace quillmere::ui {
namespace {

using ShownPanelTest = FormBench;

TEST_F(ShownPanelTest, APanelIsToldThatItIsShownWhenTheOperationEnds) {
    auto& panel = form.add<UserControl>("panel");
    EXPECT_FALSE(panel.Visible());
    panel.Shown.connect([&] { log.emplace_back("shown"); });
    person.show(form, [&](Form&) {
        log.clear();
        form.perform([&] {
            panel.setVisible(true);
            log.emplace_back("operation ends");
        });
        EXPECT_EQ(log, (Texts{"operation ends", "shown"}));
    });
}

TEST_F(ShownPanelTest, APanelMadeVisibleWhileLoadingIsToldAfterActivation) {
    auto& panel = form.add<UserControl>("panel");
    panel.Shown.connect([&] { log.emplace_back("shown"); });
    form.atLoad = [&] { panel.setVisible(true); };
    person.show(form, [&](Form&) {
        EXPECT_EQ(log, (Texts{"frm load", "frm resize 0", "frm activate", "shown"}));
    });
}

TEST_F(ShownPanelTest, APanelThatGoesAgainIsToldNothing) {
    auto& hidden = form.add<UserControl>("hidden");
    auto& removed = form.add<UserControl>("removed");
    int shown = 0;
    hidden.Shown.connect([&] { ++shown; });
    removed.Shown.connect([&] { ++shown; });
    person.show(form, [&](Form&) {
        form.perform([&] {
            hidden.setVisible(true);
            removed.setVisible(true);
            hidden.setVisible(false);
            form.remove(1);
        });
        EXPECT_EQ(shown, 0);
    });
}

TEST_F(ShownPanelTest, APanelIsToldBeforeInjectedKeysRun) {
    auto& panel = form.add<UserControl>("panel");
    auto& box = panel.add<TextBox>("box");
    panel.Shown.connect([&] { log.emplace_back("shown"); });
    box.GotFocus.connect([&] { log.emplace_back("focus"); });
    person.show(form, [&](Form&) {
        log.clear();
        form.perform([&] {
            desktop().sendKeys("{tab}");
            panel.setVisible(true);
        });
        EXPECT_EQ(log, (Texts{"shown", "focus"}));
    });
}

TEST_F(ShownPanelTest, MovingAPanelRaisesResizeOnlyWhenItsSizeDiffers) {
    auto& panel = form.add<UserControl>("panel");
    int resizes = 0;
    panel.Resize.connect([&] { ++resizes; });
    panel.moveTo({10, 10, 500, 400});
    EXPECT_EQ(resizes, 1);
    panel.moveTo({20, 20, 500, 400});
    EXPECT_EQ(resizes, 1);
    EXPECT_EQ(panel.geometry(), (Rect{20, 20, 500, 400}));
}

} // namespace
} // namespace quillmere::ui
