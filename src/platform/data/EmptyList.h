#pragma once

#include "platform/data/Tokens.h"

#include <span>

namespace quillmere::data {

/// Whether a statement holds "in ()". The catalogue's dialect refuses the empty list. An
/// engine may take it, and then a menu without a single table would come up instead of a failure. What
/// stands between quotes is passed over.
[[nodiscard]] bool hasEmptyList(std::span<const Token> statement);

} // namespace quillmere::data
