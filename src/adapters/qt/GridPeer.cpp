#include "adapters/qt/GridPeer.h"

#include "adapters/qt/FormPeer.h"
#include "adapters/qt/GridColumns.h"
#include "adapters/qt/QtText.h"
#include "adapters/qt/RowLooks.h"
#include "adapters/qt/Style.h"
#include "adapters/qt/Twips.h"

#include <QApplication>
#include <QHeaderView>
#include <QPainter>
#include <QTableView>

#include <algorithm>
#include <functional>

namespace quillmere::qt {

namespace {

constexpr int narrowestColumn = 48;
constexpr int widestHeading = 240;
/// Room beside a text: the borders of its cell, and what keeps it off them.
constexpr int textMargins = 26;
/// A long table is judged by its first rows.
constexpr int judgedRows = 200;

/// A table that says so when it has no rows.
class TableWidget final : public QTableView {
public:
    using QTableView::QTableView;

    std::function<void()> resized;

protected:
    void resizeEvent(QResizeEvent* event) override {
        QTableView::resizeEvent(event);
        if (resized) resized();
    }

    void paintEvent(QPaintEvent* event) override {
        QTableView::paintEvent(event);
        if (model()->rowCount() != 0 || model()->columnCount() == 0) return;
        QPainter painter(viewport());
        painter.setPen(style::colours().mutedText);
        painter.drawText(viewport()->rect(), Qt::AlignCenter, QStringLiteral("暂无记录"));
    }
};

/// What a heading needs to be read whole.
int headingWidth(const QHeaderView& header, const std::string& heading) {
    QFont font = header.font();
    font.setBold(true);
    return std::min(widestHeading, QFontMetrics(font).horizontalAdvance(toQt(heading)) + textMargins);
}

int contentWidth(const QTableView& table, int column) {
    int widest = 0;
    const int rows = std::min(judgedRows, table.model()->rowCount());
    for (int row = 0; row < rows; ++row) {
        const QString text = table.model()->index(row, column).data().toString();
        widest = std::max(widest, table.fontMetrics().horizontalAdvance(text));
    }
    return widest + textMargins;
}

} // namespace

GridPeer::GridPeer(FormPeer& form, ui::Control& control)
    : ControlPeer(form, control, new TableWidget(&form.window())) {
    model_ = new GridModel(static_cast<ui::DataGrid&>(control));
    model_->setParent(this);
    table().setModel(model_);
    table().setItemDelegate(new RowLooks(style::rowHeight, this));
    table().setFocusPolicy(Qt::TabFocus);
    table().setTabKeyNavigation(false);
    table().setSelectionBehavior(QAbstractItemView::SelectRows);
    table().setSelectionMode(QAbstractItemView::SingleSelection);
    table().setEditTriggers(QAbstractItemView::NoEditTriggers);
    table().setAlternatingRowColors(true);
    table().setWordWrap(false);
    table().setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    table().setCornerButtonEnabled(false);
    table().verticalHeader()->hide();
    table().verticalHeader()->setDefaultSectionSize(style::rowHeight);
    table().verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    QHeaderView& header = *table().horizontalHeader();
    header.setTextElideMode(Qt::ElideRight);
    header.setHighlightSections(false);
    header.setSectionsClickable(false);
    header.setMinimumSectionSize(narrowestColumn);
    header.setFixedHeight(style::headerHeight);
    // A column that a person has drawn to another width stays so.
    connect(&header, &QHeaderView::sectionResized, this, [this] {
        if (QApplication::mouseButtons().testFlag(Qt::LeftButton)) drawnByPerson_ = true;
    });
    static_cast<TableWidget&>(table()).resized = [this] {
        if (!drawnByPerson_ && this->control() != nullptr) setWidths();
    };
    showColumns();
    showCurrentRow();
}

QTableView& GridPeer::table() const { return *static_cast<QTableView*>(widget()); }

void GridPeer::showColumns() {
    const auto& columns = as<ui::DataGrid>().columns();
    for (int i = 0; i < static_cast<int>(columns.size()); ++i)
        table().setColumnHidden(i, !columns[static_cast<std::size_t>(i)].visible);
    drawnByPerson_ = false;
    setWidths();
    // A text may fill the rest of the row; a number would stand far off from its neighbours.
    int last = static_cast<int>(columns.size()) - 1;
    while (last > 0 && !columns[static_cast<std::size_t>(last)].visible)
        --last;
    table().horizontalHeader()->setStretchLastSection(!model_->isNumberColumn(last));
    table().horizontalHeader()->viewport()->update();
}

void GridPeer::setWidths() {
    if (model_->isStale()) return;
    const auto& columns = as<ui::DataGrid>().columns();
    std::vector<ColumnNeed> needs(columns.size());
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (!columns[i].visible) continue;
        const int heading = headingWidth(*table().horizontalHeader(), columns[i].heading);
        needs[i] = {columns[i].width / twipsPerPixel, std::max(narrowestColumn, heading),
                    contentWidth(table(), static_cast<int>(i))};
    }
    const std::vector<int> widths = fitColumns(needs, table().viewport()->width());
    for (std::size_t i = 0; i < widths.size(); ++i) {
        if (columns[i].visible) table().setColumnWidth(static_cast<int>(i), widths[i]);
    }
}

void GridPeer::showCurrentRow() {
    const int row = as<ui::DataGrid>().currentRow() - 1;
    if (row < 0 || row >= model_->rowCount()) {
        table().clearSelection();
        table().setCurrentIndex({});
        return;
    }
    int column = 0;
    while (column + 1 < model_->columnCount() && table().isColumnHidden(column))
        ++column;
    if (table().currentIndex().row() != row) table().setCurrentIndex(model_->index(row, column));
}

void GridPeer::mirror(ui::Property property) {
    if (property == ui::Property::Rows || model_->isStale()) {
        model_->reload();
        showColumns();
    } else if (property == ui::Property::Columns) {
        showColumns();
    }
    showCurrentRow();
}

int GridPeer::rowsOnPage() const { return std::max(1, table().viewport()->height() / style::rowHeight - 1); }

bool GridPeer::keyPressed(QKeyEvent& event) {
    auto& grid = as<ui::DataGrid>();
    const bool up = event.key() == Qt::Key_PageUp;
    if (!up && event.key() != Qt::Key_PageDown) return ControlPeer::keyPressed(event);
    const int count = static_cast<int>(grid.rowCount());
    if (count > 0) grid.clickRow(std::clamp(grid.currentRow() + (up ? -1 : 1) * rowsOnPage(), 1, count));
    return true;
}

bool GridPeer::mousePressed(QMouseEvent& event, QWidget& target) {
    // The header resizes columns by itself, the scroll bars scroll.
    if (&target != table().viewport()) return false;
    auto& grid = as<ui::DataGrid>();
    const int row = table().indexAt(event.position().toPoint()).row();
    if (row >= 0)
        grid.clickRow(row + 1);
    else
        form().moveFocus(grid);
    return true;
}

} // namespace quillmere::qt
