#include "adapters/qt/FormPeer.h"

#include "adapters/qt/DialogLayout.h"
#include "adapters/qt/Guard.h"
#include "adapters/qt/PanelPeer.h"
#include "adapters/qt/QtText.h"
#include "adapters/qt/Style.h"
#include "adapters/qt/WindowLayout.h"

#include <QCoreApplication>
#include <QTimer>

#include <vector>

namespace quillmere::qt {

FormPeer::FormPeer(ui::Form& form, QWidget* parent)
    : form_(form)
    , window_(std::make_unique<FormWindow>(*this, parent))
    , focus_(*this)
    , names_(*this)
    , events_(*this) {
    style::dress(*window_);
    for (const auto& control : form.Controls())
        makePeer(*this, *control);
    if (isMainWindow())
        layOutWindow(*this);
    else
        layOutDialog(*this);
    form.setFormView(this);
    form.setHostView(this);
    captionChanged();
    names_.nameControls(form);
}

FormPeer::~FormPeer() {
    form_.setFormView(nullptr);
    form_.setHostView(nullptr);
    while (!peers_.empty())
        peers_.begin()->second->detach();
}

bool FormPeer::isMainWindow() const { return form_.name() == "frmPersonWh"; }

void FormPeer::show() {
    buildPending();
    window_->open();
    focusMoved(form_.ActiveControl());
}

void FormPeer::run() {
    session_.run();
    // The application was told to quit while the form was open.
    if (form_.isOpen()) form_.closeByFrame();
}

ControlPeer* FormPeer::peerOf(const ui::Control* control) const {
    const auto found = peers_.find(control);
    return found == peers_.end() ? nullptr : found->second;
}

ControlPeer* FormPeer::peerAround(const QWidget* widget) const {
    for (; widget != nullptr; widget = widget->parentWidget()) {
        if (const auto found = byWidget_.find(widget); found != byWidget_.end()) return found->second;
        if (widget->isWindow()) break;
    }
    return nullptr;
}

void FormPeer::adopt(ControlPeer& peer) {
    peers_[peer.control()] = &peer;
    byWidget_[peer.widget()] = &peer;
}

void FormPeer::forget(ControlPeer& peer) {
    names_.forget(peer);
    peers_.erase(peer.control());
    std::erase_if(byWidget_, [&](const auto& entry) { return entry.second == &peer; });
}

void FormPeer::refreshContents(const ui::Control& container) {
    std::vector<ControlPeer*> inside;
    for (const auto& [control, peer] : peers_) {
        for (const ui::Control* around = control->Container(); around != nullptr;
             around = around->Container()) {
            if (around == &container) inside.push_back(peer);
        }
    }
    for (ControlPeer* peer : inside)
        peer->refreshState();
}

void FormPeer::schedulePending() {
    pending_ = true;
    if (scheduled_) return;
    scheduled_ = true;
    QTimer::singleShot(0, window_.get(), [this] {
        scheduled_ = false;
        guarded([this] { buildPending(); });
    });
}

void FormPeer::buildPending() {
    if (!pending_) return;
    pending_ = false;
    bool fresh = false;
    for (const auto& control : form_.Controls()) {
        if (peerOf(control.get()) != nullptr) continue;
        fresh = true;
        ControlPeer& peer = makePeer(*this, *control);
        ControlPeer* container = peerOf(control->Container());
        QWidget* surface = container == nullptr ? nullptr : container->surface();
        putInto(surface == nullptr ? *window_ : *surface, peer);
    }
    for (const auto& control : form_.Controls()) {
        auto* panel = dynamic_cast<PanelPeer*>(peerOf(control.get()));
        if (panel != nullptr) panel->buildPending();
    }
    if (fresh) names_.nameControls(form_);
    // A layout takes several rounds. On a real screen the unfinished ones would flash up.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    focusMoved(form_.ActiveControl());
}

void FormPeer::captionChanged() { window_->setWindowTitle(toQt(form_.Caption())); }

void FormPeer::focusMoved(ui::Control* now) { focus_.follow(now); }

void FormPeer::added(ui::Control& /*control*/) { schedulePending(); }

void FormPeer::dropPeer(ui::Control& control) {
    ControlPeer* peer = peerOf(&control);
    if (peer == nullptr) return;
    QWidget* widget = peer->widget();
    // Its own event may be running, so it only goes when the loop has control again.
    peer->detach();
    if (widget == nullptr) return;
    widget->hide();
    widget->deleteLater();
}

void FormPeer::removed(ui::Control& control) {
    if (auto* host = dynamic_cast<ui::UserControl*>(&control); host != nullptr) {
        host->setHostView(nullptr);
        for (const auto& inner : host->Controls()) {
            if (ControlPeer* peer = peerOf(inner.get()); peer != nullptr) peer->detach();
        }
    }
    dropPeer(control);
}

} // namespace quillmere::qt
