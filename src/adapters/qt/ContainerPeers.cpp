#include "adapters/qt/ContainerPeers.h"

#include "adapters/qt/FormPeer.h"
#include "adapters/qt/Style.h"

#include "platform/ui/Skin.h"

#include <QFrame>

namespace quillmere::qt {

FramePeer::FramePeer(FormPeer& form, ui::Control& control)
    : ControlPeer(form, control, new QWidget(&form.window())) {}

LinePeer::LinePeer(FormPeer& form, ui::Control& control)
    : ControlPeer(form, control, new QFrame(&form.window())) {
    widget()->setFixedHeight(1);
    widget()->setProperty("role", "rule");
}

HiddenPeer::HiddenPeer(FormPeer& form, ui::Control& control)
    : ControlPeer(form, control, new QWidget(&form.window())) {}

SkinPeer::SkinPeer(FormPeer& form, ui::Control& control)
    : ControlPeer(form, control, new QWidget(&form.window())) {
    mirror(ui::Property::Picture);
}

void SkinPeer::mirror(ui::Property /*property*/) {
    const auto& skin = as<ui::Skin>();
    if (skin.isApplied()) style::applySkin(formPeer().window(), skin.path());
}

} // namespace quillmere::qt
