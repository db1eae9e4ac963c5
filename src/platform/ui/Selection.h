#pragma once

#include "platform/ui/Keys.h"

#include <algorithm>
#include <cstddef>
#include <optional>

namespace quillmere::ui {

/// The selected characters of a box, and at which end of them the caret stands. Positions and
/// lengths are in characters.
struct Selection {
    std::size_t start = 0;
    std::size_t length = 0;
    bool caretFirst = false;

    bool operator==(const Selection&) const = default;

    [[nodiscard]] std::size_t end() const { return start + length; }
    [[nodiscard]] std::size_t caret() const { return caretFirst ? start : end(); }

    /// With the caret elsewhere; extending keeps the other end where it is.
    [[nodiscard]] Selection movedTo(std::size_t to, bool extend) const {
        if (!extend) return {to, 0, false};
        const std::size_t fixed = caretFirst ? end() : start;
        return {std::min(fixed, to), std::max(fixed, to) - std::min(fixed, to), to < fixed};
    }

    /// Where Home, End, Left and Right take the caret in a text of that many characters, of which a
    /// step passes `back` or `on`; none for any other key. A selection that is not extended collapses
    /// to its side.
    [[nodiscard]] std::optional<Selection> afterKey(const KeyStroke& stroke, std::size_t back, std::size_t on,
                                                    std::size_t size) const {
        const bool extend = (stroke.shift & shift::Shift) != 0;
        const bool collapses = length != 0 && !extend;
        switch (stroke.code) {
        case key::Home:
            return movedTo(0, extend);
        case key::End:
            return movedTo(size, extend);
        case key::Left:
            return movedTo(collapses ? start : caret() - back, extend);
        case key::Right:
            return movedTo(collapses ? end() : caret() + on, extend);
        default:
            return std::nullopt;
        }
    }

    /// Cut to a text of that many characters.
    [[nodiscard]] Selection within(std::size_t size) const {
        const std::size_t from = std::min(start, size);
        return {from, std::min(length, size - from), caretFirst};
    }
};

} // namespace quillmere::ui
