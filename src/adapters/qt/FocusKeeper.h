#pragma once

#include "platform/ui/Control.h"

#include <QObject>

namespace quillmere::qt {

class FormPeer;

/// Keeps the keyboard focus of one window where the model has it. The model decides before anything
/// moves; whatever Qt moves by itself is put back when the loop has control.
class FocusKeeper final : public QObject {
public:
    explicit FocusKeeper(FormPeer& peer);

    /// The model's focus is here now, or nowhere.
    void follow(ui::Control* now);

private:
    void put();
    void putLater();
    [[nodiscard]] QWidget* wanted() const;

    FormPeer& peer_;
    bool scheduled_ = false;
};

} // namespace quillmere::qt
