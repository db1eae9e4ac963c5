#include "panels/A1ctrlUser.h"
#include "platform/ui/CoolBar.h"
#include "platform/ui/Skin.h"
#include "shell/RegisterTest.h"

#include <gtest/gtest.h>

// What stands on the window, and what a resize does.

namespace quillmere::test {

namespace {

class WindowWidgets : public testing::Test {
protected:
    template <class T>
    [[nodiscard]] T& widget(std::string_view name) const {
        return controlOf<T>(window, name);
    }

    frmPersonWh window;
};

TEST_F(WindowWidgets, TheWindowHasItsCaptionAndSize) {
    EXPECT_EQ(window.name(), "frmPersonWh");
    EXPECT_EQ(window.Caption(), "信息维护");
    EXPECT_EQ(window.geometry().width, 15240);
    EXPECT_EQ(window.geometry().height, 11010);
}

TEST_F(WindowWidgets, TheMenuStandsInItsFrameAtTheLeft) {
    EXPECT_EQ(widget<ui::Frame>("frmVMenu").geometry(), (ui::Rect{15, 495, 2115, 10125}));
    EXPECT_EQ(widget<ui::VerticalMenu>("VMenu1").Container(), &widget<ui::Frame>("frmVMenu"));
}

TEST_F(WindowWidgets, ThePanelsFrameStandsToTheRightOfTheMenu) {
    EXPECT_EQ(widget<ui::Frame>("frmCtrl").geometry(), (ui::Rect{2175, 480, 12945, 10095}));
}

TEST_F(WindowWidgets, TheCoolBarHoldsTheNameAndTheToolbar) {
    const auto& bands = widget<ui::CoolBar>("CBar1").bands();
    ASSERT_EQ(bands.size(), 2U);
    EXPECT_EQ(bands[0].child, &widget<ui::Frame>("P2"));
    EXPECT_EQ(bands[1].child, &widget<ui::Toolbar>("TbMain"));
}

TEST_F(WindowWidgets, TheNameStandsInItsStripInItsFont) {
    const auto& name = widget<ui::Label>("labPersonName");
    EXPECT_EQ(name.Container(), &widget<ui::Frame>("P2"));
    EXPECT_EQ(name.FontName(), "楷体_GB2312");
    EXPECT_EQ(name.Caption(), "");
}

TEST_F(WindowWidgets, TheSkinIsNotSeen) { EXPECT_FALSE(widget<ui::Skin>("Skin1").Visible()); }

TEST_F(WindowWidgets, TheToolbarHasFiveButtonsAndASeparatorBeforeExit) {
    std::vector<std::string> buttons;
    for (const auto& button : window.toolbar().buttons()) {
        buttons.push_back(button->isSeparator() ? "-" : button->Key() + " " + button->Caption());
    }
    EXPECT_EQ(buttons, (std::vector<std::string>{"Add 增加(&N)", "Delete 删除(&D)", "Save 保存(&S)",
                                                 "Cancel 取消(&C)", "-", "Exit 退出(&X)"}));
    EXPECT_EQ(window.toolbar().ToolTip(), "");
}

TEST_F(WindowWidgets, NoPanelStandsOnTheWindowAtFirst) { EXPECT_EQ(window.GetUserCtrl(), nullptr); }

TEST_F(WindowWidgets, SetStateDoesNothing) {
    const TestDatabase database;
    window.SetState(3, 4);
    EXPECT_EQ(window.WhState(), 0);
    EXPECT_TRUE(window.panelFrame().Enabled());
    EXPECT_TRUE(window.toolbarButton("Add").Enabled());
    EXPECT_TRUE(database.statements().empty());
}

// Resizing.

using Resizing = RegisterTest;

ui::Rect panelRect() { return frmPersonWh::defaultInstance().GetUserCtrl()->geometry(); }

TEST_F(Resizing, GivesBothBandsTheirLeastHeight) {
    run(7, "", 2, [](frmPersonWh& shown) {
        const auto& bands = controlOf<ui::CoolBar>(shown, "CBar1").bands();
        shown.resizeByPerson(9000, 7000);
        EXPECT_EQ(bands[0].minHeight, 390);
        EXPECT_EQ(bands[1].minHeight, 390);
    });
}

TEST_F(Resizing, FitsThePanelToTheWindowWhenItIsFirstShown) {
    addPerson(somePerson, "秦志明");
    run(4, somePerson, 2, [](frmPersonWh&) { EXPECT_EQ(panelRect(), (ui::Rect{300, 300, 14940, 10710})); });
}

TEST_F(Resizing, FitsThePanelToTheWindow) {
    addPerson(somePerson, "秦志明");
    run(4, somePerson, 2, [](frmPersonWh& shown) {
        shown.resizeByPerson(8000, 6000);
        EXPECT_EQ(panelRect(), (ui::Rect{300, 300, 7700, 5700}));
        shown.resizeByPerson(301, 301);
        EXPECT_EQ(panelRect(), (ui::Rect{300, 300, 1, 1}));
    });
}

TEST_F(Resizing, KeepsThePanelsLastSizeInAWindowTooSmallForIt) {
    addPerson(somePerson, "秦志明");
    run(4, somePerson, 2, [](frmPersonWh& shown) {
        shown.resizeByPerson(8000, 6000);
        shown.resizeByPerson(300, 300);
        EXPECT_EQ(panelRect(), (ui::Rect{300, 300, 7700, 5700}));
        shown.resizeByPerson(0, 0);
        EXPECT_EQ(panelRect(), (ui::Rect{300, 300, 7700, 5700}));
    });
}

TEST_F(Resizing, JudgesWidthAndHeightApart) {
    addPerson(somePerson, "秦志明");
    run(4, somePerson, 2, [](frmPersonWh& shown) {
        shown.resizeByPerson(8000, 6000);
        shown.resizeByPerson(200, 5000);
        EXPECT_EQ(panelRect(), (ui::Rect{300, 300, 7700, 4700}));
        shown.resizeByPerson(9000, 200);
        EXPECT_EQ(panelRect(), (ui::Rect{300, 300, 8700, 4700}));
    });
}

TEST_F(Resizing, LeavesANewPanelAtItsFixedSizeUntilTheNextResize) {
    addPerson(somePerson, "秦志明");
    run(4, somePerson, 2, [](frmPersonWh& shown) {
        shown.resizeByPerson(8000, 6000);
        shown.menu().clickItem(1, 2);
        EXPECT_EQ(panelRect(), (ui::Rect{300, 300, 13000, 9800}));
        shown.resizeByPerson(8000, 6000);
        EXPECT_EQ(panelRect(), (ui::Rect{300, 300, 7700, 5700}));
    });
}

TEST_F(Resizing, TellsThePanelAndAsksTheDatabaseNothing) {
    addPerson(somePerson, "秦志明");
    run(4, somePerson, 2, [this](frmPersonWh& shown) {
        int resized = 0;
        shown.GetUserCtrl()->Resize.connect([&] { ++resized; });
        journal.clear();
        shown.resizeByPerson(8000, 6000);
        EXPECT_EQ(resized, 1);
        EXPECT_TRUE(journal.statements().empty());
    });
}

} // namespace

} // namespace quillmere::test
