#pragma once

#include "platform/ui/Alignment.h"
#include "platform/ui/Colour.h"
#include "platform/ui/EditBox.h"

namespace quillmere::ui {

/// A box for text, on one line or many.
class TextBox : public EditBox {
public:
    explicit TextBox(std::string name) : EditBox(Kind::TextBox, std::move(name), {}) {}

    [[nodiscard]] bool Locked() const { return locked_; }
    void setLocked(bool locked);
    /// Most characters that a person may enter, 0 for no limit.
    [[nodiscard]] std::size_t MaxLength() const { return maxLength_; }
    void setMaxLength(std::size_t length);
    [[nodiscard]] bool MultiLine() const { return multiLine_; }
    void setMultiLine(bool multiLine) { multiLine_ = multiLine; }
    [[nodiscard]] ui::Alignment Alignment() const { return alignment_; }
    void setAlignment(ui::Alignment alignment);
    [[nodiscard]] Colour BackColor() const { return backColor_; }
    void setBackColor(Colour colour);

    /// What of an entry could take the place of the selection now: its first line where the box has one
    /// line, its line breaks as "\r\n" where it has many, cut to MaxLength.
    [[nodiscard]] std::string roomFor(std::string_view entry) const;

    /// A person edited the text in the toolkit's own editor: what it holds now, and where the caret
    /// is. A locked box, or a text longer than MaxLength allows, keeps its text; the view is told.
    void personEdited(std::string text, std::size_t selStart);

    [[nodiscard]] std::optional<std::string> property(std::string_view name) const override;

protected:
    void personKeyDown(const KeyStroke& stroke) override;
    void personCharacter(char32_t character) override;
    void personPaste(std::string_view text) override;
    /// Selects the word at the caret: what stands together without a blank or a mark between.
    void personDoubleClick() override;

private:
    [[nodiscard]] std::u32string cutToRoom(std::u32string_view entry) const;
    void enter(std::u32string_view entry);
    void replaceSelection(std::u32string_view with);
    void erase(std::size_t start, std::size_t count);

    std::size_t maxLength_ = 0;
    Colour backColor_ = colour::window;
    ui::Alignment alignment_ = ui::Alignment::Left;
    bool locked_ = false;
    bool multiLine_ = false;
};

} // namespace quillmere::ui
