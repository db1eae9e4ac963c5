#include "adapters/qt/FocusKeeper.h"

#include "adapters/qt/FormPeer.h"
#include "adapters/qt/Guard.h"

#include <QApplication>
#include <QScrollArea>
#include <QTimer>

namespace quillmere::qt {

namespace {

/// Room to leave around the field with the focus when the form scrolls to it.
constexpr int scrollMargin = 24;

void scrollTo(QWidget& widget) {
    for (QWidget* around = widget.parentWidget(); around != nullptr; around = around->parentWidget()) {
        auto* area = qobject_cast<QScrollArea*>(around);
        if (area != nullptr) area->ensureWidgetVisible(&widget, scrollMargin, scrollMargin);
        if (around->isWindow()) return;
    }
}

} // namespace

FocusKeeper::FocusKeeper(FormPeer& peer) : peer_(peer) {
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*old*/, QWidget* now) {
        if (now != nullptr && now->window() == &peer_.window()) putLater();
    });
}

QWidget* FocusKeeper::wanted() const {
    if (borrower_ != nullptr && borrower_->isVisible()) return borrower_;
    const ControlPeer* peer = peer_.peerOf(peer_.form().ActiveControl());
    return peer != nullptr && peer->focusTarget() != nullptr ? peer->focusTarget() : &peer_.window();
}

void FocusKeeper::lend(QWidget* widget) {
    borrower_ = widget;
    put();
}

void FocusKeeper::follow(ui::Control* now) {
    borrower_ = nullptr;
    if (now != nullptr && peer_.peerOf(now) != nullptr) put();
    putLater();
}

void FocusKeeper::put() {
    QWidget* target = wanted();
    if (target == peer_.window().focusWidget() && (target->hasFocus() || !peer_.window().isActiveWindow()))
        return;
    target->setFocus(Qt::OtherFocusReason);
    if (target != &peer_.window()) scrollTo(*target);
}

void FocusKeeper::putLater() {
    if (scheduled_) return;
    scheduled_ = true;
    QTimer::singleShot(0, this, [this] {
        scheduled_ = false;
        if (QApplication::activePopupWidget() != nullptr) return;
        guarded([this] { put(); });
    });
}

} // namespace quillmere::qt
