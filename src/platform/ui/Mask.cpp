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

bool Mask::hasShape(std::u32string_view text) const {
    bool fits = text.size() == mask_.size();
    for (std::size_t i = 0; fits && i < mask_.size(); ++i)
        fits = takesDigit(i) ? text[i] == prompt_ || isDigit(text[i]) : text[i] == mask_[i];
    return fits;
}

void Mask::fit(State& state) const {
    state.caret = std::min(state.caret, state.text.size());
    state.selected = std::min(state.selected, state.text.size() - state.caret);
    if (hasShape(state.text)) return;
    const auto poured = [&](std::size_t count) {
        State result{empty(), 0, 0};
        pour(result, std::u32string_view(state.text).substr(0, count));
        return result;
    };
    // A position goes where pouring the text before it leads.
    const std::size_t caret = poured(state.caret).caret;
    const std::size_t end = poured(state.caret + state.selected).caret;
    state = {poured(state.text.size()).text, caret, end - caret};
}

void Mask::pour(State& state, std::u32string_view text) const {
    bool separated = true;
    for (const char32_t character : text) {
        if (isDigit(character)) {
            put(state, character);
            separated = false;
        } else if (!separated) {
            // The group just written is complete, also when it is shorter than its places.
            const bool atGroupEnd = !takesDigit(state.caret);
            state.caret = atGroupEnd ? nextDigitPosition(state.caret) : nextGroup(state.caret);
            separated = true;
        }
    }
}

void Mask::put(State& state, char32_t digit) const {
    const std::size_t position = nextDigitPosition(state.caret);
    if (position >= mask_.size()) return;
    state.text[position] = toDigit(digit);
    state.caret = position + 1;
}

void Mask::clearSelection(State& state) const {
    const std::size_t end = std::min(state.caret + state.selected, state.text.size());
    for (std::size_t i = state.caret; i < end; ++i) {
        if (takesDigit(i)) state.text[i] = prompt_;
    }
    state.selected = 0;
}

void Mask::type(State& state, char32_t character) const {
    if (isDigit(character)) {
        fit(state);
        clearSelection(state);
        put(state, character);
        return;
    }
    if (character == U'#' || state.selected != 0 || mask_.find(character) == std::u32string::npos) return;
    fit(state);
    const std::size_t literal = mask_.find(character, state.caret);
    if (literal != std::u32string::npos) state.caret = literal + 1;
}

std::size_t Mask::pointed(std::u32string_view text, std::size_t position) const {
    if (!hasShape(text) || nextDigitPosition(position) < mask_.size()) return position;
    std::size_t open = 0;
    while (open < mask_.size() && !(takesDigit(open) && text[open] == prompt_))
        ++open;
    return open < mask_.size() ? open : position;
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
    if (hasShape(text)) {
        state = {std::u32string(text), text.size(), 0};
        std::ranges::transform(state.text, state.text.begin(), toDigit);
        return;
    }
    if (std::ranges::none_of(text, isDigit)) return;
    fit(state);
    clearSelection(state);
    pour(state, text);
}

} // namespace quillmere::ui
