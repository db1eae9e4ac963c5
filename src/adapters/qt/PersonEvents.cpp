#include "adapters/qt/PersonEvents.h"

#include "adapters/qt/FormPeer.h"
#include "adapters/qt/Guard.h"
#include "adapters/qt/QtKeys.h"
#include "adapters/qt/TextEntry.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

namespace quillmere::qt {

PersonEvents::PersonEvents(FormPeer& peer) : peer_(peer), menuKeys_(peer) { qApp->installEventFilter(this); }

PersonEvents::~PersonEvents() { qApp->removeEventFilter(this); }

bool PersonEvents::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
        break;
    default:
        return false;
    }
    if (!watched->isWidgetType()) return false;
    auto& widget = *static_cast<QWidget*>(watched);
    if (widget.window() != &peer_.window()) return false;
    bool eaten = true;
    guarded([&] { eaten = pass(widget, *event); });
    return eaten;
}

bool PersonEvents::pass(QWidget& widget, QEvent& event) {
    switch (event.type()) {
    case QEvent::KeyPress:
        return key(widget, static_cast<QKeyEvent&>(event));
    case QEvent::MouseMove:
        return move(widget, static_cast<QMouseEvent&>(event));
    case QEvent::MouseButtonRelease:
        return std::exchange(eatsRelease_, false);
    default:
        eatsRelease_ = false;
        eatsRelease_ = press(widget, static_cast<QMouseEvent&>(event));
        return eatsRelease_;
    }
}

bool PersonEvents::key(QWidget& widget, QKeyEvent& event) {
    if (menuKeys_.take(event)) return true;
    ui::Form& form = peer_.form();
    ControlPeer* peer = peer_.peerAround(&widget);
    // A key that its widget left alone climbs to the widgets around it, where it was seen already.
    const bool own = peer != nullptr && peer->focusTarget() == &widget && peer->control() != nullptr;
    bool done = false;
    ControlPeer* active = peer_.peerOf(form.ActiveControl());
    if (own) {
        done = peer->keyPressed(event);
    } else if (widget.hasFocus() && &widget == &peer_.window() && active != nullptr) {
        // The window has just come back to the front; the keyboard is not handed on yet.
        done = active->keyPressed(event);
    } else if (&widget == &peer_.window() && active == nullptr) {
        if (const auto stroke = strokeOf(event); stroke) {
            form.pressKey(*stroke);
            done = true;
        }
    }
    const bool leaves = event.key() == Qt::Key_Escape && (own || &widget == &peer_.window());
    if (leaves && !peer_.isMainWindow() && form.isOpen()) {
        form.closeByFrame();
        return true;
    }
    return done;
}

bool PersonEvents::press(QWidget& widget, QMouseEvent& event) {
    menuKeys_.leave();
    // What is being composed counts before anything is asked, saved or left.
    if (auto* entry = dynamic_cast<TextEntry*>(peer_.peerOf(peer_.form().ActiveControl())); entry != nullptr)
        entry->finishComposition();
    ControlPeer* peer = peer_.peerAround(&widget);
    if (peer == nullptr || peer->control() == nullptr) return false;
    return peer->mousePressed(event, widget);
}

bool PersonEvents::move(QWidget& widget, QMouseEvent& event) {
    ControlPeer* peer = peer_.peerAround(&widget);
    if (peer != nullptr && peer->control() != nullptr) peer->mouseMoved(event, widget);
    return false;
}

} // namespace quillmere::qt
