#pragma once

#include "adapters/sqlite/Tokens.h"

#include <span>

namespace quillmere::sqlite {

/// Whether a statement holds "in ()". The catalogue's dialect refuses the empty list; SQLite would
/// take it, and a menu without a single table would come up instead of a failure. What stands between
/// quotes or in comments is passed over.
[[nodiscard]] bool hasEmptyList(std::span<const Token> statement);

} // namespace quillmere::sqlite
