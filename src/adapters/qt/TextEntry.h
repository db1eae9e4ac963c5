#pragma once

#include "adapters/qt/ControlPeer.h"

#include "platform/ui/TextBox.h"

#include <QString>

#include <functional>

class QInputMethodEvent;

namespace quillmere::qt {

/// What the boxes for text on one line and on many have in common: the toolkit edits, and each
/// character that a person enters passes the filters of the form first.
class TextEntry : public ControlPeer {
public:
    using ControlPeer::ControlPeer;

    /// Enters what was typed or composed: what the filters leave of it, as far as there is room.
    void enterTyped(const QString& text);
    /// One event of an input method, which `base` gives to the native editor. A composition under way
    /// is the editor's alone: the model hears of what comes of it when it ends.
    void compose(QInputMethodEvent& event, const std::function<void(QInputMethodEvent&)>& base);
    /// Lets the input method finish a composition under way; what it leaves unfinished is dropped.
    void finishComposition();
    /// Takes a composition that is under way off the screen.
    void dropComposition();
    /// Enters a text that is not typed and passes no filter.
    void enterPasted(const QString& text);
    /// The native editor has changed its text or its caret: the model follows.
    void follow();

    /// Opens the list behind a coded field.
    void openCodes();
    /// Whether the box takes its text from a list of codes.
    [[nodiscard]] bool isCoded() const;

    bool keyPressed(QKeyEvent& event) override;
    bool mousePressed(QMouseEvent& event, QWidget& target) override;
    void mouseMoved(QMouseEvent& event, QWidget& /*target*/) override { tellMouseMove(event); }

protected:
    [[nodiscard]] ui::TextBox& box() const { return as<ui::TextBox>(); }
    void mirror(ui::Property property) override;

    // The native editor. Texts have its own line breaks.

    [[nodiscard]] virtual QString shownText() const = 0;
    virtual void showText(const QString& text) = 0;
    /// Anchor and length in units.
    virtual void showSelection(int start, int length) = 0;
    [[nodiscard]] virtual int selectionStart() const = 0;
    [[nodiscard]] virtual QString selectedText() const = 0;
    virtual void insert(const QString& text) = 0;
    virtual void eraseBackwards() = 0;
    virtual void showLooks() = 0;
    [[nodiscard]] virtual QString fromModel(const std::string& text) const = 0;
    [[nodiscard]] virtual std::string toModel(const QString& text) const = 0;
    /// The native part of an editing command such as undo or a move of the caret.
    [[nodiscard]] virtual bool isNativeCommand(const QKeyEvent& event) const = 0;
    virtual void pressEnter() = 0;
    /// A line break, when the filters let Enter through.
    void enterLineBreak();

private:
    /// The character as the filters leave it; 0 when nothing is entered.
    [[nodiscard]] char32_t admit(char32_t character);
    void enter(const QString& text);
    void enterBackspace();
    /// The editor shows the model's text and selection again.
    void showModel();
    void endComposition();

    bool mirroring_ = false;
    bool composing_ = false;
    /// The model's text when the composition began.
    std::string composedOver_;
};

} // namespace quillmere::qt
