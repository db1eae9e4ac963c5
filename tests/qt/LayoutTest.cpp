#include "qt/MaintenanceTest.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableView>

#include <algorithm>

namespace quillmere::test {

namespace {

using LayoutTest = MaintenanceTest;
using Texts = std::vector<std::string>;

/// Captions, buttons and headings of the window that do not show all their text.
std::vector<std::string> clippedTexts(const QWidget& window) {
    std::vector<std::string> clipped;
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        if (!label->isVisible() || label->text().isEmpty() || label->textFormat() == Qt::RichText) continue;
        // The help text runs on to the right as far as there is room.
        if (label->property("role") == "help") continue;
        const QSize size = label->contentsRect().size();
        const QSize needed = label->wordWrap() ? QSize(0, label->heightForWidth(label->width()))
                                               : label->fontMetrics().size(Qt::TextSingleLine, label->text());
        if (needed.width() > size.width() || needed.height() > label->height()) {
            clipped.push_back(label->objectName().toStdString() + " " + label->text().toStdString());
        }
    }
    return clipped;
}

/// Fields that lie over each other, or beside the area that they stand in.
std::vector<std::string> misplacedFields(const QWidget& window) {
    std::vector<std::string> misplaced;
    std::vector<const QLineEdit*> editors;
    for (const QLineEdit* editor : window.findChildren<QLineEdit*>()) {
        if (editor->isVisible()) editors.push_back(editor);
    }
    const auto placeOf = [&](const QWidget* widget) {
        return QRect(widget->mapTo(&window, QPoint()), widget->size());
    };
    for (std::size_t i = 0; i < editors.size(); ++i) {
        const QRect around = placeOf(editors[i]->parentWidget());
        if (!around.contains(placeOf(editors[i])))
            misplaced.push_back(editors[i]->objectName().toStdString());
        for (std::size_t j = 0; j < i; ++j) {
            if (placeOf(editors[j]).intersects(placeOf(editors[i]))) {
                misplaced.push_back(editors[i]->objectName().toStdString() + " over " +
                                    editors[j]->objectName().toStdString());
            }
        }
    }
    return misplaced;
}

/// How many fields stand side by side in the panel on show.
std::size_t columnsOf(const QWidget& window) {
    std::vector<int> edges;
    for (const QLineEdit* editor : window.findChildren<QLineEdit*>()) {
        const int edge = editor->mapTo(&window, QPoint()).x();
        if (editor->isVisible() && std::ranges::find(edges, edge) == edges.end()) edges.push_back(edge);
    }
    return edges.size();
}

} // namespace

TEST_F(LayoutTest, TheFieldWithTheFocusIsScrolledIntoView) {
    maintain([&](frmPersonWh&) {
        QWidget& window = windowNamed("frmPersonWh");
        window.resize(760, 480);
        ASSERT_TRUE(focusComesTo("A01_A0101_v"));
        pressKey(Qt::Key_Backtab, Qt::ShiftModifier);
        ASSERT_TRUE(waitUntil([] { return focusedName() != "A01_A0101_v"; }));
        const QWidget* last = QApplication::focusWidget();
        EXPECT_TRUE(waitUntil([&] { return last->visibleRegion().boundingRect() == last->rect(); }));
    });
}

TEST_F(LayoutTest, FieldsStandInOneTwoOrThreeColumnsByTheWidth) {
    maintain([&](frmPersonWh&) {
        QWidget& window = windowNamed("frmPersonWh");
        const std::vector<std::pair<int, std::size_t>> widths{{1500, 3}, {900, 2}, {740, 1}, {1200, 3}};
        for (const auto& [width, columns] : widths) {
            window.resize(width, 800);
            settle();
            EXPECT_EQ(columns, columnsOf(window)) << width;
        }
    });
}

TEST_F(LayoutTest, NothingIsClippedOrOverlaidOnAnyPanelAtAnyWidth) {
    maintain([&](frmPersonWh& window) {
        QWidget& shown = windowNamed("frmPersonWh");
        const auto& groups = window.menu().groups();
        for (std::size_t g = 0; g < groups.size(); ++g) {
            for (std::size_t i = 0; i < groups[g].items.size(); ++i) {
                clickMenu(static_cast<int>(g) + 1, static_cast<int>(i) + 1);
                for (const int width : {900, 1200, 1500}) {
                    shown.resize(width, 760);
                    settle();
                    EXPECT_EQ(Texts{}, clippedTexts(shown)) << window.GetUserCtrl()->name() << " " << width;
                    EXPECT_EQ(Texts{}, misplacedFields(shown))
                        << window.GetUserCtrl()->name() << " " << width;
                }
            }
        }
    });
}

TEST_F(LayoutTest, FieldsScrollOnlyWhereThereIsNoRoomForThem) {
    maintain([&](frmPersonWh&) {
        QWidget& shown = windowNamed("frmPersonWh");
        // Few fields over a list, and few fields over nothing.
        for (const auto& [group, item] : {std::pair(1, 2), std::pair(2, 1)}) {
            clickMenu(group, item);
            for (int width = 740; width <= 1600; width += 43) {
                shown.resize(width, 760);
                settle();
                for (const auto* area : shown.findChildren<QScrollArea*>()) {
                    if (!area->isVisible() || area->property("role") == "menu") continue;
                    EXPECT_TRUE(waitUntil([area] { return area->verticalScrollBar()->maximum() == 0; }))
                        << item << " " << width;
                }
            }
        }
    });
}

TEST_F(LayoutTest, FewFieldsTakeNoMoreRoomThanTheyNeed) {
    maintain([&](frmPersonWh&) {
        QWidget& shown = windowNamed("frmPersonWh");
        for (const auto& [group, item] : {std::pair(1, 2), std::pair(2, 1)}) {
            clickMenu(group, item);
            for (const int width : {740, 1280}) {
                shown.resize(width, 1000);
                settle();
                for (const auto* area : shown.findChildren<QScrollArea*>()) {
                    if (!area->isVisible() || area->property("role") == "menu") continue;
                    EXPECT_LE(area->height(), area->sizeHint().height() + 1) << item << " " << width;
                }
            }
        }
    });
}

TEST_F(LayoutTest, APanelWithoutAListLeavesNoEmptyTable) {
    maintain([&](frmPersonWh&) {
        EXPECT_TRUE(widgetNamed("A01_A0101_v").isVisible());
        const auto* table = windowNamed("frmPersonWh").findChild<QTableView*>("DGItems");
        ASSERT_NE(nullptr, table);
        EXPECT_FALSE(table->isVisible());
    });
}

} // namespace quillmere::test
