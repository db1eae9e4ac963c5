#pragma once

#include "platform/data/Tokens.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::data {

using TokenSpan = std::span<const Token>;

/// The parts of `tokens` between the commas outside brackets, up to the bracket or semicolon that closes
/// them, or to one of the keywords `ends`.
[[nodiscard]] std::vector<TokenSpan> splitAtCommas(TokenSpan tokens, std::span<const std::string_view> ends);

/// The items of a query's list. Empty for any other statement. An item like "t.*" is several columns of
/// the answer.
[[nodiscard]] std::vector<TokenSpan> selectItems(TokenSpan statement);

/// The name that an item gives to its column, as the statement spells it: the last word or quoted name.
/// Empty for an item that ends in something else.
[[nodiscard]] std::string columnName(TokenSpan item);

} // namespace quillmere::data
