#include "platform/ui/TextBox.h"

#include "platform/text/Text.h"

#include <algorithm>

namespace quillmere::ui {

namespace {

constexpr std::u32string_view lineBreak = U"\r\n";
/// What a keyboard sends for a deletion by word.
constexpr char32_t deleteCharacter = 127;

bool isLineBreak(std::u32string_view all, std::size_t at) { return all.substr(at, 2) == lineBreak; }

/// What a double click takes together.
enum class Sort { LineBreak, Blank, Mark, Word };

bool isMark(char32_t c) {
    constexpr std::u32string_view ascii = U"!\"#$%&'()*+,-./:;<=>?@[\\]^`{|}~";
    const bool wide = (c >= U'\u2010' && c <= U'\u2027') || (c >= U'\u3001' && c <= U'\u3003') ||
                      (c >= U'\u3008' && c <= U'\u301F') || (c >= U'\uFF01' && c <= U'\uFF0F') ||
                      (c >= U'\uFF1A' && c <= U'\uFF20');
    return wide || ascii.find(c) != std::u32string_view::npos;
}

Sort sortOf(char32_t c) {
    if (c == U'\r' || c == U'\n') return Sort::LineBreak;
    if (c == U' ' || c == U'\t' || c == U'\u3000') return Sort::Blank;
    return isMark(c) ? Sort::Mark : Sort::Word;
}

/// How many characters before or behind the caret a key goes over: a line break goes as one.
std::size_t stepBack(std::u32string_view all, std::size_t caret) {
    if (caret > 1 && isLineBreak(all, caret - 2)) return 2;
    return caret > 0 ? 1 : 0;
}

std::size_t stepOn(std::u32string_view all, std::size_t caret) {
    if (caret >= all.size()) return 0;
    return isLineBreak(all, caret) ? 2 : 1;
}

/// With "\r\n" for every line break, whatever it was written as.
std::u32string withWholeBreaks(std::u32string_view all) {
    std::u32string whole;
    for (std::size_t at = 0; at < all.size(); ++at) {
        if (isLineBreak(all, at)) ++at;
        if (all[at] == U'\r' || all[at] == U'\n')
            whole += lineBreak;
        else
            whole += all[at];
    }
    return whole;
}

/// What of an entry there is room for beside the characters that stay. A line break is not torn.
std::u32string_view fitting(std::u32string_view entry, std::size_t kept, std::size_t most) {
    std::size_t room = most > kept ? most - kept : 0;
    if (room >= entry.size()) return entry;
    if (room > 0 && isLineBreak(entry, room - 1)) --room;
    return entry.substr(0, room);
}

} // namespace

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

void TextBox::setAlignment(ui::Alignment alignment) {
    if (alignment_ == alignment) return;
    alignment_ = alignment;
    notify(Property::Alignment);
}

void TextBox::setBackColor(Colour colour) {
    if (backColor_ == colour) return;
    backColor_ = colour;
    notify(Property::BackColor);
}

void TextBox::personEdited(std::string text, std::size_t selStart) {
    const std::size_t length = text::length(text);
    const bool grows = length > text::length(Text());
    if (locked_ || (maxLength_ != 0 && length > maxLength_ && grows)) {
        notify(Property::Text);
        return;
    }
    follow(std::move(text), {std::min(selStart, length), 0, false});
}

std::u32string TextBox::cutToRoom(std::u32string_view entry) const {
    std::u32string whole =
        multiLine_ ? withWholeBreaks(entry) : std::u32string(entry.substr(0, entry.find_first_of(lineBreak)));
    if (maxLength_ == 0) return whole;
    return std::u32string(fitting(whole, text::length(Text()) - SelLength(), maxLength_));
}

std::string TextBox::roomFor(std::string_view entry) const {
    return text::encode(cutToRoom(text::decode(entry)));
}

void TextBox::enter(std::u32string_view entry) {
    const std::u32string admitted = cutToRoom(entry);
    // An entry that has no room does not take away what is selected either.
    if (!admitted.empty()) replaceSelection(admitted);
}

void TextBox::replaceSelection(std::u32string_view with) {
    if (locked_) return;
    std::u32string all = text::decode(Text());
    const Selection replaced = selection().within(all.size());
    if (with.empty() && replaced.length == 0) return;
    all.replace(replaced.start, replaced.length, with);
    show(text::encode(all), {replaced.start + with.size(), 0, false});
}

void TextBox::erase(std::size_t start, std::size_t count) {
    setSelection(start, count);
    replaceSelection(U"");
}

void TextBox::personCharacter(char32_t character) {
    if (character == key::Backspace) {
        if (locked_) return;
        if (SelLength() != 0) {
            replaceSelection(U"");
        } else if (SelStart() > 0) {
            const std::size_t count = stepBack(text::decode(Text()), SelStart());
            erase(SelStart() - count, count);
        }
    } else if (character == key::Enter) {
        if (multiLine_) enter(lineBreak);
    } else if (character >= U' ' && character != deleteCharacter) {
        enter(std::u32string_view(&character, 1));
    }
}

void TextBox::personDoubleClick() {
    const std::u32string all = text::decode(Text());
    if (locked_ || all.empty()) return;
    // Behind the last character a click means that character.
    const std::size_t at = std::min(SelStart(), all.size() - 1);
    const Sort sort = sortOf(all[at]);
    std::size_t first = at;
    while (first > 0 && sortOf(all[first - 1]) == sort)
        --first;
    std::size_t end = at + 1;
    while (end < all.size() && sortOf(all[end]) == sort)
        ++end;
    select({first, end - first, false});
}

void TextBox::personPaste(std::string_view text) { enter(text::decode(text)); }

void TextBox::personKeyDown(const KeyStroke& stroke) {
    const std::u32string all = text::decode(Text());
    const std::size_t caret = selection().caret();
    const std::size_t on = stepOn(all, caret);
    if (const auto moved = selection().afterKey(stroke, stepBack(all, caret), on, all.size())) {
        select(*moved);
    } else if (stroke.code == key::Delete) {
        if (SelLength() != 0)
            replaceSelection(U"");
        else if (caret < all.size() && !locked_)
            erase(caret, on);
    }
}

std::optional<std::string> TextBox::property(std::string_view name) const {
    const auto is = [&](std::string_view wanted) { return text::equalsNoCase(name, wanted); };
    if (is("Locked")) return locked_ ? "true" : "false";
    if (is("MaxLength")) return std::to_string(maxLength_);
    if (is("MultiLine")) return multiLine_ ? "true" : "false";
    if (is("BackColor")) return std::to_string(backColor_);
    return EditBox::property(name);
}

} // namespace quillmere::ui
