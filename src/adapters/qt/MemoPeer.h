#pragma once

#include "adapters/qt/TextEntry.h"

class QPlainTextEdit;

namespace quillmere::qt {

/// A box for text on many lines. Line breaks are carriage return and line feed in the model.
class MemoPeer final : public TextEntry {
public:
    MemoPeer(FormPeer& form, ui::Control& control);

protected:
    [[nodiscard]] QString shownText() const override;
    void showText(const QString& text) override;
    void showSelection(int start, int length) override;
    [[nodiscard]] int selectionStart() const override;
    [[nodiscard]] QString selectedText() const override;
    void insert(const QString& text) override;
    void eraseBackwards() override;
    void showLooks() override;
    [[nodiscard]] QString fromModel(const std::string& text) const override;
    [[nodiscard]] std::string toModel(const QString& text) const override;
    [[nodiscard]] bool isNativeCommand(const QKeyEvent& event) const override;
    void pressEnter() override;

private:
    [[nodiscard]] QPlainTextEdit& editor() const;
};

} // namespace quillmere::qt
