#pragma once

#include "platform/ui/EditBox.h"
#include "platform/ui/Mask.h"

namespace quillmere::ui {

/// A box whose text stands under a mask. `Text` is what shows, literals and prompt characters
/// included; a program may set any text, a person only fills the digit positions.
class MaskEdBox : public EditBox {
public:
    MaskEdBox(std::string name, std::string mask, std::string format, char32_t promptChar = U'_');

    [[nodiscard]] const std::string& MaskText() const { return maskText_; }
    /// The picture by which a program formats a date for this box.
    [[nodiscard]] const std::string& Format() const { return format_; }
    [[nodiscard]] char32_t PromptChar() const { return promptChar_; }
    /// The mask with every "#" replaced by the prompt character.
    [[nodiscard]] const std::string& emptyText() const { return emptyText_; }
    void setSelStart(std::size_t start) { setSelection(start, 0); }
    /// A person points before the character at that position with the mouse.
    void pointByPerson(std::size_t position);

    [[nodiscard]] std::optional<std::string> property(std::string_view name) const override;

protected:
    void personKeyDown(const KeyStroke& stroke) override;
    void personCharacter(char32_t character) override;
    void personPaste(std::string_view text) override;

private:
    [[nodiscard]] Mask::State state() const;
    void apply(const Mask::State& state);

    std::string maskText_;
    std::string format_;
    char32_t promptChar_;
    Mask mask_;
    std::string emptyText_;
};

} // namespace quillmere::ui
