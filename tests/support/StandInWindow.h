#pragma once

#include "panels/A1ctrlUser.h"
#include "panels/PanelWindow.h"
#include "platform/ui/Form.h"
#include "platform/ui/Toolbar.h"

#include <string>
#include <vector>

namespace quillmere::test {

/// A window around panels that does nothing of its own: it keeps what a panel asks of it. Its record
/// buttons are disabled at first.
class StandInWindow final : public ui::Form, public PanelWindow {
public:
    StandInWindow() : Form("window", "window") {
        for (const char* key : {"Add", "Delete", "Save"})
            toolbar.addButton(key, key).setEnabled(false);
    }

    /// Puts a visible panel of that row on the window; the row must outlive it.
    A1ctrlUser& place(const PanelRow& row) {
        auto& panel = add<A1ctrlUser>(row, std::string(row.className), *this);
        panel.setVisible(true);
        return panel;
    }

    ui::Toolbar::Button& toolbarButton(std::string_view key) override { return toolbar.Buttons(key); }
    void TbMain_ButtonClick(ui::Toolbar::Button& button) override { clicked.push_back(button.Key()); }
    const std::string& photoPath() const override { return folder; }
    void photoChanged() override { ++photoChanges; }

    ui::Toolbar& toolbar = add<ui::Toolbar>("TbMain");
    /// Keys of the buttons that a panel clicked, in order.
    std::vector<std::string> clicked;
    std::string folder = "photos";
    int photoChanges = 0;
};

} // namespace quillmere::test
