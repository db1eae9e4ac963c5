#include "platform/data/SelectItems.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace quillmere::data {

namespace {

bool isKeyword(const Token& token, std::span<const std::string_view> keywords) {
    return std::ranges::any_of(keywords, [&](std::string_view keyword) { return token.isWord(keyword); });
}

/// What follows an item list at its own depth.
constexpr std::array<std::string_view, 8> listEnds{"from",  "where", "group",     "order",
                                                   "limit", "union", "intersect", "except"};

/// A name between double quotes, the doubled quotes in it single.
std::string unquoted(std::string_view name) {
    name = name.substr(1, name.size() - 2);
    std::string result;
    for (std::size_t i = 0; i < name.size(); ++i) {
        result += name[i];
        if (name[i] == '"') ++i;
    }
    return result;
}

} // namespace

std::vector<TokenSpan> splitAtCommas(TokenSpan tokens, std::span<const std::string_view> ends) {
    std::vector<TokenSpan> found;
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

std::vector<TokenSpan> selectItems(TokenSpan statement) {
    if (statement.empty() || !statement.front().isWord("select")) return {};
    statement = statement.subspan(1);
    if (!statement.empty() && (statement.front().isWord("distinct") || statement.front().isWord("all")))
        statement = statement.subspan(1);
    return splitAtCommas(statement, listEnds);
}

std::string columnName(TokenSpan item) {
    if (item.empty()) return {};
    const Token& last = item.back();
    if (last.kind == Token::Kind::Word) return std::string(last.text);
    const bool isQuotedName = last.text.size() > 2 && last.text.front() == '"' && last.text.back() == '"';
    return isQuotedName ? unquoted(last.text) : std::string();
}

} // namespace quillmere::data
