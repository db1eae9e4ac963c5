#pragma once

#include "adapters/qt/Companion.h"
#include "platform/ui/Desktop.h"

#include <vector>

class QWidget;

namespace quillmere::qt {

class FormPeer;

/// The screen through Qt: modal windows, message boxes and the file dialog.
class QtDesktop final : public ui::Desktop {
public:
    explicit QtDesktop(Companion* companion) : companion_(companion) {}

    ui::Answer msgBox(const ui::MessageBox& box) override;
    std::string openFile(const ui::FileDialog& dialog) override;
    void beep() override;
    ui::Rect screen() const override;

    /// The window in front, a message box before the form below it; none when nothing is open.
    [[nodiscard]] QWidget* frontWindow() const;

protected:
    void runModal(ui::Form& form) override;
    bool canDecode(std::string_view jpeg) const override;

private:
    class InFront;

    /// Brings the window of the form in front up to date, before something shows over it.
    void settleFront() const;
    [[nodiscard]] QWidget* parentForNext() const;

    Companion* companion_;
    std::vector<FormPeer*> forms_;
    std::vector<QWidget*> windows_;
};

} // namespace quillmere::qt
