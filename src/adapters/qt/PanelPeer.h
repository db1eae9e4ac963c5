#pragma once

#include "adapters/qt/ControlPeer.h"

#include "platform/ui/ControlHost.h"

namespace quillmere::qt {

/// A panel: a user control with the peers of the controls that it bears.
class PanelPeer final : public ControlPeer, public ui::HostView {
public:
    PanelPeer(FormPeer& form, ui::Control& control);
    ~PanelPeer() override;

    [[nodiscard]] QWidget* surface() const override { return widget(); }

    /// Creates the peers of the controls that have none yet, and lays them out.
    void buildPending();

    void added(ui::Control& control) override;
    void removed(ui::Control& control) override;

private:
    bool laidOut_ = false;
};

} // namespace quillmere::qt
