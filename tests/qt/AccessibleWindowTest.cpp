#include "qt/AccessibleEvents.h"
#include "qt/AccessibleTree.h"
#include "qt/MaintenanceTest.h"

#include <gtest/gtest.h>

#include <QToolButton>

namespace quillmere::test {

namespace {

using AccessibleWindowTest = MaintenanceTest;

} // namespace

TEST_F(AccessibleWindowTest, WindowToolbarMenuAndPhotoAreWhatTheyAre) {
    maintain([&](frmPersonWh& window) {
        clickMenu(1, 1);
        settle();
        EXPECT_EQ(QAccessible::Window, accessOf(windowNamed("frmPersonWh")).role());
        EXPECT_EQ(window.Caption(), nameOf(accessOf(windowNamed("frmPersonWh"))));
        EXPECT_EQ(QAccessible::ToolBar, accessOf("TbMain").role());
        EXPECT_EQ(QAccessible::Button, accessOf("TbMain_Save").role());
        EXPECT_EQ("保存", nameOf(accessOf("TbMain_Save")));
        EXPECT_EQ("Alt+S", accessOf("TbMain_Save").text(QAccessible::Accelerator).toStdString());
        EXPECT_EQ(!widgetNamed("TbMain_Add").isEnabled(),
                  static_cast<bool>(accessOf("TbMain_Add").state().disabled));
        EXPECT_EQ("菜单", nameOf(accessOf("VMenu1")));
        EXPECT_EQ(QAccessible::MenuItem, accessOf("VMenu1_1_2").role());
        EXPECT_EQ(window.menu().groups()[0].items[1].caption, nameOf(accessOf("VMenu1_1_2")));
        EXPECT_EQ(QAccessible::Graphic, accessOf("imgPerson").role());
        EXPECT_EQ("照片", nameOf(accessOf("imgPerson")));
        EXPECT_EQ("更新照片", nameOf(accessOf("cmdAddPhoto")));
    });
}

TEST_F(AccessibleWindowTest, AGroupOfTheMenuIsExpandedOrCollapsed) {
    maintain([&](frmPersonWh&) {
        const auto isOpen = [](const char* group) {
            const QAccessible::State state = accessOf(group).state();
            EXPECT_TRUE(state.expandable);
            EXPECT_NE(static_cast<bool>(state.expanded), static_cast<bool>(state.collapsed));
            return static_cast<bool>(state.expanded);
        };
        clickOn(widgetNamed("VMenu1_1"));
        EXPECT_TRUE(isOpen("VMenu1_1"));
        EXPECT_FALSE(isOpen("VMenu1_2"));
        accessOf("VMenu1_2").actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        EXPECT_TRUE(waitUntil([&] { return isOpen("VMenu1_2"); }));
        EXPECT_FALSE(isOpen("VMenu1_1"));
    });
}

TEST_F(AccessibleWindowTest, AGroupThatOpensAndTheOneThatClosesTellOfIt) {
    if (!AccessibleEvents::isPossible()) GTEST_SKIP() << "no platform that assistive programs can listen to";
    maintain([&](frmPersonWh&) {
        clickOn(widgetNamed("VMenu1_1"));
        const AccessibleEvents heard;
        clickOn(widgetNamed("VMenu1_2"));
        EXPECT_TRUE(heard.has(QAccessible::StateChanged, "VMenu1_2"));
        EXPECT_TRUE(heard.has(QAccessible::StateChanged, "VMenu1_1"));
    });
}

TEST_F(AccessibleWindowTest, AnItemOfTheMenuIsPressedByAnAssistiveProgramAndSelectedThen) {
    maintain([&](frmPersonWh& window) {
        clickOn(widgetNamed("VMenu1_1"));
        EXPECT_FALSE(accessOf("VMenu1_1_2").state().selected);
        accessOf("VMenu1_1_2").actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        EXPECT_TRUE(waitUntil([&] { return window.GetUserCtrl()->name() == "A1ctrlUserA02"; }));
        EXPECT_TRUE(accessOf("VMenu1_1_2").state().selected);
    });
}

TEST_F(AccessibleWindowTest, AnAssistiveProgramThatPressesAToolButtonHasItsAnswerBeforeAWindowOpens) {
    maintain([&](frmPersonWh&) {
        bool opened = false;
        screen.person.onForm([&](ui::Form&) { opened = true; }, "fmGrpCod");
        auto* codes = widgetNamed("A01_A0104_v").findChild<QToolButton*>();
        ASSERT_NE(nullptr, codes);
        accessOf(*codes).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        EXPECT_FALSE(opened);
        EXPECT_TRUE(waitUntil([&] { return opened; }));
    });
}

} // namespace quillmere::test
