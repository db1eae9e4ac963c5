#include "adapters/sqlite/BooleanItems.h"

#include "platform/data/SelectItems.h"

#include <algorithm>
#include <cstddef>

namespace quillmere::sqlite {

namespace {

using data::Token;
using data::TokenSpan;

bool isLiteral(const Token& token) { return token.isWord("true") || token.isWord("false"); }

/// Nothing but a name may stand behind what makes an item a boolean.
bool isNothingOrName(TokenSpan tokens) {
    if (!tokens.empty() && tokens.front().isWord("as")) tokens = tokens.subspan(1);
    return tokens.empty() || tokens.front().kind != Token::Kind::Sign;
}

bool isBooleanItem(TokenSpan item) {
    if (item.empty()) return false;
    if (isLiteral(item.front()) && isNothingOrName(item.subspan(1))) return true;
    if (item.size() < 2 || !item[0].isWord("iif") || !item[1].isSign('(')) return false;

    const auto arguments = data::splitAtCommas(item.subspan(2), {});
    if (arguments.size() != 3) return false;
    const auto* closing = arguments.back().data() + arguments.back().size();
    const auto used = static_cast<std::size_t>(closing - item.data()) + 1;
    if (used > item.size() || !isNothingOrName(item.subspan(used))) return false;
    return std::any_of(arguments.begin() + 1, arguments.end(), [](TokenSpan argument) {
        return argument.size() == 1 && isLiteral(argument.front());
    });
}

} // namespace

std::vector<bool> booleanItems(TokenSpan statement) {
    std::vector<bool> items;
    for (const TokenSpan& item : data::selectItems(statement))
        items.push_back(isBooleanItem(item));
    return items;
}

} // namespace quillmere::sqlite
