#include "platform/ui/DataGrid.h"
#include "platform/ui/Label.h"
#include "qt/MaintenanceTest.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QToolButton>

namespace quillmere::test {

namespace {

using WindowTest = MaintenanceTest;

int itemOf(const frmPersonWh& window, int group, std::string_view key) {
    const auto& items = window.menu().groups()[static_cast<std::size_t>(group) - 1].items;
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (items[i].key == key) return static_cast<int>(i) + 1;
    }
    throw std::runtime_error("no such item");
}

} // namespace

TEST_F(WindowTest, AMenuClickWithTheMouseBringsAnotherPanel) {
    maintain([&](frmPersonWh& window) {
        clickMenu(1, itemOf(window, 1, "A02"));
        EXPECT_EQ("A1ctrlUserA02", window.GetUserCtrl()->name());
        EXPECT_TRUE(widgetNamed("A02_A0203_v").isVisible());
        EXPECT_TRUE(widgetNamed<QPushButton>("VMenu1_1_" + std::to_string(itemOf(window, 1, "A02")))
                        .property("current")
                        .toBool());
        settle();
        EXPECT_TRUE(windowNamed("frmPersonWh").findChildren<QWidget*>("A01_A0101_v").isEmpty());
    });
}

TEST_F(WindowTest, OpeningAGroupShowsItsItemsAndKeepsThePanel) {
    maintain([&](frmPersonWh& window) {
        const std::string panel = window.GetUserCtrl()->name();
        clickOn(widgetNamed("VMenu1_1"));
        EXPECT_TRUE(widgetNamed("VMenu1_1_1").isVisible());
        clickOn(widgetNamed("VMenu1_2"));
        EXPECT_TRUE(widgetNamed("VMenu1_2_1").isVisible());
        EXPECT_FALSE(windowNamed("frmPersonWh").findChild<QWidget*>("VMenu1_1_1")->isVisible());
        EXPECT_EQ(2, window.menu().OpenGroup());
        EXPECT_EQ(panel, window.GetUserCtrl()->name());
    });
}

TEST_F(WindowTest, AClickOnARowOfTheGridShowsItsRecord) {
    maintain([&](frmPersonWh& window) {
        clickMenu(1, itemOf(window, 1, "A02"));
        auto& table = widgetNamed<QTableView>("DGItems");
        auto& grid = controlOf<ui::DataGrid>(window, "DGItems");
        const std::string second = grid.cellText(1, 3);
        clickRow(table, second);
        EXPECT_EQ(2, grid.currentRow());
        EXPECT_EQ(1, table.currentIndex().row());
        EXPECT_EQ(second, widgetNamed<QLineEdit>("A02_A0203_v").text().toStdString());
        // Each arrival puts the focus into the first field; from there a chord goes on.
        ASSERT_TRUE(focusComesTo("A02_A0201_v"));
        pressKey(Qt::Key_Period, Qt::ControlModifier);
        EXPECT_EQ(3, grid.currentRow());
        EXPECT_EQ(grid.cellText(2, 3), widgetNamed<QLineEdit>("A02_A0203_v").text().toStdString());
    });
}

TEST_F(WindowTest, TheGridShowsTheRowsOfTheRecordset) {
    maintain([&](frmPersonWh& window) {
        clickMenu(1, itemOf(window, 1, "A02"));
        const auto& table = widgetNamed<QTableView>("DGItems");
        const auto& grid = controlOf<ui::DataGrid>(window, "DGItems");
        ASSERT_EQ(static_cast<int>(grid.rowCount()), table.model()->rowCount());
        for (std::size_t row = 0; row < grid.rowCount(); ++row) {
            for (std::size_t column = 0; column < grid.columns().size(); ++column) {
                const QModelIndex cell =
                    table.model()->index(static_cast<int>(row), static_cast<int>(column));
                EXPECT_EQ(grid.cellText(row, column), cell.data().toString().toStdString());
            }
        }
    });
}

TEST_F(WindowTest, TheToolbarShowsWhatMayBeDone) {
    maintain([&](frmPersonWh& window) {
        clickMenu(1, itemOf(window, 1, "A02"));
        EXPECT_TRUE(widgetNamed("TbMain_Add").isEnabled());
        clickOn(widgetNamed("TbMain_Add"));
        EXPECT_FALSE(widgetNamed("TbMain_Add").isEnabled());
        EXPECT_FALSE(widgetNamed("TbMain_Delete").isEnabled());
        EXPECT_TRUE(widgetNamed("TbMain_Save").isEnabled());
        clickOn(widgetNamed("TbMain_Cancel"));
        EXPECT_TRUE(widgetNamed("TbMain_Add").isEnabled());
    });
}

TEST_F(WindowTest, ACommandThatRebuildsThePanelLeavesNoneOfTheOldWidgets) {
    maintain([&](frmPersonWh& window) {
        clickMenu(1, itemOf(window, 1, "A02"));
        for (int i = 0; i < 3; ++i)
            clickOn(widgetNamed("TbMain_Cancel"));
        settle();
        EXPECT_EQ(1, windowNamed("frmPersonWh").findChildren<QWidget*>("A02_A0203_v").size());
        EXPECT_EQ(1, windowNamed("frmPersonWh").findChildren<QWidget*>("DGItems").size());
    });
}

