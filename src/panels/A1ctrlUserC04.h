#pragma once

#include "panels/RowGridPanel.h"

namespace quillmere {

/// The overall funding plan of a collective project, with its rows.
class A1ctrlUserC04 final : public RowGridPanel {
public:
    A1ctrlUserC04(const PanelRow& row, std::string name, PanelWindow& window)
        : RowGridPanel(row, std::move(name), window, fundingPlanGrids()) {}

    void BindGrid() { bind(0); }

protected:
    void onFilled() override { BindGrid(); }
};

} // namespace quillmere
