#include "ui/FocusBench.h"

#include "platform/ui/CheckBox.h"
#include "platform/ui/CommandButton.h"
#include "platform/ui/Label.h"
#include "platform/ui/Toolbar.h"
#include "platform/ui/VerticalMenu.h"

namespace quillmere::ui {
namespace {

using ClickTest = FocusBench;

TEST_F(ClickTest, AClickMovesTheFocusBeforeItsOwnEvents) {
    b.MouseDown.connect([this](int button) { log.push_back("down " + std::to_string(button)); });
    b.Click.connect([this] { log.emplace_back("click"); });
    work([&] {
        EXPECT_TRUE(form.click(b));
        EXPECT_EQ(log, (Texts{"validate a", "lost a", "got b", "down 1", "click"}));
    });
}

TEST_F(ClickTest, ARefusedClickDoesNotHappen) {
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

TEST_F(ClickTest, ARightClickRaisesMouseDownAndNoClick) {
    b.MouseDown.connect([this](int button) { log.push_back("down " + std::to_string(button)); });
    b.Click.connect([this] { log.emplace_back("click"); });
    work([&] {
        log.clear();
        EXPECT_TRUE(form.click(b, mouse::Right));
        EXPECT_EQ(log, (Texts{"validate a", "lost a", "got b", "down 2"}));
    });
}

TEST_F(ClickTest, ADoubleClickIsAClickAndADoubleClick) {
    b.Click.connect([this] { log.emplace_back("click"); });
    b.DblClick.connect([this] { log.emplace_back("double"); });
    work([&] {
        EXPECT_TRUE(form.doubleClick(b));
        EXPECT_EQ(log, (Texts{"validate a", "lost a", "got b", "click", "double"}));
    });
}

TEST_F(ClickTest, ADoubleClickEndsWhenItsClickDisablesTheControl) {
    int doubles = 0;
    b.Click.connect([this] { b.setEnabled(false); });
    b.DblClick.connect([&] { ++doubles; });
    work([&] {
        EXPECT_TRUE(form.doubleClick(b));
        EXPECT_EQ(doubles, 0);
    });
}

TEST_F(ClickTest, AHiddenOrDisabledControlIsNotClicked) {
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

TEST_F(ClickTest, ALabelIsClickedWithoutTakingTheFocus) {
    auto& label = form.add<Label>("label");
    int clicks = 0;
    label.Click.connect([&] { ++clicks; });
    work([&] {
        EXPECT_TRUE(form.click(label));
        EXPECT_EQ(clicks, 1);
        EXPECT_EQ(log, Texts{});
    });
}

TEST_F(ClickTest, ToolbarAndMenuAskNobody) {
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

TEST_F(ClickTest, ClosingByTheFrameAsksNobody) {
    refusing = "a";
    work([&] {
        form.closeByFrame();
        EXPECT_FALSE(form.isOpen());
        EXPECT_EQ(log, Texts{});
    });
}

} // namespace
} // namespace quillmere::ui
