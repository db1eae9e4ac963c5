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
    setSelection(std::min(selStart_, length), 0);
    if (!differs) return;
    notify(Property::Text);
    Change.raise();
}

void MaskEdBox::setSelection(std::size_t start, std::size_t length) {
    if (start == selStart_ && length == selLength_) return;
    selStart_ = start;
    selLength_ = length;
    notify(Property::Selection);
}

Mask::State MaskEdBox::state() const { return {text::decode(text_), selStart_, selLength_}; }

void MaskEdBox::apply(const Mask::State& state) {
    std::string changed = text::encode(state.text);
    const bool differs = changed != text_;
    text_ = std::move(changed);
    selStart_ = state.caret;
    selLength_ = state.selected;
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
    const std::size_t end = selStart_ + selLength_;
    const bool extend = (stroke.shift & shift::Shift) != 0;
    switch (stroke.code) {
    case key::Home:
        setSelection(0, extend ? selStart_ : 0);
        break;
    case key::End:
        extend ? setSelection(selStart_, length - std::min(selStart_, length)) : setSelection(length, 0);
        break;
    case key::Left:
        if (end > 0) setSelection(selLength_ != 0 ? selStart_ : end - 1, 0);
        break;
    case key::Right:
        if (end < length || selLength_ != 0) setSelection(selLength_ != 0 ? end : end + 1, 0);
        break;
    case key::Delete: {
        Mask::State edited = state();
        mask_.erase(edited);
        apply(edited);
        break;
    }
    default:
        break;
    }
}

std::optional<std::string> MaskEdBox::property(std::string_view name) const {
    const auto is = [&](std::string_view wanted) { return text::equalsNoCase(name, wanted); };
    if (is("Text")) return text_;
    if (is("Mask")) return maskText_;
    if (is("Format")) return format_;
    if (is("PromptChar")) return text::encode(promptChar_);
    if (is("SelStart")) return std::to_string(selStart_);
    if (is("SelLength")) return std::to_string(selLength_);
    return Control::property(name);
}

} // namespace quillmere::ui
