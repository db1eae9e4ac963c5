#pragma once

#include "adapters/qt/ModalSession.h"

#include "platform/ui/Desktop.h"

#include <QWidget>

class QHBoxLayout;

namespace quillmere::qt {

/// A message with its buttons ("messageBox", with "messageText", "btnOk", "btnYes" and "btnNo").
/// Closing it by its frame or with Escape is OK, or No.
class MessageBoxDialog final : public QWidget {
public:
    /// A box without a title of its own shows the one of the window below it.
    MessageBoxDialog(const ui::MessageBox& box, const QString& titleBelow, QWidget* parent);

    /// Shows the message and works until it is answered.
    [[nodiscard]] ui::Answer ask();
    /// As pressing the button.
    void choose(ui::Answer answer);

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void addButton(QHBoxLayout& row, const QString& name, const QString& text, ui::Answer answer);

    ModalSession session_;
    ui::Buttons buttons_;
    ui::Answer answer_;
};

} // namespace quillmere::qt