TEST_F(WindowTest, TabWalksThroughTheWholePanelInTheOrderOfTheModel) {
    maintain([&](frmPersonWh& window) {
        ASSERT_TRUE(focusComesTo("A01_A0101_v"));
        const auto stops = window.tabOrder();
        ASSERT_GT(stops.size(), 30U);
        for (std::size_t i = 1; i <= stops.size(); ++i) {
            pressKey(Qt::Key_Tab);
            ASSERT_TRUE(focusComesTo(stops[i % stops.size()]->name())) << i;
        }
    });
}

TEST_F(WindowTest, EnterInAMaskedFieldGoesOnToTheNextAndSelectsItsText) {
    maintain([&](frmPersonWh&) {
        clickOn(widgetNamed("A01_A0106_v"));
        ASSERT_TRUE(focusComesTo("A01_A0106_v"));
        pressKey(Qt::Key_Return);
        ASSERT_TRUE(focusComesTo("A01_A0103_v"));
        const auto& next = widgetNamed<QLineEdit>("A01_A0103_v");
        EXPECT_FALSE(next.text().isEmpty());
        EXPECT_EQ(next.text().toStdString(), next.selectedText().toStdString());
    });
}

TEST_F(WindowTest, EnterInAPlainFieldStaysThere) {
    maintain([&](frmPersonWh& window) {
        ASSERT_TRUE(focusComesTo("A01_A0101_v"));
        pressKey(Qt::Key_Return);
        settle();
        EXPECT_EQ("A01_A0101_v", focusedName());
        EXPECT_TRUE(window.isOpen());
    });
}

TEST_F(WindowTest, CtrlSSavesFromTheKeyboard) {
    screen.person.expectBox("保存成功!", "提示", Press::EnterKey);
    maintain([&](frmPersonWh&) {
        clickOn(widgetNamed("A01_A0123_v"));
        pressKey(Qt::Key_A, Qt::ControlModifier);
        typeKeys("主任");
        pressKey(Qt::Key_S, Qt::ControlModifier);
        EXPECT_EQ("主任", widgetNamed<QLineEdit>("A01_A0123_v").text().toStdString());
    });
    EXPECT_EQ("主任", connection->query("select A0123 from A01 where A00='" + personKey + "'")
                          .at(0, std::size_t{0})
                          .toText());
}

TEST_F(WindowTest, TheHelpLineTellsAboutTheFieldWithTheFocus) {
    maintain([&](frmPersonWh& window) {
        clickOn(widgetNamed("A01_A0103_v"));
        const auto& help = widgetNamed<QLabel>("labExplain");
        EXPECT_NE("", help.text().toStdString());
        EXPECT_EQ(controlOf<ui::Label>(window, "labExplain").Caption(), help.text().toStdString());
    });
}

TEST_F(WindowTest, RequiredCaptionsAreBoldAndTheOthersAreNot) {
    maintain([&](frmPersonWh&) {
        EXPECT_TRUE(widgetNamed("A01_A0101_c").font().bold());
        EXPECT_FALSE(widgetNamed("A01_A0103_c").font().bold());
    });
}

TEST_F(WindowTest, TheNameOfThePersonStandsInTheToolbarLine) {
    maintain([&](frmPersonWh& window) {
        EXPECT_NE("", window.nameLabel().Caption());
        EXPECT_EQ(window.nameLabel().Caption(), widgetNamed<QLabel>("labPersonName").text().toStdString());
    });
}

TEST_F(WindowTest, ClosingByTheFrameWithoutEditsAsksNothing) {
    maintain([&](frmPersonWh& window) {
        windowNamed("frmPersonWh").close();
        EXPECT_FALSE(window.isOpen());
    });
    EXPECT_TRUE(screen.person.boxes().empty());
}

TEST_F(WindowTest, EscapeDoesNotCloseTheWindow) {
    maintain([&](frmPersonWh& window) {
        ASSERT_TRUE(focusComesTo("A01_A0101_v"));
        pressKey(Qt::Key_Escape);
        EXPECT_TRUE(window.isOpen());
    });
}

TEST_F(WindowTest, AScreenshotShowsTheWindowInFrontAndNothingWhenNoneIsOpen) {
    const QString path = QDir::temp().filePath(QStringLiteral("quillmere-screenshot-test.png"));
    const auto sizeOf = [&] { return QImage(path).size(); };
    maintain([&](frmPersonWh&) {
        ASSERT_TRUE(screen.toolkit.saveScreenshot(path.toStdString()));
        EXPECT_EQ(windowNamed("frmPersonWh").size(), sizeOf());
        EXPECT_FALSE(screen.toolkit.saveScreenshot("/no/such/place/x.png"));
    });
    EXPECT_FALSE(screen.toolkit.saveScreenshot(path.toStdString()));
    QFile::remove(path);
}

} // namespace quillmere::test
