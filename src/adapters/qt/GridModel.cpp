#include "adapters/qt/GridModel.h"

#include "adapters/qt/QtText.h"

namespace quillmere::qt {

void GridModel::reload() {
    beginResetModel();
    rows_ = grid_ == nullptr ? 0 : static_cast<int>(grid_->rowCount());
    columns_ = grid_ == nullptr ? 0 : static_cast<int>(grid_->columns().size());
    endResetModel();
}

void GridModel::detach() {
    grid_ = nullptr;
    reload();
}

bool GridModel::isStale() const {
    return grid_ != nullptr && (rows_ != static_cast<int>(grid_->rowCount()) ||
                                columns_ != static_cast<int>(grid_->columns().size()));
}

int GridModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int GridModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : columns_; }

bool GridModel::standsRight(int column) const {
    return grid_->columns()[static_cast<std::size_t>(column)].alignment == ui::Alignment::Right;
}

bool GridModel::isNumber(int row, int column) const {
    if (standsRight(column)) return true;
    const data::Recordset& source = *grid_->DataSource();
    const data::Value& value = source.rows().at(source.visibleRows().at(static_cast<std::size_t>(row)),
                                                static_cast<std::size_t>(column));
    return value.isInteger() || value.isReal();
}

bool GridModel::isNumberColumn(int column) const {
    if (column < 0 || column >= columns_ || isStale()) return false;
    return standsRight(column) || (rows_ > 0 && isNumber(0, column));
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    // The recordset may have changed under the view, which hears of it when the loop has control.
    const bool there = index.isValid() && grid_ != nullptr && !isStale();
    if (!there) return {};
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) {
        return toQt(
            grid_->cellText(static_cast<std::size_t>(index.row()), static_cast<std::size_t>(index.column())));
    }
    if (role == Qt::TextAlignmentRole) {
        const Qt::Alignment side = isNumber(index.row(), index.column()) ? Qt::AlignRight : Qt::AlignLeft;
        return static_cast<int>((side | Qt::AlignVCenter).toInt());
    }
    return {};
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (grid_ == nullptr || orientation != Qt::Horizontal || section >= columns_) return {};
    if (role == Qt::DisplayRole) return toQt(grid_->columns()[static_cast<std::size_t>(section)].heading);
    if (role == Qt::TextAlignmentRole) {
        const Qt::Alignment side = isNumberColumn(section) ? Qt::AlignRight : Qt::AlignLeft;
        return static_cast<int>((side | Qt::AlignVCenter).toInt());
    }
    return {};
}

} // namespace quillmere::qt
