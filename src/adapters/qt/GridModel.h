#pragma once

#include "platform/ui/DataGrid.h"

#include <QAbstractTableModel>

namespace quillmere::qt {

/// The rows and columns of a grid, as a Qt view asks for them.
class GridModel final : public QAbstractTableModel {
public:
    explicit GridModel(const ui::DataGrid& grid) : grid_(&grid) { reload(); }

    /// Takes rows and columns over anew.
    void reload();
    void detach();
    /// Whether the view shows other counts than the grid has.
    [[nodiscard]] bool isStale() const;
    /// Whether the column holds numbers: by what the grid says of it, or by its first row.
    [[nodiscard]] bool isNumberColumn(int column) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    [[nodiscard]] bool standsRight(int column) const;
    [[nodiscard]] bool isNumber(int row, int column) const;

    const ui::DataGrid* grid_;
    int rows_ = 0;
    int columns_ = 0;
};

} // namespace quillmere::qt
