#pragma once

#include "platform/ui/Keys.h"

#include <string_view>

namespace quillmere::scenario {

/// A key or chord by name: `Enter`, `Shift+Tab`, `Ctrl+N`, `Ctrl+,`. Raises Stop for one that the
/// language has no name for.
[[nodiscard]] ui::KeyStroke parseKey(std::string_view name);

} // namespace quillmere::scenario
