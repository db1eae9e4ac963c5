#pragma once

#include "panels/RowGridPanel.h"

namespace quillmere {

/// The work schedule of a project, with its stages.
class A1ctrlUserP02_DG final : public RowGridPanel {
public:
    A1ctrlUserP02_DG(const PanelRow& row, std::string name, PanelWindow& window)
        : RowGridPanel(row, std::move(name), window, scheduleGrids()) {}

    void BindGrid() { bind(0); }

protected:
    void onFilled() override { BindGrid(); }
};

} // namespace quillmere
