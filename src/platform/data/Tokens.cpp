#include "platform/data/Tokens.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace quillmere::data {

namespace {

constexpr char smallLetter(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

constexpr bool isOneOf(std::string_view letters, char letter) {
    return letters.find(letter) != std::string_view::npos;
}

enum class Class : unsigned char { Sign, Blank, Quote, Letter };

constexpr Class classify(char letter) {
    if (isOneOf(" \t\r\n\f", letter)) return Class::Blank;
    if (isOneOf("'\"`[", letter)) return Class::Quote;
    const char small = smallLetter(letter);
    const bool ascii = static_cast<unsigned char>(letter) < 0x80;
    const bool inWord = !ascii || (small >= 'a' && small <= 'z') || (letter >= '0' && letter <= '9') ||
                        letter == '_' || letter == '$';
    return inWord ? Class::Letter : Class::Sign;
}

/// Every statement is read piece by piece, so the class of a character is looked up.
constexpr auto classes = [] {
    std::array<Class, 256> table{};
    for (std::size_t i = 0; i < table.size(); ++i)
        table[i] = classify(static_cast<char>(i));
    return table;
}();

Class classOf(char letter) { return classes[static_cast<unsigned char>(letter)]; }

/// The end of the comment that `rest` begins with; 0 when it begins with none.
std::size_t commentLength(std::string_view rest) {
    const bool line = rest.starts_with("--");
    if (!line && !rest.starts_with("/*")) return 0;
    const std::string_view end = line ? "\n" : "*/";
    const std::size_t found = rest.find(end, 2);
    return found == std::string_view::npos ? rest.size() : found + end.size();
}

/// The end of the quoted piece that `rest` begins with; 0 when it begins with none. A doubled quote is
/// a part of the piece.
std::size_t quotedLength(std::string_view rest) {
    if (classOf(rest.front()) != Class::Quote) return 0;
    const char closing = rest.front() == '[' ? ']' : rest.front();
    for (std::size_t end = rest.find(closing, 1); end != std::string_view::npos;
         end = rest.find(closing, end + 2)) {
        const bool doubled = closing != ']' && rest.substr(end + 1).starts_with(closing);
        if (!doubled) return end + 1;
    }
    return rest.size();
}

std::size_t wordLength(std::string_view rest) {
    return static_cast<std::size_t>(
        std::ranges::find_if(rest, [](char letter) { return classOf(letter) != Class::Letter; }) -
        rest.begin());
}

} // namespace

bool Token::isWord(std::string_view keyword) const {
    return kind == Kind::Word && std::ranges::equal(text, keyword, {}, smallLetter);
}

std::optional<Token> takeToken(std::string_view& rest) {
    while (!rest.empty()) {
        const std::size_t skipped = classOf(rest.front()) == Class::Blank ? 1 : commentLength(rest);
        if (skipped == 0) break;
        rest.remove_prefix(skipped);
    }
    if (rest.empty()) return std::nullopt;
    auto kind = Token::Kind::Quoted;
    std::size_t length = quotedLength(rest);
    if (length == 0) {
        kind = Token::Kind::Word;
        length = wordLength(rest);
    }
    if (length == 0) {
        kind = Token::Kind::Sign;
        length = 1;
    }
    const Token token{kind, rest.substr(0, length)};
    rest.remove_prefix(length);
    return token;
}

std::vector<Token> tokensOf(std::string_view sql) {
    std::vector<Token> tokens;
    while (const auto token = takeToken(sql))
        tokens.push_back(*token);
    return tokens;
}

bool hasComment(std::string_view sql) {
    while (!sql.empty()) {
        if (commentLength(sql) != 0) return true;
        sql.remove_prefix(std::max<std::size_t>(1, quotedLength(sql)));
    }
    return false;
}

} // namespace quillmere::data
