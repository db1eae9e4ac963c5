#include "adapters/qt/PanelPeer.h"

#include "adapters/qt/DialogLayout.h"
#include "adapters/qt/FormPeer.h"
#include "adapters/qt/PanelLayout.h"

#include "platform/ui/UserControl.h"

namespace quillmere::qt {

PanelPeer::PanelPeer(FormPeer& form, ui::Control& control)
    : ControlPeer(form, control, new QWidget(&form.window())) {
    as<ui::UserControl>().setHostView(this);
    form.schedulePending();
}

PanelPeer::~PanelPeer() {
    if (control() != nullptr) as<ui::UserControl>().setHostView(nullptr);
}

void PanelPeer::buildPending() {
    auto& panel = as<ui::UserControl>();
    std::vector<ControlPeer*> fresh;
    for (const auto& inner : panel.Controls()) {
        if (formPeer().peerOf(inner.get()) == nullptr) fresh.push_back(&makePeer(formPeer(), *inner));
    }
    if (!std::exchange(laidOut_, true)) {
        layOutPanel(formPeer(), panel, *widget());
    } else {
        for (ControlPeer* peer : fresh)
            putInto(*widget(), *peer);
    }
    if (!fresh.empty()) formPeer().names().nameControls(panel);
}

void PanelPeer::added(ui::Control& /*control*/) { formPeer().schedulePending(); }

void PanelPeer::removed(ui::Control& control) { formPeer().removed(control); }

} // namespace quillmere::qt
