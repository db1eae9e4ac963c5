#pragma once

#include "panels/PanelCatalogue.h"

namespace quillmere {

namespace ui {
class DataGrid;
class Label;
class UserControl;
} // namespace ui

/// The widgets of a panel that its template works with.
struct PanelWidgets {
    ui::Label* labOpt = nullptr;
    ui::Label* labExplain = nullptr;
    /// None on panels that have grids of their own.
    ui::DataGrid* grid = nullptr;
};

/// Builds the widgets of a panel, in this order: title and labels, caption and value widget of each
/// field, the grid, the photo. Tab order is the order of the fields, the grid behind them.
[[nodiscard]] PanelWidgets buildPanelWidgets(ui::UserControl& panel, const PanelRow& row);

} // namespace quillmere
