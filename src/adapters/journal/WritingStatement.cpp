#include "adapters/journal/WritingStatement.h"

#include "platform/data/SelectItems.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

namespace quillmere::journal {

namespace {

using data::Token;
using data::TokenSpan;

struct KindRow {
    std::string_view word;
    Kind kind;
};

constexpr std::array names{KindRow{"delete", Kind::Delete}, KindRow{"update", Kind::Update},
                           KindRow{"insert", Kind::Insert}, KindRow{"other", Kind::Other}};

/// The first words of statements that write. Behind `with` any of them may follow.
constexpr std::array firstWords{
    KindRow{"delete", Kind::Delete}, KindRow{"update", Kind::Update}, KindRow{"insert", Kind::Insert},
    KindRow{"replace", Kind::Other}, KindRow{"merge", Kind::Other},   KindRow{"truncate", Kind::Other},
    KindRow{"create", Kind::Other},  KindRow{"drop", Kind::Other},    KindRow{"alter", Kind::Other},
    KindRow{"grant", Kind::Other},   KindRow{"revoke", Kind::Other},  KindRow{"copy", Kind::Other},
    KindRow{"call", Kind::Other},    KindRow{"do", Kind::Other},
};

/// What makes the rows of an update or a delete hang on more than its table and its condition.
constexpr std::array<std::string_view, 3> furtherClauses{"where", "order", "limit"};

template <class Words>
bool isOneOf(const Token& token, const Words& words) {
    return std::ranges::any_of(words, [&](std::string_view word) { return token.isWord(word); });
}

std::optional<Kind> kindOfFirst(const Token& word) {
    const auto* const row =
        std::ranges::find_if(firstWords, [&](const KindRow& each) { return word.isWord(each.word); });
    return row == firstWords.end() ? std::nullopt : std::optional(row->kind);
}

/// The first word, found without looking at the rest.
Token firstWord(std::string_view sql) {
    constexpr std::string_view blanks = " \t\r\n\f";
    constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
    sql.remove_prefix(std::min(sql.find_first_not_of(blanks), sql.size()));
    return {Token::Kind::Word, sql.substr(0, sql.find_first_not_of(letters))};
}

/// The text from the first of the tokens to the end of the last.
std::string_view textOf(TokenSpan tokens) {
    if (tokens.empty()) return {};
    const char* const begin = tokens.front().text.data();
    const char* const end = tokens.back().text.data() + tokens.back().text.size();
    return {begin, static_cast<std::size_t>(end - begin)};
}

/// The place of the first token outside brackets that is one of the words; the end when there is none.
template <class Words>
std::size_t findOutside(TokenSpan tokens, const Words& words) {
    int depth = 0;
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        if (tokens[i].isSign('(')) ++depth;
        if (tokens[i].isSign(')')) --depth;
        if (depth == 0 && isOneOf(tokens[i], words)) return i;
    }
    return tokens.size();
}

bool bracketsMatch(TokenSpan tokens) {
    int depth = 0;
    for (const Token& token : tokens) {
        if (token.isSign('(')) ++depth;
        if (token.isSign(')') && --depth < 0) return false;
    }
    return depth == 0;
}

bool isName(const Token& token) {
    return token.kind == Token::Kind::Word ||
           (token.kind == Token::Kind::Quoted && token.text.front() != '\'');
}

/// The table's own name at the front of what stands for it: behind `only`, and behind its schema.
std::string_view tableAt(TokenSpan source) {
    if (source.size() > 1 && source.front().isWord("only")) source = source.subspan(1);
    while (source.size() > 2 && source[1].isSign('.'))
        source = source.subspan(2);
    return !source.empty() && isName(source.front()) ? source.front().text : std::string_view();
}

/// Takes the table out of what stands between `from`, or `update`, and what follows.
void readTable(WritingStatement& statement, TokenSpan source) {
    // Two tables, or a query in place of one, are nothing that a delete or an update takes.
    const auto isFurther = [](const Token& token) {
        return token.kind == Token::Kind::Sign && !token.isSign('.');
    };
    if (std::ranges::any_of(source, isFurther)) return;
    statement.table = tableAt(source);
    statement.source = textOf(source);
}

/// Takes the condition out of what is left of a statement behind its table or its list.
void readCondition(WritingStatement& statement, TokenSpan rest) {
    // What gives rows back does not touch them.
    constexpr std::array<std::string_view, 1> returning{"returning"};
    rest = rest.first(findOutside(rest, returning));
    if (!rest.empty()) {
        if (!rest.front().isWord("where") || rest.size() == 1) return;
        rest = rest.subspan(1);
    }
    if (findOutside(rest, furtherClauses) != rest.size()) return;
    statement.condition = textOf(rest);
    statement.tellsRows = !statement.table.empty() && bracketsMatch(rest);
}

void readDelete(WritingStatement& statement, TokenSpan tokens) {
    if (tokens.empty() || !tokens.front().isWord("from")) return;
    tokens = tokens.subspan(1);
    constexpr std::array<std::string_view, 3> ends{"where", "using", "returning"};
    const std::size_t end = findOutside(tokens, ends);
    readTable(statement, tokens.first(end));
    readCondition(statement, tokens.subspan(end));
}

void readUpdate(WritingStatement& statement, TokenSpan tokens) {
    // "update or replace T": what it replaces beyond its condition is not looked into.
    if (tokens.size() > 2 && tokens.front().isWord("or")) return;
    constexpr std::array<std::string_view, 1> set{"set"};
    const std::size_t end = findOutside(tokens, set);
    if (end == tokens.size()) return;
    readTable(statement, tokens.first(end));
    const TokenSpan list = tokens.subspan(end + 1);
    constexpr std::array<std::string_view, 3> listEnds{"where", "from", "returning"};
    for (const TokenSpan each : data::splitAtCommas(list, listEnds)) {
        const bool isUnderstood = each.size() > 2 && isName(each[0]) && each[1].isSign('=');
        // All or none: what is told of an update is told of all its columns.
        if (!isUnderstood) {
            statement.assignments.clear();
            break;
        }
        statement.assignments.push_back({each[0].text, textOf(each.subspan(2))});
    }
    const std::size_t listEnd = findOutside(list, listEnds);
    if (findOutside(list.first(listEnd), furtherClauses) == listEnd)
        readCondition(statement, list.subspan(listEnd));
}

void readInsert(WritingStatement& statement, TokenSpan tokens) {
    constexpr std::array<std::string_view, 1> into{"into"};
    const std::size_t at = findOutside(tokens, into);
    if (at < tokens.size()) statement.table = tableAt(tokens.subspan(at + 1));
}

} // namespace

