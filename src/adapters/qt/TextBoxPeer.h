#pragma once

#include "adapters/qt/TextEntry.h"

class QAction;
class QLineEdit;

namespace quillmere::qt {

/// A box for one line of text; blue and with a button when it takes a code.
class TextBoxPeer final : public TextEntry {
public:
    TextBoxPeer(FormPeer& form, ui::Control& control);

protected:
    [[nodiscard]] QString shownText() const override;
    void showText(const QString& text) override;
    void showSelection(int start, int length) override;
    [[nodiscard]] int selectionStart() const override;
    [[nodiscard]] QString selectedText() const override;
    void insert(const QString& text) override;
    void eraseBackwards() override;
    void showLooks() override;
    void mirror(ui::Property property) override;
    [[nodiscard]] QString fromModel(const std::string& text) const override;
    [[nodiscard]] std::string toModel(const QString& text) const override;
    [[nodiscard]] bool isNativeCommand(const QKeyEvent& event) const override;
    void pressEnter() override;

private:
    [[nodiscard]] QLineEdit& editor() const;

    QAction* codes_ = nullptr;
};

} // namespace quillmere::qt
