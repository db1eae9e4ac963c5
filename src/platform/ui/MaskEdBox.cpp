#include "platform/ui/MaskEdBox.h"

#include "platform/text/Text.h"

namespace quillmere::ui {

MaskEdBox::MaskEdBox(std::string name, std::string mask, std::string format, char32_t promptChar)
    : EditBox(Kind::MaskEdBox, std::move(name), text::encode(Mask(mask, promptChar).empty()))
    , maskText_(std::move(mask))
    , format_(std::move(format))
    , promptChar_(promptChar)
    , mask_(maskText_, promptChar)
    , emptyText_(Text()) {}

void MaskEdBox::pointByPerson(std::size_t position) {
    setSelStart(mask_.pointed(text::decode(Text()), position));
}

Mask::State MaskEdBox::state() const { return {text::decode(Text()), SelStart(), SelLength()}; }

void MaskEdBox::apply(const Mask::State& state) {
    // By characters: bytes that are none stay until a person changes something.
    const bool differs = state.text != text::decode(Text());
    show(differs ? text::encode(state.text) : Text(), {state.caret, state.selected, false});
}

void MaskEdBox::personCharacter(char32_t character) {
    Mask::State edited = state();
    if (character == key::Backspace)
        mask_.backspace(edited);
    else if (character >= U' ')
        mask_.type(edited, character);
    else
        return;
    apply(edited);
}

void MaskEdBox::personPaste(std::string_view text) {
    Mask::State edited = state();
    mask_.paste(edited, text::decode(text));
    apply(edited);
}

void MaskEdBox::personKeyDown(const KeyStroke& stroke) {
    const std::size_t length = text::length(Text());
    const std::size_t caret = selection().caret();
    if (const auto moved = selection().afterKey(stroke, caret > 0 ? 1 : 0, caret < length ? 1 : 0, length)) {
        select(*moved);
    } else if (stroke.code == key::Delete) {
        Mask::State edited = state();
        mask_.erase(edited);
        apply(edited);
    }
}

std::optional<std::string> MaskEdBox::property(std::string_view name) const {
    const auto is = [&](std::string_view wanted) { return text::equalsNoCase(name, wanted); };
    if (is("Mask")) return maskText_;
    if (is("Format")) return format_;
    if (is("PromptChar")) return text::encode(promptChar_);
    return EditBox::property(name);
}

} // namespace quillmere::ui
