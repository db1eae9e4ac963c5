#pragma once

#include "panels/A1ctrlUser.h"
#include "panels/RowGrid.h"

#include <cstdint>
#include <string>
#include <vector>

namespace quillmere {

/// A panel whose rows are kept through the row editor and not through the record toolbar: grids of
/// rows, each with buttons to add, modify and delete. A row is in the database once the editor has
/// saved it, and none of this marks the panel as changed.
class RowGridPanel : public A1ctrlUser {
public:
    RowGridPanel(const PanelRow& row, std::string name, PanelWindow& window,
                 std::span<const RowGridRow> grids);

protected:
    /// Shows the rows of the project anew in that grid of the panel, from 0; a failure is told in a
    /// box, and the grid then keeps what it shows.
    void bind(std::size_t index);

private:
    void build(std::size_t index);
    void bindRows(const RowGridRow& row);
    void addRow(const RowGridRow& row);
    void modifyRow(const RowGridRow& row);
    void removeRow(const RowGridRow& row);

    /// Has a row edited, one that shows these cells or a new one without any, and rebinds the grid.
    void edit(const RowGridRow& row, std::int16_t mode, const std::vector<std::string>& cells);
    [[nodiscard]] ui::DataGrid& grid(const RowGridRow& row) const;
    /// What the current row of the grid shows; empty when there is none.
    [[nodiscard]] std::vector<std::string> currentCells(const RowGridRow& row) const;

    std::span<const RowGridRow> grids_;
};

} // namespace quillmere
