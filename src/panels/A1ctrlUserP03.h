#pragma once

#include "panels/RowGridPanel.h"

namespace quillmere {

/// The budget of a project: its rows by subject or by purpose, as the sponsorship type wants it.
/// Both grids are there and filled under every type, one of them off the screen.
class A1ctrlUserP03 final : public RowGridPanel {
public:
    A1ctrlUserP03(const PanelRow& row, std::string name, PanelWindow& window);

    void BindGridABCE() { bind(0); }
    void BindGridDG() { bind(1); }

protected:
    void onFilled() override;

private:
    void layOut();
};

} // namespace quillmere
