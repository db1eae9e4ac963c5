#pragma once

#include <string_view>
#include <vector>

namespace quillmere::ui {

/// Virtual key codes of the platform; letters and digits have the code of their capital character.
namespace key {
inline constexpr int Backspace = 8;
inline constexpr int Tab = 9;
inline constexpr int Enter = 13;
inline constexpr int Escape = 27;
inline constexpr int Space = 32;
inline constexpr int PageUp = 33;
inline constexpr int PageDown = 34;
inline constexpr int End = 35;
inline constexpr int Home = 36;
inline constexpr int Left = 37;
inline constexpr int Up = 38;
inline constexpr int Right = 39;
inline constexpr int Down = 40;
inline constexpr int Delete = 46;
inline constexpr int F2 = 113;
inline constexpr int Comma = 188;
inline constexpr int Period = 190;
} // namespace key

/// Shift states, added up.
namespace shift {
inline constexpr int None = 0;
inline constexpr int Shift = 1;
inline constexpr int Ctrl = 2;
inline constexpr int Alt = 4;
} // namespace shift

/// The character that a filter leaves in place of a refused key: it enters nothing.
inline constexpr char32_t bellCharacter = 7;

struct KeyStroke {
    int code = 0;
    int shift = shift::None;

    bool operator==(const KeyStroke&) const = default;
};

/// Reads an injection sequence such as "{tab}" or "{Home}+{End}": names in braces without regard to
/// case, "+" for Shift with the key that follows. Raises InvalidCall for anything else.
[[nodiscard]] std::vector<KeyStroke> parseKeys(std::string_view sequence);

} // namespace quillmere::ui
