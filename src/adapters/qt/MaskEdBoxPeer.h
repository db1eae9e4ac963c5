#pragma once

#include "adapters/qt/ControlPeer.h"

class QLineEdit;
class QString;

namespace quillmere::qt {

/// A masked box. Nothing is edited here: keys, compositions and pastes go to the model, and the model's
/// text and caret are shown.
class MaskEdBoxPeer final : public ControlPeer {
public:
    MaskEdBoxPeer(FormPeer& form, ui::Control& control);

    void enterTyped(const QString& text);
    void enterPasted(const QString& text);
    void eraseSelection();
    /// The caret was moved or a part selected with the mouse.
    void followCaret();

    bool keyPressed(QKeyEvent& event) override;
    bool mousePressed(QMouseEvent& event, QWidget& target) override;

protected:
    void mirror(ui::Property property) override;

private:
    [[nodiscard]] QLineEdit& editor() const;

    bool mirroring_ = false;
};

} // namespace quillmere::qt
