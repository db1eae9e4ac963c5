#pragma once

#include <algorithm>
#include <cstddef>

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

    /// Cut to a text of that many characters.
    [[nodiscard]] Selection within(std::size_t size) const {
        const std::size_t from = std::min(start, size);
        return {from, std::min(length, size - from), caretFirst};
    }
};

} // namespace quillmere::ui
