#pragma once

#include "adapters/qt/AccessibleNames.h"
#include "adapters/qt/ControlPeer.h"
#include "adapters/qt/FocusKeeper.h"
#include "adapters/qt/FormWindow.h"
#include "adapters/qt/ModalSession.h"
#include "adapters/qt/PersonEvents.h"
#include "adapters/qt/Style.h"

#include "platform/ui/Form.h"
#include "platform/ui/UserControl.h"

#include <memory>
#include <unordered_map>

namespace quillmere::qt {

/// The Qt side of one form during one modal show: its window, the peers of its controls, also of those
/// that come and go, and the session that its closing ends.
class FormPeer final : public ui::FormView, public ui::HostView {
public:
    /// The parent is the window in front; none when this is the first.
    FormPeer(ui::Form& form, QWidget* parent);
    ~FormPeer() override;

    /// Shows the window.
    void show();
    /// Works until the form is closed.
    void run();

    [[nodiscard]] ui::Form& form() const { return form_; }
    [[nodiscard]] FormWindow& window() const { return *window_; }
    /// The window of records has a layout of its own; everything else is a dialog.
    [[nodiscard]] bool isMainWindow() const;
    /// What assistive programs call the controls.
    [[nodiscard]] AccessibleNames& names() { return names_; }
    [[nodiscard]] FocusKeeper& focus() { return focus_; }

    [[nodiscard]] ControlPeer* peerOf(const ui::Control* control) const;
    /// The peer of the widget or of the nearest one around it that has a peer.
    [[nodiscard]] ControlPeer* peerAround(const QWidget* widget) const;

    // For peers.

    void adopt(ControlPeer& peer);
    void forget(ControlPeer& peer);
    /// Refreshes what stands in a container that was shown, hidden, enabled or disabled.
    void refreshContents(const ui::Control& container);
    /// Creates the peers of controls that have been added since. Done in the loop, or sooner when
    /// someone is about to look.
    void buildPending();
    void schedulePending();

    void captionChanged() override;
    void focusMoved(ui::Control* now) override;
    void closed() override { session_.end(); }
    void added(ui::Control& control) override;
    void removed(ui::Control& control) override;

private:
    void dropPeer(ui::Control& control);

    ui::Form& form_;
    std::unordered_map<const ui::Control*, ControlPeer*> peers_;
    std::unordered_map<const QWidget*, ControlPeer*> byWidget_;
    /// Gives the skin back when the window has gone.
    style::SkinKeeper skin_;
    std::unique_ptr<FormWindow> window_;
    ModalSession session_;
    FocusKeeper focus_;
    AccessibleNames names_;
    PersonEvents events_;
    bool pending_ = false;
    bool scheduled_ = false;
};

/// Creates the peer of a control; its widget is a hidden child of the window until a layout places it.
ControlPeer& makePeer(FormPeer& form, ui::Control& control);

} // namespace quillmere::qt
