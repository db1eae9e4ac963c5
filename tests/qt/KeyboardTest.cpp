#include "platform/ui/CheckBox.h"
#include "platform/ui/DataGrid.h"
#include "platform/ui/MaskEdBox.h"
#include "platform/ui/TextBox.h"
#include "platform/ui/VerticalMenu.h"
#include "qt/MaintenanceTest.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>

#include <algorithm>
#include <array>

namespace quillmere::test {

namespace {

constexpr auto gender = "A01_A0104_v";

class KeyboardTest : public MaintenanceTest {
protected:
    /// Goes on by Tab until the field has the focus.
    static void tabTo(std::string_view field) {
        constexpr int mostStops = 120;
        settle();
        for (int i = 0; i < mostStops && focusedName() != field; ++i)
            pressKey(Qt::Key_Tab);
        EXPECT_EQ(field, focusedName());
    }

    static void fill(std::string_view field, std::string_view text) {
        tabTo(field);
        pressKey(Qt::Key_A, Qt::ControlModifier);
        typeKeys(text);
    }

    /// Opens the codes of the field by F2 and takes the one that so many steps down leads to.
    void pick(std::string_view field, int steps) {
        tabTo(field);
        screen.person.onForm(
            [steps](ui::Form&) {
                ASSERT_TRUE(focusComesTo("tvGrpCod"));
                for (int i = 0; i < steps; ++i)
                    pressKey(Qt::Key_Down);
                pressKey(Qt::Key_Return);
            },
            "fmGrpCod");
        pressKey(Qt::Key_F2);
        (void)windowNamed("frmPersonWh");
    }

    std::string stored(std::string_view column) {
        return connection->query("select " + std::string(column) + " from A01 where A00='" + personKey + "'")
            .at(0, std::size_t{0})
            .toTextOrEmpty();
    }

