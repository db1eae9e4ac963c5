#include "platform/ui/MaskEdBox.h"

#include "platform/text/Text.h"

#include <algorithm>

namespace quillmere::ui {

MaskEdBox::MaskEdBox(std::string name, std::string mask, std::string format, char32_t promptChar)
    : Control(Kind::MaskEdBox, std::move(name))
    , maskText_(std::move(mask))
    , format_(std::move(format))
    , promptChar_(promptChar)
    , mask_(maskText_, promptChar)
    , emptyText_(text::encode(mask_.empty()))
    , text_(emptyText_) {}

void MaskEdBox::setText(std::string text) {
    const std::size_t length = text::length(text);
    const bool differs = text_ != text;
    text_ = std::move(text);
    select({std::min(selection_.start, length), 0, false});
    if (!differs) return;
    notify(Property::Text);
    Change.raise();
}

void MaskEdBox::setSelection(std::size_t start, std::size_t length) {
    const Selection wanted = Selection{start, length, false}.within(text::length(text_));
    // The same characters may be on show with the caret before them: that stays.
    if (wanted.start != selection_.start || wanted.length != selection_.length) select(wanted);
}

void MaskEdBox::pointByPerson(std::size_t position) {
    setSelStart(mask_.pointed(text::decode(text_), position));
}

void MaskEdBox::select(const Selection& selection) {
    if (selection == selection_) return;
    selection_ = selection;
    notify(Property::Selection);
}

Mask::State MaskEdBox::state() const { return {text::decode(text_), selection_.start, selection_.length}; }

void MaskEdBox::apply(const Mask::State& state) {
    std::string changed = text::encode(state.text);
    const bool differs = changed != text_;
    text_ = std::move(changed);
    selection_ = {state.caret, state.selected, false};
    if (differs) notify(Property::Text);
    notify(Property::Selection);
    if (differs) Change.raise();
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

void MaskEdBox::selectAll() { setSelection(0, text::length(text_)); }

void MaskEdBox::personKeyDown(const KeyStroke& stroke) {
    const std::size_t length = text::length(text_);
    const std::size_t caret = selection_.caret();
    if (const auto moved = selection_.afterKey(stroke, caret > 0 ? 1 : 0, caret < length ? 1 : 0, length)) {
        select(*moved);
    } else if (stroke.code == key::Delete) {
        Mask::State edited = state();
        mask_.erase(edited);
        apply(edited);
    }
}

std::optional<std::string> MaskEdBox::property(std::string_view name) const {
    const auto is = [&](std::string_view wanted) { return text::equalsNoCase(name, wanted); };
    if (is("Text")) return text_;
    if (is("Mask")) return maskText_;
    if (is("Format")) return format_;
    if (is("PromptChar")) return text::encode(promptChar_);
    if (is("SelStart")) return std::to_string(selection_.start);
    if (is("SelLength")) return std::to_string(selection_.length);
    return Control::property(name);
}

} // namespace quillmere::ui
