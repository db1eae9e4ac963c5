#pragma once

#include <charconv>
#include <optional>
#include <string_view>
#include <system_error>

namespace quillmere::convert {

/// The number that a program has written: digits and what belongs to them, from the first character to the
/// last, whatever the locale. None for anything else, and for one that the type cannot hold. What a person
/// types is read by `toLong` and its like.
template <class Number>
[[nodiscard]] std::optional<Number> plainNumber(std::string_view text) {
    Number number{};
    const char* const end = text.data() + text.size();
    const auto [stopped, failure] = std::from_chars(text.data(), end, number);
    if (failure != std::errc() || stopped != end) return std::nullopt;
    return number;
}

} // namespace quillmere::convert
