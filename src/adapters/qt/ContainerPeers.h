#pragma once

#include "adapters/qt/ControlPeer.h"

namespace quillmere::qt {

/// A frame: a plain surface for the controls in it, dimmed as a whole when it is disabled.
class FramePeer final : public ControlPeer {
public:
    FramePeer(FormPeer& form, ui::Control& control);

    [[nodiscard]] QWidget* surface() const override { return widget(); }
};

/// A rule.
class LinePeer final : public ControlPeer {
public:
    LinePeer(FormPeer& form, ui::Control& control);
};

/// A control that has nothing to see.
class HiddenPeer final : public ControlPeer {
public:
    HiddenPeer(FormPeer& form, ui::Control& control);
};

/// Nothing to see: has the window wear the skin.
class SkinPeer final : public ControlPeer {
public:
    SkinPeer(FormPeer& form, ui::Control& control);

protected:
    void mirror(ui::Property property) override;
};

} // namespace quillmere::qt
