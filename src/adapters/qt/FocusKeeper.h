#pragma once

#include "platform/ui/Control.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace quillmere::qt {

class FormPeer;

/// Keeps the keyboard focus of one window where the model has it. The model decides before anything
/// moves; whatever Qt moves by itself is put back when the loop has control.
class FocusKeeper final : public QObject {
public:
    explicit FocusKeeper(FormPeer& peer);

    /// The model's focus is here now, or nowhere.
    void follow(ui::Control* now);
    /// Lets a widget that takes no focus have the keyboard for a time, the model's focus staying where
    /// it is; none gives it back. A move of the model's focus ends it too.
    void lend(QWidget* widget);

private:
    void put();
    void putLater();
    [[nodiscard]] QWidget* wanted() const;

    FormPeer& peer_;
    QPointer<QWidget> borrower_;
    bool scheduled_ = false;
};

} // namespace quillmere::qt
