#include "adapters/postgresql/StatementGuard.h"

#include "adapters/postgresql/PostgreSqlError.h"
#include "platform/data/EmptyList.h"
#include "platform/data/Tokens.h"

#include <cstddef>
#include <span>

namespace quillmere::postgresql {

namespace {

using data::Token;

bool isNumber(const Token& word) { return word.text.front() >= '0' && word.text.front() <= '9'; }

/// Whether a text in single quotes stands straight behind.
bool touchesText(const Token& word, const Token& next) {
    return next.text.data() == word.text.data() + word.text.size() && next.text.front() == '\'';
}

/// Whether the server begins a text with backslashes behind the word: E'...'. It ends a number where its
/// digits end.
bool beginsEscapes(const Token& word) {
    return word.isWord("e") || (isNumber(word) && (word.text.back() == 'e' || word.text.back() == 'E'));
}

/// $name$...$name$, and $1. In a name a dollar is a letter, but for the first.
bool hasBareDollar(const Token& word) {
    return word.text.front() == '$' || (isNumber(word) && word.text.find('$') != std::string_view::npos);
}

/// What the server quotes otherwise than the dialect does, or does not take for quotes at all. A quote in it
/// has another meaning for the server than for us, and could hide a comment and with it the rest of the
/// statement.
bool hasOtherQuotes(std::span<const Token> statement) {
    for (std::size_t i = 0; i < statement.size(); ++i) {
        const Token& token = statement[i];
        if (token.kind == Token::Kind::Quoted && (token.text.front() == '[' || token.text.front() == '`'))
            return true;
        if (token.kind != Token::Kind::Word) continue;
        if (hasBareDollar(token)) return true;
        if (i + 1 < statement.size() && beginsEscapes(token) && touchesText(token, statement[i + 1]))
            return true;
    }
    return false;
}

} // namespace

void requireDialect(std::string_view sql) {
    if (sql.empty()) raiseStatementFailed("语句为空");
    if (sql.find('\0') != std::string_view::npos) raiseStatementFailed("语句中含有无效字符");
    if (data::hasComment(sql)) raiseStatementFailed("语句中含有注释");
    const auto tokens = data::tokensOf(sql);
    if (hasOtherQuotes(tokens)) raiseStatementFailed("语句中含有单引号、双引号以外的引用方式");
    if (data::hasEmptyList(tokens)) raiseStatementFailed("in 后面的列表是空的");
}

} // namespace quillmere::postgresql
