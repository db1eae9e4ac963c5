#include "x11/ScreenReport.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHeaderView>
#include <QJsonArray>
#include <QWindow>

namespace quillmere::test {

namespace {

QJsonObject placeOf(const QRect& rect) {
    return {{"x", rect.x()}, {"y", rect.y()}, {"width", rect.width()}, {"height", rect.height()}};
}

QRect onScreen(const QWidget& widget, const QRect& part) {
    return {widget.mapToGlobal(part.topLeft()), part.size()};
}

QString rowText(const QModelIndex& first) {
    QStringList cells;
    for (int column = 0; column < first.model()->columnCount(first.parent()); ++column)
        cells << first.siblingAtColumn(column).data().toString();
    return cells.join(u'|');
}

QJsonArray rowsOf(const QAbstractItemView& view) {
    QJsonArray rows;
    const QWidget& ground = *view.viewport();
    int y = 1;
    while (y < ground.height()) {
        const QModelIndex index = view.indexAt({2, y}).siblingAtColumn(0);
        if (!index.isValid()) break;
        const QRect place = view.visualRect(index);
        rows << QJsonObject{{"text", rowText(index)},
                            {"place", placeOf(onScreen(ground, place & ground.rect()))},
                            {"selected", view.selectionModel()->isSelected(index)}};
        y = std::max(y, place.bottom()) + 2;
    }
    return rows;
}

QString textOf(const QWidget& widget) {
    const QVariant text = widget.property("text");
    return (text.isValid() ? text : widget.property("plainText")).toString();
}

QJsonArray widgetsOf(const QWidget& window) {
    QJsonArray widgets;
    const auto all = window.findChildren<QWidget*>();
    for (const QWidget* widget : all) {
        const QRect seen = widget->visibleRegion().boundingRect();
        if (widget->objectName().isEmpty() || widget->window() != &window || seen.isEmpty()) continue;
        QJsonObject report{{"name", widget->objectName()},
                           {"text", textOf(*widget)},
                           {"place", placeOf(onScreen(*widget, seen))},
                           {"enabled", widget->isEnabled()},
                           {"focus", widget->hasFocus()},
                           {"checked", widget->property("checked").toBool()}};
        const auto* view = qobject_cast<const QAbstractItemView*>(widget);
        if (view != nullptr && view->model() != nullptr && qobject_cast<const QHeaderView*>(view) == nullptr)
            report["rows"] = rowsOf(*view);
        widgets << report;
    }
    return widgets;
}

} // namespace

QJsonObject screenReport() {
    QJsonArray windows;
    const auto all = QApplication::topLevelWidgets();
    for (QWidget* window : all) {
        if (!window->isVisible() || window->windowHandle() == nullptr) continue;
        windows << QJsonObject{{"id", static_cast<qint64>(window->winId())},
                               {"name", window->objectName()},
                               {"title", window->windowTitle()},
                               {"active", window->isActiveWindow()},
                               {"modal", window == QApplication::activeModalWidget()},
                               {"place", placeOf(window->geometry())},
                               {"frame", placeOf(window->frameGeometry())},
                               {"widgets", widgetsOf(*window)}};
    }
    return {{"windows", windows}};
}

} // namespace quillmere::test
