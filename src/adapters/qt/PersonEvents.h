#pragma once

#include "adapters/qt/MenuKeys.h"

#include <QObject>

class QKeyEvent;
class QMouseEvent;
class QWidget;

namespace quillmere::qt {

class FormPeer;

/// Sees keys and mouse buttons before the widgets of one window do, and hands them to the peer
/// concerned: so that the focus is asked for before anything moves, presses or toggles.
class PersonEvents final : public QObject {
public:
    explicit PersonEvents(FormPeer& peer);
    ~PersonEvents() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] bool pass(QWidget& widget, QEvent& event);
    [[nodiscard]] bool key(QWidget& widget, QKeyEvent& event);
    [[nodiscard]] bool press(QWidget& widget, QMouseEvent& event);
    [[nodiscard]] bool move(QWidget& widget, QMouseEvent& event);

    FormPeer& peer_;
    MenuKeys menuKeys_;
    bool eatsRelease_ = false;
};

} // namespace quillmere::qt
