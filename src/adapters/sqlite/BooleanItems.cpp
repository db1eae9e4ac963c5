#include "adapters/sqlite/BooleanItems.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace quillmere::sqlite {

namespace {

using Tokens = std::span<const Token>;

bool isKeyword(const Token& token, std::span<const std::string_view> keywords) {
    return std::ranges::any_of(keywords, [&](std::string_view keyword) { return token.isWord(keyword); });
}

/// What follows an item list at its own depth.
constexpr std::array<std::string_view, 8> listEnds{"from",  "where", "group",     "order",
                                                   "limit", "union", "intersect", "except"};

/// The parts of `tokens` between the commas outside brackets, up to the bracket or semicolon that closes
/// them, or to one of the `ends`.
std::vector<Tokens> parts(Tokens tokens, std::span<const std::string_view> ends) {
    std::vector<Tokens> found;
    std::size_t begin = 0;
    std::size_t depth = 0;
    std::size_t i = 0;
    for (; i < tokens.size(); ++i) {
        const Token& token = tokens[i];
        if (depth == 0 && (token.isSign(')') || token.isSign(';') || isKeyword(token, ends))) break;
        if (token.isSign('(')) ++depth;
        if (token.isSign(')')) --depth;
        if (depth > 0 || !token.isSign(',')) continue;
        found.push_back(tokens.subspan(begin, i - begin));
        begin = i + 1;
    }
    found.push_back(tokens.subspan(begin, i - begin));
    return found;
}

bool isLiteral(const Token& token) { return token.isWord("true") || token.isWord("false"); }

/// Nothing but a name may stand behind what makes an item a boolean.
bool isNothingOrName(Tokens tokens) {
    if (!tokens.empty() && tokens.front().isWord("as")) tokens = tokens.subspan(1);
    return tokens.empty() || tokens.front().kind != Token::Kind::Sign;
}

bool isBooleanItem(Tokens item) {
    if (item.empty()) return false;
    if (isLiteral(item.front()) && isNothingOrName(item.subspan(1))) return true;
    if (item.size() < 2 || !item[0].isWord("iif") || !item[1].isSign('(')) return false;

    const auto arguments = parts(item.subspan(2), {});
    if (arguments.size() != 3) return false;
    const auto* closing = arguments.back().data() + arguments.back().size();
    const auto used = static_cast<std::size_t>(closing - item.data()) + 1;
    if (used > item.size() || !isNothingOrName(item.subspan(used))) return false;
    return std::any_of(arguments.begin() + 1, arguments.end(),
                       [](Tokens argument) { return argument.size() == 1 && isLiteral(argument.front()); });
}

} // namespace

std::vector<bool> booleanItems(Tokens statement) {
    if (statement.empty() || !statement.front().isWord("select")) return {};
    statement = statement.subspan(1);
    if (!statement.empty() && (statement.front().isWord("distinct") || statement.front().isWord("all")))
        statement = statement.subspan(1);
    std::vector<bool> items;
    for (const Tokens& item : parts(statement, listEnds))
        items.push_back(isBooleanItem(item));
    return items;
}

} // namespace quillmere::sqlite
