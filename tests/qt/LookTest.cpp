#include "platform/ui/CommandButton.h"
#include "platform/ui/DataGrid.h"
#include "platform/ui/TextBox.h"
#include "qt/MaintenanceTest.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHelpEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QToolTip>

#include <algorithm>

// Where things stand on a panel, and what shows of them.

namespace quillmere::test {

namespace {

class LookTest : public MaintenanceTest {
protected:
    /// The item of that table in the first group.
    static void openItem(frmPersonWh& window, const char* table) {
        const auto& items = window.menu().groups()[0].items;
        const auto found = std::ranges::find(items, table, &ui::VerticalMenu::Item::key);
        clickMenu(1, static_cast<int>(found - items.begin()) + 1);
        settle();
    }

    /// What shows when the mouse rests on the box.
    static QString hintOf(QLineEdit& box) {
        QToolTip::hideText();
        // It goes a moment later.
        EXPECT_TRUE(waitUntil([] { return QToolTip::text().isEmpty(); }));
        QHelpEvent rest(QEvent::ToolTip, box.rect().center(), box.mapToGlobal(box.rect().center()));
        QApplication::sendEvent(&box, &rest);
        return QToolTip::text();
    }

    static QRect placeOf(std::string_view name) {
        const QWidget& widget = widgetNamed(name);
        return {widget.mapTo(widget.window(), QPoint()), widget.size()};
    }
};

TEST_F(LookTest, ATextThatIsCutIsToldByTheToolTip) {
    maintain([](frmPersonWh& window) {
        auto& box = widgetNamed<QLineEdit>("A01_A0114_v");
        auto& model = controlOf<ui::TextBox>(window, "A01_A0114_v");
        model.setText("短");
        EXPECT_EQ(QString(), hintOf(box));
        std::string text = "<一个名称很长的工作单位>";
        for (int i = 0; i < 4; ++i)
            text += text;
        model.setText(text);
        EXPECT_TRUE(hintOf(box).contains(QString::fromStdString(text).toHtmlEscaped()));
    });
}

TEST_F(LookTest, ACodeNameThatReachesUnderItsButtonIsToldToo) {
    maintain([](frmPersonWh& window) {
        auto& box = widgetNamed<QLineEdit>("A01_A0104_v");
        auto& model = controlOf<ui::TextBox>(window, "A01_A0104_v");
        std::string text;
        while (box.fontMetrics().horizontalAdvance(QString::fromStdString(text + "字")) < box.width() - 14)
            text += "字";
        model.setText(text);
        EXPECT_NE(QString(), hintOf(box)) << text;
        model.setText("男");
        EXPECT_EQ(QString(), hintOf(box));
    });
}

TEST_F(LookTest, ATableThatHasTheKeyboardIsFramedAndNothingInItMoves) {
    maintain([](frmPersonWh& window) {
        openItem(window, "A02");
        auto& table = widgetNamed<QTableView>("DGItems");
        QWidget* ring = table.parentWidget()->findChild<QWidget*>(QStringLiteral("focusRing"));
        ASSERT_NE(nullptr, ring);
        EXPECT_FALSE(ring->isVisible());
        const QPoint before = table.viewport()->mapTo(table.window(), QPoint());
        clickOn(*table.viewport());
        ASSERT_TRUE(waitUntil([&] { return ring->isVisible(); }));
        EXPECT_EQ(table.geometry(), ring->geometry());
        EXPECT_EQ(before, table.viewport()->mapTo(table.window(), QPoint()));
        clickOn(widgetNamed("A02_A0203_v"));
        EXPECT_TRUE(waitUntil([&] { return !ring->isVisible(); }));
    });
}

TEST_F(LookTest, TheHeadingOfATableReachesTheBorderOfItsCard) {
    maintain([](frmPersonWh& window) {
        openItem(window, "A02");
        const QRect table = placeOf("DGItems");
        const QWidget& card = *widgetNamed("DGItems").parentWidget();
        EXPECT_EQ(card.mapTo(card.window(), QPoint()) + QPoint(1, 1), table.topLeft());
        EXPECT_EQ(card.width() - 2, table.width());
        EXPECT_EQ(table.width(), widgetNamed<QTableView>("DGItems").viewport()->width());
    });
}

TEST_F(LookTest, ThePhotosButtonStandsBelowItAndTheColumnsOfBoxesAreEquallyWide) {
    maintain([](frmPersonWh&) {
        windowNamed("frmPersonWh").resize(1366, 768);
        settle();
        const QRect photo = placeOf("imgPerson");
        const QRect button = placeOf("cmdAddPhoto");
        EXPECT_GT(button.top(), photo.bottom());
        EXPECT_EQ(photo.left(), button.left());
        EXPECT_EQ(photo.right(), button.right());
        const int width = placeOf("A01_A0101_v").width();
        for (const char* box : {"A01_A0104_v", "A01_A0127_v"})
            EXPECT_NEAR(width, placeOf(box).width(), 2) << box;
    });
}

TEST_F(LookTest, ABoxOfNumbersShowsThemAtTheRight) {
    maintain([](frmPersonWh& window) {
        auto& model = controlOf<ui::TextBox>(window, "A01_A0114_v");
        EXPECT_TRUE(widgetNamed<QLineEdit>("A01_A0114_v").alignment() & Qt::AlignLeft);
        model.setAlignment(ui::Alignment::Right);
        EXPECT_TRUE(widgetNamed<QLineEdit>("A01_A0114_v").alignment() & Qt::AlignRight);
    });
}

TEST(DialogLookTest, FieldsEndWhereTheButtonsEnd) {
    Screen screen;
    ui::Form form("frmRow", "一行");
    form.add<ui::Label>("lblText", "用途");
    form.add<ui::TextBox>("txtText");
    form.add<ui::CommandButton>("cmdOK", "保存");
    screen.show(form, [](ui::Form&) {
        const auto endOf = [](const QWidget& widget) {
            return widget.mapTo(widget.window(), QPoint(widget.width(), 0)).x();
        };
        EXPECT_EQ(endOf(widgetNamed("cmdOK")), endOf(widgetNamed("txtText")));
    });
}

} // namespace

} // namespace quillmere::test