    static void clickStudies(frmPersonWh& window) {
        const auto& items = window.menu().groups()[0].items;
        const auto studies = std::ranges::find(items, "A02", &ui::VerticalMenu::Item::key);
        clickMenu(1, static_cast<int>(studies - items.begin()) + 1);
        settle();
    }
};

} // namespace

TEST_F(KeyboardTest, APersonIsFilledInSavedAndLeftWithoutAMouse) {
    screen.person.expectBox("保存成功!", "提示", Press::EnterKey);
    maintain([&](frmPersonWh& window) {
        ASSERT_TRUE(focusComesTo("A01_A0101_v"));
        fill("A01_A0101_v", "李晓明");
        pick(gender, 2);
        fill("A01_A0106_v", "19861205");
        fill("A01_A0103_v", "110101198612050018");
        fill("A01_A0110_v", "北京大学");
        fill("A01_A0125_v", "100084");
        pressKey(Qt::Key_S, Qt::ControlModifier);
        ASSERT_TRUE(focusComesTo("A01_A0101_v"));
        pressShortcut(Qt::Key_X);
        EXPECT_TRUE(waitUntil([&] { return !window.isOpen(); }));
    });
    EXPECT_EQ("李晓明", stored("A0101"));
    EXPECT_EQ("2", stored("A0104"));
    EXPECT_EQ("1986-12-05", stored("A0106"));
    EXPECT_EQ("110101198612050018", stored("A0103"));
    EXPECT_EQ("北京大学", stored("A0110"));
    EXPECT_EQ("100084", stored("A0125"));
}

TEST_F(KeyboardTest, F2AndAltDownOpenTheCodesAndEscapeLeavesThem) {
    maintain([&](frmPersonWh&) {
        tabTo(gender);
        const QString before = widgetNamed<QLineEdit>(gender).text();
        for (const auto& [key, held] :
             {std::pair(Qt::Key_F2, Qt::NoModifier), std::pair(Qt::Key_Down, Qt::AltModifier)}) {
            screen.person.onForm(
                [](ui::Form& selector) {
                    ASSERT_TRUE(focusComesTo("tvGrpCod"));
                    pressKey(Qt::Key_Escape);
                    EXPECT_FALSE(selector.isOpen());
                },
                "fmGrpCod");
            pressKey(key, held);
            (void)windowNamed("frmPersonWh");
            ASSERT_TRUE(focusComesTo(gender));
            EXPECT_EQ(before, widgetNamed<QLineEdit>(gender).text());
        }
        tabTo("A01_A0101_v");
        pressKey(Qt::Key_F2);
        EXPECT_TRUE(windowNamed("frmPersonWh").isActiveWindow());
    });
}

TEST_F(KeyboardTest, TheRecordKeysWorkInsideEveryKindOfWidget) {
    maintain([&](frmPersonWh& window) {
        clickStudies(window);
        auto& grid = controlOf<ui::DataGrid>(window, "DGItems");
        ASSERT_GT(grid.rowCount(), 2U);
        std::vector<ui::Kind> tried;
        for (const ui::Control* stop : window.tabOrder()) {
            const std::string name = stop->name();
            const bool first = std::ranges::find(tried, stop->kind()) == tried.end();
            const auto* box = dynamic_cast<const ui::TextBox*>(stop);
            const bool telling = first || (box != nullptr && (box->MultiLine() || box->Locked()));
            if (!telling) continue;
            tried.push_back(stop->kind());
            const int before = grid.currentRow();
            tabTo(name);
            pressKey(before == 1 ? Qt::Key_Period : Qt::Key_Comma, Qt::ControlModifier);
            EXPECT_EQ(before == 1 ? 2 : before - 1, grid.currentRow()) << name;
        }
        EXPECT_NE(tried.end(), std::ranges::find(tried, ui::Kind::TextBox));
        EXPECT_NE(tried.end(), std::ranges::find(tried, ui::Kind::MaskEdBox));
        EXPECT_NE(tried.end(), std::ranges::find(tried, ui::Kind::DataGrid));
    });
}

TEST_F(KeyboardTest, CtrlNAddsFromATextAMaskACodedFieldAndTheGrid) {
    maintain([&](frmPersonWh& window) {
        clickStudies(window);
        std::vector<std::string> from{"DGItems"};
        for (const ui::Control* stop : window.tabOrder()) {
            const bool box = stop->kind() == ui::Kind::TextBox || stop->kind() == ui::Kind::MaskEdBox;
            if (box) from.push_back(stop->name());
        }
        for (const std::string& name : from) {
            tabTo(name);
            ASSERT_TRUE(widgetNamed("TbMain_Add").isEnabled()) << name;
            pressKey(Qt::Key_N, Qt::ControlModifier);
            EXPECT_FALSE(widgetNamed("TbMain_Add").isEnabled()) << name;
            pressShortcut(Qt::Key_C);
            ASSERT_TRUE(waitUntil([] { return widgetNamed("TbMain_Add").isEnabled(); })) << name;
        }
    });
}

TEST_F(KeyboardTest, TabAndShiftTabGoInTheOrderOfTheModelOnSeveralPanels) {
    maintain([&](frmPersonWh& window) {
        bool coded = false;
        for (const int item : {1, 2, 4}) {
            clickMenu(1, item);
            settle();
            const auto stops = window.tabOrder();
            ASSERT_GT(stops.size(), 2U);
            tabTo(stops.front()->name());
            for (std::size_t i = 1; i <= stops.size(); ++i) {
                pressKey(Qt::Key_Tab);
                ASSERT_TRUE(focusComesTo(stops[i % stops.size()]->name())) << item << " " << i;
            }
            for (std::size_t i = stops.size(); i-- > 0;) {
                pressKey(Qt::Key_Backtab, Qt::ShiftModifier);
                ASSERT_TRUE(focusComesTo(stops[i]->name())) << item << " " << i;
            }
            const auto isCoded = [](const ui::Control* stop) {
                const auto* box = dynamic_cast<const ui::TextBox*>(stop);
                return box != nullptr && box->Locked();
            };
            coded = coded || std::ranges::any_of(stops, isCoded);
        }
        EXPECT_TRUE(coded) << "coded fields are stops";
    });
}

TEST_F(KeyboardTest, AltAndALetterWorkTheToolbar) {
    maintain([&](frmPersonWh& window) {
        fill("A01_A0123_v", "主任");
        screen.person.expectBox("保存成功!", "提示", Press::EnterKey);
        pressShortcut(Qt::Key_S);
        EXPECT_TRUE(waitUntil([&] { return screen.person.boxes().size() == 1; }));
        (void)windowNamed("frmPersonWh");
        clickStudies(window);
        pressShortcut(Qt::Key_N);
        EXPECT_TRUE(waitUntil([] { return !widgetNamed("TbMain_Add").isEnabled(); }));
        pressShortcut(Qt::Key_C);
        EXPECT_TRUE(waitUntil([] { return widgetNamed("TbMain_Add").isEnabled(); }));
        auto& grid = controlOf<ui::DataGrid>(window, "DGItems");
        const std::size_t rows = grid.rowCount();
        // It stays after all: No is answered with its letter.
        screen.person.expectBox("是否删除此条记录？", "信息维护", Press::NoKey);
        pressShortcut(Qt::Key_D);
        EXPECT_TRUE(waitUntil([&] { return screen.person.boxes().size() == 2; }));
        (void)windowNamed("frmPersonWh");
        EXPECT_EQ(rows, grid.rowCount());
        pressShortcut(Qt::Key_X);
        EXPECT_TRUE(waitUntil([&] { return !window.isOpen(); }));
    });
}

TEST_F(KeyboardTest, TheMenuIsReachedAndLeftByF6AndByAltMAndTheFieldIsNotLeft) {
    maintain([&](frmPersonWh& window) {
        clickMenu(1, 1);
        settle();
        ASSERT_TRUE(focusComesTo("A01_A0101_v"));
        int validated = 0;
        window.findDeep("A01_A0101_v")->Validate.connect([&](bool&) { ++validated; });
        const auto reach = std::array{std::pair(Qt::Key_F6, Qt::KeyboardModifiers(Qt::NoModifier)),
                                      std::pair(Qt::Key_M, Qt::KeyboardModifiers(Qt::AltModifier))};
        for (const auto& [key, held] : reach) {
            pressKey(key, held);
            ASSERT_TRUE(focusComesTo("VMenu1_1_1"));
            settle();
            EXPECT_EQ("VMenu1_1_1", focusedName());
            EXPECT_EQ("A01_A0101_v", window.ActiveControl()->name());
            pressKey(key, held);
            ASSERT_TRUE(focusComesTo("A01_A0101_v"));
        }
        for (const Qt::Key back : {Qt::Key_Escape, Qt::Key_Tab}) {
            pressKey(Qt::Key_F6);
            ASSERT_TRUE(focusComesTo("VMenu1_1_1"));
            pressKey(back);
            ASSERT_TRUE(focusComesTo("A01_A0101_v"));
        }
        EXPECT_EQ(0, validated);
        EXPECT_TRUE(window.isOpen());
        typeKeys("甲");
        EXPECT_NE(std::string::npos, window.findDeep("A01_A0101_v")->property("Text")->find("甲"));
    });
}

TEST_F(KeyboardTest, ArrowsAndEnterInTheMenuBringAnotherPanel) {
    maintain([&](frmPersonWh& window) {
        clickMenu(1, 1);
        settle();
        ASSERT_TRUE(focusComesTo("A01_A0101_v"));
        pressKey(Qt::Key_F6);
        ASSERT_TRUE(focusComesTo("VMenu1_1_1"));
        pressKey(Qt::Key_Down);
        ASSERT_TRUE(focusComesTo("VMenu1_1_2"));
        pressKey(Qt::Key_Return);
        EXPECT_TRUE(waitUntil([&] { return window.GetUserCtrl()->name() == "A1ctrlUserA02"; }));
        settle();
        ASSERT_NE(nullptr, window.ActiveControl());
        EXPECT_TRUE(focusComesTo(window.ActiveControl()->name()));
    });
}

TEST_F(KeyboardTest, AnItemOfTheMenuAsksAboutUnsavedEditsAsAClickDoes) {
    maintain([&](frmPersonWh& window) {
        clickMenu(1, 1);
        settle();
        ASSERT_TRUE(focusComesTo("A01_A0101_v"));
        typeKeys("甲");
        pressKey(Qt::Key_F6);
        pressKey(Qt::Key_Down);
        screen.person.expectBox("数据被修改且未保存，是否保存？", "信息维护", Press::NoKey);
        pressKey(Qt::Key_Space);
        EXPECT_EQ("A1ctrlUserA02", window.GetUserCtrl()->name());
    });
}

TEST_F(KeyboardTest, AnotherGroupOfTheMenuIsOpenedByRightAndLeftGoesBackToIt) {
    maintain([&](frmPersonWh& window) {
        clickMenu(1, 1);
        settle();
        ASSERT_TRUE(focusComesTo("A01_A0101_v"));
        pressKey(Qt::Key_F6);
        pressKey(Qt::Key_End);
        ASSERT_TRUE(focusComesTo("VMenu1_5"));
        for (int i = 0; i < 3; ++i)
            pressKey(Qt::Key_Up);
        ASSERT_TRUE(focusComesTo("VMenu1_2"));
        pressKey(Qt::Key_Right);
        EXPECT_EQ(2, window.menu().OpenGroup());
        pressKey(Qt::Key_Down);
        ASSERT_TRUE(focusComesTo("VMenu1_2_1"));
        pressKey(Qt::Key_Down);
        pressKey(Qt::Key_Left);
        ASSERT_TRUE(focusComesTo("VMenu1_2"));
        pressKey(Qt::Key_Home);
        ASSERT_TRUE(focusComesTo("VMenu1_1"));
        clickOn(widgetNamed("A01_A0103_v"));
        EXPECT_TRUE(focusComesTo("A01_A0103_v"));
    });
}

TEST_F(KeyboardTest, TheBlankChecksABoxOnceAndCtrlSSavesFromIt) {
    maintain([&](frmPersonWh& window) {
        ui::CheckBox* found = nullptr;
        const int items = static_cast<int>(window.menu().groups()[1].items.size());
        for (int item = 1; item <= items && found == nullptr; ++item) {
            clickMenu(2, item);
            settle();
            for (ui::Control* stop : window.tabOrder()) {
                if (stop->kind() == ui::Kind::CheckBox) found = static_cast<ui::CheckBox*>(stop);
            }
        }
        ASSERT_NE(nullptr, found);
        const int before = found->Value();
        tabTo(found->name());
        pressKey(Qt::Key_Space);
        EXPECT_NE(before, found->Value());
        screen.person.expectBox("申报或立项的部门 为必填项", "错误信息", Press::EnterKey);
        pressKey(Qt::Key_S, Qt::ControlModifier);
        EXPECT_EQ(1U, screen.person.boxes().size());
    });
}

} // namespace quillmere::test
