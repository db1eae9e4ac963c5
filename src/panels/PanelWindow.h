#pragma once

#include "platform/ui/Toolbar.h"

#include <string>

namespace quillmere {

/// What a panel may ask of the window that shows it, and no more.
class PanelWindow {
public:
    PanelWindow() = default;
    PanelWindow(const PanelWindow&) = delete;
    PanelWindow& operator=(const PanelWindow&) = delete;
    virtual ~PanelWindow() = default;

    /// The buttons "Add", "Delete" and "Save" of the record toolbar.
    [[nodiscard]] virtual ui::Toolbar::Button& toolbarButton(std::string_view key) = 0;
    virtual void TbMain_ButtonClick(ui::Toolbar::Button& button) = 0;
    /// Directory of the photo files.
    [[nodiscard]] virtual const std::string& photoPath() const = 0;
    /// The file of the person's photo has been replaced.
    virtual void photoChanged() = 0;
};

} // namespace quillmere
