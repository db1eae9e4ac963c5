#pragma once

#include "adapters/qt/ControlPeer.h"

class QCheckBox;

namespace quillmere::qt {

class CheckBoxPeer final : public ControlPeer {
public:
    CheckBoxPeer(FormPeer& form, ui::Control& control);

    bool mousePressed(QMouseEvent& event, QWidget& target) override;
    void mouseMoved(QMouseEvent& event, QWidget& /*target*/) override { tellMouseMove(event); }

protected:
    void mirror(ui::Property property) override;

private:
    [[nodiscard]] QCheckBox& box() const;
    /// What the model says.
    [[nodiscard]] bool isChecked() const;
};

} // namespace quillmere::qt
