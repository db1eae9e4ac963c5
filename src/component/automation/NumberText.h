#pragma once

#include <string>

namespace quillmere::component {

/// "2026-11-21", and "2026-11-21 08:05:00" when the moment has a time of day. Raises Error (Overflow) outside
/// the years 100 to 9999.
[[nodiscard]] std::string dateText(double daysSince1899);

/// The shortest text that gives the number back.
[[nodiscard]] std::string singleText(float number);

} // namespace quillmere::component
