#pragma once

#include "adapters/qt/ControlPeer.h"

namespace quillmere::qt {

/// Shows a picture file whole, in its own proportions; the outline of a person where there is none.
class ImagePeer final : public ControlPeer {
public:
    ImagePeer(FormPeer& form, ui::Control& control);

    bool mousePressed(QMouseEvent& event, QWidget& target) override;

protected:
    void mirror(ui::Property property) override;
};

} // namespace quillmere::qt
