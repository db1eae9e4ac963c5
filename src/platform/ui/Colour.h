#pragma once

#include <cstdint>

namespace quillmere::ui {

/// A colour as the platform numbers it: red in the lowest byte, then green, then blue; with the top
/// bit set, a colour of the user's desktop.
using Colour = std::uint32_t;

namespace colour {
inline constexpr Colour window = 0x80000005;
inline constexpr Colour buttonShadow = 0x80000010;
inline constexpr Colour buttonText = 0x80000012;
/// Fields that are filled by picking a code: red 201, green 224, blue 252.
inline constexpr Colour codedField = 16572617;
} // namespace colour

} // namespace quillmere::ui
