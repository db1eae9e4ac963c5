#include "platform/ui/DataGrid.h"

#include "platform/Error.h"
#include "platform/text/Text.h"
#include "platform/ui/Form.h"

#include <algorithm>

namespace quillmere::ui {

DataGrid::~DataGrid() {
    if (source_) source_->onViewChange({});
}

void DataGrid::setDataSource(std::shared_ptr<data::Recordset> source) {
    if (source_) source_->onViewChange({});
    source_ = std::move(source);
    columns_.clear();
    if (hasRows()) {
        for (const std::string& name : source_->rows().columns())
            columns_.push_back({.heading = name});
    }
    if (source_) source_->onViewChange([this] { notify(hasRows() ? Property::Current : Property::Rows); });
    notify(Property::Columns);
    notify(Property::Rows);
    if (form() != nullptr) form()->dropFocusFromUnusable();
}

void DataGrid::setColumnWidth(std::size_t column, int twips) {
    if (column >= columns_.size()) throw Error(Failure::SubscriptOutOfRange);
    columns_[column].width = twips;
    notify(Property::Columns);
}

void DataGrid::setColumnVisible(std::size_t column, bool visible) {
    if (column >= columns_.size()) throw Error(Failure::SubscriptOutOfRange);
    columns_[column].visible = visible;
    notify(Property::Columns);
}

void DataGrid::setColumnHeading(std::size_t column, std::string heading) {
    if (column >= columns_.size()) throw Error(Failure::SubscriptOutOfRange);
    columns_[column].heading = std::move(heading);
    notify(Property::Columns);
}

void DataGrid::setColumnAlignment(std::size_t column, Alignment alignment) {
    if (column >= columns_.size()) throw Error(Failure::SubscriptOutOfRange);
    columns_[column].alignment = alignment;
    notify(Property::Columns);
}

std::size_t DataGrid::rowCount() const { return hasRows() ? source_->visibleRows().size() : 0; }

std::string DataGrid::cellText(std::size_t row, std::size_t column) const {
    if (!hasRows()) return {};
    if (row >= rowCount()) throw Error(Failure::SubscriptOutOfRange);
    return source_->rows().at(source_->visibleRows().at(row), column).toTextOrEmpty();
}

int DataGrid::currentRow() const { return hasRows() ? std::max(0, source_->AbsolutePosition()) : 0; }

void DataGrid::goTo(int row) {
    if (row != currentRow()) source_->setAbsolutePosition(row);
}

bool DataGrid::clickRow(int row) {
    if (form() == nullptr || row < 1 || row > static_cast<int>(rowCount())) return false;
    bool reached = false;
    form()->perform([&] {
        if (!canTakeFocus() || !form()->requestFocus(*this)) return;
        reached = true;
        // What the focus left may have changed the rows.
        if (row <= static_cast<int>(rowCount())) goTo(row);
    });
    return reached;
}

void DataGrid::personKeyDown(const KeyStroke& stroke) {
    const int count = static_cast<int>(rowCount());
    if (count == 0) return;
    const int here = currentRow();
    switch (stroke.code) {
    case key::Up:
        goTo(std::max(1, here - 1));
        break;
    case key::Down:
        goTo(std::min(count, here + 1));
        break;
    case key::Home:
        goTo(1);
        break;
    case key::End:
        goTo(count);
        break;
    default:
        break;
    }
}

std::optional<std::string> DataGrid::property(std::string_view name) const {
    if (text::equalsNoCase(name, "Row")) return std::to_string(currentRow());
    if (text::equalsNoCase(name, "Rows")) return std::to_string(rowCount());
    return Control::property(name);
}

} // namespace quillmere::ui
