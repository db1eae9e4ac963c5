#pragma once

#include "panels/A1ctrlUser.h"
#include "panels/PanelWindow.h"
#include "platform/ui/Form.h"
#include "platform/ui/Toolbar.h"

#include <string>
#include <string_view>

namespace quillmere::component {

/// A panel that a host made by its class name, with no window around it: what stands in for the window is
/// never shown, its record buttons stay disabled, and pressing them does nothing.
class LonePanel final : public ui::Form, private PanelWindow {
public:
    /// Raises Error (CannotCreateObject) for a name that no panel has.
    explicit LonePanel(std::string_view className);

    [[nodiscard]] A1ctrlUser& panel() { return *panel_; }

private:
    ui::Toolbar::Button& toolbarButton(std::string_view key) override { return toolbar_.Buttons(key); }
    void TbMain_ButtonClick(ui::Toolbar::Button& /*button*/) override {}
    const std::string& photoPath() const override { return noFolder_; }
    void photoChanged() override {}

    ui::Toolbar& toolbar_;
    std::string noFolder_;
    A1ctrlUser* panel_;
};

} // namespace quillmere::component