std::string_view wordOf(Kind kind) { return std::ranges::find(names, kind, &KindRow::kind)->word; }

std::optional<Kind> kindOf(std::string_view word) {
    const auto* const row = std::ranges::find(names, word, &KindRow::word);
    return row == names.end() ? std::nullopt : std::optional(row->kind);
}

std::optional<WritingStatement> readWriting(std::string_view sql) {
    const Token first = firstWord(sql);
    const bool hidden = first.isWord("with");
    if (!hidden && !kindOfFirst(first)) return std::nullopt;
    if (data::hasComment(sql)) return std::nullopt;
    const std::vector<Token> all = data::tokensOf(sql);
    TokenSpan tokens = all;
    while (!tokens.empty() && tokens.back().isSign(';'))
        tokens = tokens.first(tokens.size() - 1);
    const auto writes = [](const Token& token) { return kindOfFirst(token).has_value(); };
    if (std::ranges::any_of(tokens, [](const Token& token) { return token.isSign(';'); }))
        return std::nullopt;
    if (hidden && std::ranges::none_of(tokens, writes)) return std::nullopt;

    WritingStatement statement;
    if (hidden) return statement;
    statement.kind = *kindOfFirst(first);
    tokens = tokens.subspan(1);
    if (statement.kind == Kind::Delete) readDelete(statement, tokens);
    if (statement.kind == Kind::Update) readUpdate(statement, tokens);
    if (statement.kind == Kind::Insert) readInsert(statement, tokens);
    return statement;
}

std::string selectionOf(const WritingStatement& statement, std::string_view items) {
    std::string sql = "select ";
    sql.append(items).append(" from ").append(statement.source);
    // In brackets, so that it is a condition here exactly when it is one there.
    if (!statement.condition.empty()) sql.append(" where (").append(statement.condition).append(")");
    return sql;
}

std::string plainName(std::string_view name) {
    const bool quoted =
        name.size() > 1 && std::string_view("\"`[").find(name.front()) != std::string_view::npos;
    if (!quoted) return std::string(name);
    const char closing = name.back();
    std::string plain;
    for (std::size_t i = 1; i + 1 < name.size(); ++i) {
        plain += name[i];
        if (name[i] == closing) ++i;
    }
    return plain;
}

} // namespace quillmere::journal
