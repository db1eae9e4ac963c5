#pragma once

#include "platform/data/Tokens.h"

#include <span>
#include <vector>

namespace quillmere::sqlite {

/// For each item of a query's list whether its text alone makes it a boolean: a literal true or false, or
/// an `iif` that has one as a result. SQLite has no booleans and gives these as numbers. Empty for any
/// other statement.
[[nodiscard]] std::vector<bool> booleanItems(std::span<const data::Token> statement);

} // namespace quillmere::sqlite
