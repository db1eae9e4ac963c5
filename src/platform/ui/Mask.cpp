#include "platform/ui/Mask.h"

#include "platform/text/Text.h"

#include <algorithm>

namespace quillmere::ui {

Mask::Mask(std::string_view mask, char32_t prompt) : mask_(text::decode(mask)), prompt_(prompt) {}

std::u32string Mask::empty() const {
    std::u32string text = mask_;
    std::ranges::replace(text, U'#', prompt_);
    return text;
}

bool Mask::isDigit(char32_t character) {
    return (character >= U'0' && character <= U'9') || (character >= U'０' && character <= U'９');
}

char32_t Mask::toDigit(char32_t character) {
    return character >= U'０' && character <= U'９' ? character - U'０' + U'0' : character;
}

bool Mask::takesDigit(std::size_t position) const {
    return position < mask_.size() && mask_[position] == U'#';
}

std::size_t Mask::nextDigitPosition(std::size_t from) const {
    while (from < mask_.size() && !takesDigit(from))
        ++from;
    return from;
}

std::size_t Mask::nextGroup(std::size_t from) const {
    while (takesDigit(from))
        ++from;
    return nextDigitPosition(from);
}

void Mask::fit(State& state) const {
    const std::u32string blank = empty();
    bool fits = state.text.size() == blank.size();
    for (std::size_t i = 0; fits && i < blank.size(); ++i) {
        const char32_t character = state.text[i];
        fits = takesDigit(i) ? character == prompt_ || isDigit(character) : character == blank[i];
    }
    if (fits) return;
    // A program may have set a text of another shape; editing pours its digits through the mask.
    State poured{blank, 0, 0};
    for (const char32_t character : state.text) {
        if (isDigit(character)) type(poured, character);
    }
    const bool whole = state.selected >= state.text.size();
    state = {poured.text, whole ? 0 : std::min(state.caret, blank.size()), whole ? blank.size() : 0};
}

void Mask::clearSelection(State& state) const {
    const std::size_t end = std::min(state.caret + state.selected, state.text.size());
    for (std::size_t i = state.caret; i < end; ++i) {
        if (takesDigit(i)) state.text[i] = prompt_;
    }
    state.selected = 0;
}

void Mask::type(State& state, char32_t character) const {
    fit(state);
    if (isDigit(character)) {
        clearSelection(state);
        const std::size_t position = nextDigitPosition(state.caret);
        if (position >= mask_.size()) return;
        state.text[position] = toDigit(character);
        state.caret = position + 1;
        return;
    }
    if (character == U'#') return;
    const std::size_t literal = mask_.find(character, state.caret);
    if (literal != std::u32string::npos && state.selected == 0) state.caret = literal + 1;
}

void Mask::backspace(State& state) const {
    fit(state);
    if (state.selected != 0) {
        clearSelection(state);
        return;
    }
    std::size_t position = std::min(state.caret, mask_.size());
    while (position > 0 && !takesDigit(position - 1))
        --position;
    if (position == 0) return;
    state.caret = position - 1;
    state.text[state.caret] = prompt_;
}

void Mask::erase(State& state) const {
    fit(state);
    if (state.selected != 0) {
        clearSelection(state);
        return;
    }
    const std::size_t position = nextDigitPosition(state.caret);
    if (position >= mask_.size()) return;
    state.text[position] = prompt_;
    state.caret = position;
}

void Mask::paste(State& state, std::u32string_view text) const {
    fit(state);
    clearSelection(state);
    bool separated = true;
    for (const char32_t character : text) {
        if (isDigit(character)) {
            type(state, character);
            separated = false;
        } else if (!separated) {
            // The group just written is complete, also when it is shorter than its places.
            const bool atGroupEnd = !takesDigit(state.caret);
            state.caret = atGroupEnd ? nextDigitPosition(state.caret) : nextGroup(state.caret);
            separated = true;
        }
    }
}

} // namespace quillmere::ui
