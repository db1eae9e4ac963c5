#pragma once

#include "adapters/qt/ControlPeer.h"

class QPushButton;

namespace quillmere::qt {

class ButtonPeer final : public ControlPeer {
public:
    ButtonPeer(FormPeer& form, ui::Control& control);

    bool mousePressed(QMouseEvent& event, QWidget& target) override;

protected:
    void mirror(ui::Property property) override;

private:
    [[nodiscard]] QPushButton& button() const;
};

} // namespace quillmere::qt
