#include "platform/ui/TextBox.h"

#include "platform/text/Text.h"

#include <algorithm>

namespace quillmere::ui {

void TextBox::setText(std::string text) {
    const std::size_t length = text::length(text);
    const bool differs = text_ != text;
    text_ = std::move(text);
    setSelection(std::min(selStart_, length), 0);
    if (!differs) return;
    notify(Property::Text);
    Change.raise();
}

void TextBox::setLocked(bool locked) {
    if (locked_ == locked) return;
    locked_ = locked;
    notify(Property::Locked);
}

void TextBox::setMaxLength(std::size_t length) {
    if (maxLength_ == length) return;
    maxLength_ = length;
    notify(Property::MaxLength);
}

void TextBox::setBackColor(Colour colour) {
    if (backColor_ == colour) return;
    backColor_ = colour;
    notify(Property::BackColor);
}

void TextBox::setSelection(std::size_t start, std::size_t length) {
    if (start == selStart_ && length == selLength_) return;
    selStart_ = start;
    selLength_ = length;
    notify(Property::Selection);
}

void TextBox::personEdited(std::string text, std::size_t selStart) {
    const std::size_t length = text::length(text);
    const bool grows = length > text::length(text_);
    if (locked_ || (maxLength_ != 0 && length > maxLength_ && grows)) {
        notify(Property::Text);
        return;
    }
    selStart_ = selStart;
    selLength_ = 0;
    if (text_ == text) return;
    text_ = std::move(text);
    notify(Property::Text);
    Change.raise();
}

void TextBox::replaceSelection(std::u32string_view with) {
    if (locked_) return;
    std::u32string all = text::decode(text_);
    const std::size_t start = std::min(selStart_, all.size());
    const std::size_t selected = std::min(selLength_, all.size() - start);
    if (maxLength_ != 0) {
        const std::size_t kept = all.size() - selected;
        with = with.substr(0, maxLength_ > kept ? maxLength_ - kept : 0);
    }
    if (with.empty() && selected == 0) return;
    all.replace(start, selected, with);
    std::string changed = text::encode(all);
    selStart_ = start + with.size();
    selLength_ = 0;
    const bool differs = changed != text_;
    text_ = std::move(changed);
    notify(Property::Text);
    notify(Property::Selection);
    if (differs) Change.raise();
}

void TextBox::erase(std::size_t start, std::size_t count) {
    setSelection(start, count);
    replaceSelection(U"");
}

void TextBox::personCharacter(char32_t character) {
    if (character == key::Backspace) {
        if (locked_) return;
        if (selLength_ != 0) {
            replaceSelection(U"");
        } else if (selStart_ > 0) {
            // A line break goes as one.
            const std::u32string all = text::decode(text_);
            const bool lineBreak =
                selStart_ > 1 && all[selStart_ - 1] == U'\n' && all[selStart_ - 2] == U'\r';
            const std::size_t count = lineBreak ? 2 : 1;
            erase(selStart_ - count, count);
        }
    } else if (character == key::Enter) {
        if (multiLine_) replaceSelection(U"\r\n");
    } else if (character >= U' ') {
        replaceSelection(std::u32string_view(&character, 1));
    }
}

void TextBox::personPaste(std::string_view text) {
    std::u32string all = text::decode(text);
    if (!multiLine_) all = all.substr(0, all.find_first_of(U"\r\n"));
    replaceSelection(all);
}

void TextBox::selectAll() { setSelection(0, text::length(text_)); }

void TextBox::moveCaret(std::size_t to, bool extend) {
    if (!extend) {
        setSelection(to, 0);
        return;
    }
    // The end of the selection moves, its start stays.
    setSelection(std::min(selStart_, to), to > selStart_ ? to - selStart_ : selStart_ - to);
}

void TextBox::personKeyDown(const KeyStroke& stroke) {
    const std::size_t length = text::length(text_);
    const std::size_t end = selStart_ + selLength_;
    const bool extend = (stroke.shift & shift::Shift) != 0;
    switch (stroke.code) {
    case key::Home:
        moveCaret(0, extend);
        break;
    case key::End:
        moveCaret(length, extend);
        break;
    case key::Left:
        if (selLength_ != 0 && !extend)
            moveCaret(selStart_, false);
        else if (end > 0)
            moveCaret(end - 1, extend);
        break;
    case key::Right:
        if (selLength_ != 0 && !extend)
            moveCaret(end, false);
        else if (end < length)
            moveCaret(end + 1, extend);
        break;
    case key::Delete:
        if (selLength_ != 0)
            replaceSelection(U"");
        else if (selStart_ < length && !locked_)
            erase(selStart_, 1);
        break;
    default:
        break;
    }
}

std::optional<std::string> TextBox::property(std::string_view name) const {
    const auto is = [&](std::string_view wanted) { return text::equalsNoCase(name, wanted); };
    if (is("Text")) return text_;
    if (is("Locked")) return locked_ ? "true" : "false";
    if (is("MaxLength")) return std::to_string(maxLength_);
    if (is("MultiLine")) return multiLine_ ? "true" : "false";
    if (is("BackColor")) return std::to_string(backColor_);
    if (is("SelStart")) return std::to_string(selStart_);
    if (is("SelLength")) return std::to_string(selLength_);
    return Control::property(name);
}

} // namespace quillmere::ui
