#include "support/ServerLexer.h"

#include <algorithm>

namespace quillmere::fuzz {

namespace {

constexpr std::size_t none = std::string_view::npos;

bool isDigit(char c) { return c >= '0' && c <= '9'; }

bool beginsName(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
           static_cast<unsigned char>(c) >= 0x80;
}

bool continuesName(char c) { return beginsName(c) || isDigit(c) || c == '$'; }

bool isOneOf(char c, std::string_view these) { return these.find(c) != none; }

template <class Is>
std::size_t runOf(std::string_view text, Is is) {
    return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), is) - text.begin());
}

/// The end of what `text` begins with: a comment, which may hold others.
std::size_t commentEnd(std::string_view text) {
    if (text.starts_with("--")) return std::min(text.find_first_of("\r\n"), text.size());
    int depth = 0;
    for (std::size_t i = 0; i + 1 < text.size();) {
        const std::string_view two = text.substr(i, 2);
        if (two == "/*") ++depth;
        if (two == "*/" && --depth == 0) return i + 2;
        i += two == "/*" || two == "*/" ? 2 : 1;
    }
    return none;
}

/// The end of the quoted piece whose first quote stands at `open`.
std::size_t quoteEnd(std::string_view text, std::size_t open, bool backslashes) {
    const char quote = text[open];
    for (std::size_t i = open + 1; i < text.size(); ++i) {
        if (backslashes && text[i] == '\\') {
            ++i;
        } else if (text[i] == quote) {
            if (!text.substr(i + 1).starts_with(quote)) return i + 1;
            ++i;
        }
    }
    return none;
}

/// $$...$$ or $name$...$name$; 0 when a lone dollar stands here.
std::size_t dollarEnd(std::string_view text) {
    const std::size_t close = text.find('$', 1);
    if (close == none) return 0;
    const std::string_view name = text.substr(1, close - 1);
    if (!name.empty() && (!beginsName(name.front()) || runOf(name, continuesName) != name.size())) return 0;
    const std::string_view mark = text.substr(0, close + 1);
    const std::size_t end = text.find(mark, mark.size());
    return end == none ? none : end + mark.size();
}

std::size_t numberEnd(std::string_view text) {
    std::size_t end = runOf(text, [](char c) { return isDigit(c) || c == '.'; });
    if (end < text.size() && isOneOf(text[end], "eE")) {
        std::size_t digits = end + 1;
        if (digits < text.size() && isOneOf(text[digits], "+-")) ++digits;
        if (const std::size_t count = runOf(text.substr(digits), isDigit); count > 0) end = digits + count;
    }
    return end;
}

std::size_t pieceEnd(std::string_view text) {
    const char first = text.front();
    if (isOneOf(first, "'\"")) return quoteEnd(text, 0, false);
    if (isOneOf(first, "eE") && text.substr(1).starts_with('\'')) return quoteEnd(text, 1, true);
    if (isOneOf(first, "uU") && (text.substr(1).starts_with("&'") || text.substr(1).starts_with("&\"")))
        return quoteEnd(text, 2, false);
    if (beginsName(first)) return runOf(text, continuesName);
    if (isDigit(first)) return numberEnd(text);
    if (first == '$')
        if (const std::size_t end = dollarEnd(text); end != 0) return end;
    return 1;
}

} // namespace

std::optional<ServerPieces> cutByServer(std::string_view sql) {
    ServerPieces found;
    while (!sql.empty()) {
        const bool blank = isOneOf(sql.front(), " \t\r\n\f");
        const bool comment = sql.starts_with("--") || sql.starts_with("/*");
        const std::size_t end = blank ? 1 : comment ? commentEnd(sql) : pieceEnd(sql);
        if (end == none) return std::nullopt;
        if (!blank && !comment) found.pieces.push_back(sql.substr(0, end));
        found.hasComment = found.hasComment || comment;
        sql.remove_prefix(end);
    }
    return found;
}

} // namespace quillmere::fuzz
