#pragma once

#include "adapters/qt/ControlPeer.h"

#include <vector>

class QToolButton;

namespace quillmere::qt {

/// A row of buttons that take no focus. Each is named after the toolbar and its key: "TbMain_Add".
class ToolbarPeer final : public ControlPeer {
public:
    ToolbarPeer(FormPeer& form, ui::Control& control);

protected:
    void mirror(ui::Property property) override;

private:
    void addButtons();

    /// In the order of the model's buttons; none for a separator.
    std::vector<QToolButton*> buttons_;
};

} // namespace quillmere::qt
