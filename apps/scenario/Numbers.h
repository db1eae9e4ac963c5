#pragma once

#include <string_view>

namespace quillmere::scenario {

/// A whole number of a script, from `least` to `most`. Raises Stop for anything else.
[[nodiscard]] int parseNumber(std::string_view text, int least, int most);
/// Counted from 1.
[[nodiscard]] int parseCount(std::string_view text);

} // namespace quillmere::scenario
