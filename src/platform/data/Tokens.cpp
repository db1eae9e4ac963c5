#include "platform/data/Tokens.h"

#include <algorithm>
#include <cstddef>

namespace quillmere::data {

namespace {

char smallLetter(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool isBlank(char letter) { return std::string_view(" \t\r\n\f").find(letter) != std::string_view::npos; }

bool isWordLetter(char letter) {
    const char small = smallLetter(letter);
    const bool ascii = static_cast<unsigned char>(letter) < 0x80;
    return !ascii || (small >= 'a' && small <= 'z') || (letter >= '0' && letter <= '9') || letter == '_' ||
           letter == '$';
}

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
    if (std::string_view("'\"`[").find(rest.front()) == std::string_view::npos) return 0;
    const char closing = rest.front() == '[' ? ']' : rest.front();
    for (std::size_t end = rest.find(closing, 1); end != std::string_view::npos;
         end = rest.find(closing, end + 2)) {
        const bool doubled = closing != ']' && rest.substr(end + 1).starts_with(closing);
        if (!doubled) return end + 1;
    }
    return rest.size();
}

std::size_t wordLength(std::string_view rest) {
    return static_cast<std::size_t>(std::ranges::find_if_not(rest, isWordLetter) - rest.begin());
}

} // namespace

bool Token::isWord(std::string_view keyword) const {
    return kind == Kind::Word && std::ranges::equal(text, keyword, {}, smallLetter);
}

std::vector<Token> tokensOf(std::string_view sql) {
    std::vector<Token> tokens;
    while (!sql.empty()) {
        std::size_t length = isBlank(sql.front()) ? 1 : commentLength(sql);
        if (length == 0) {
            auto kind = Token::Kind::Quoted;
            if (length = quotedLength(sql); length == 0) {
                kind = Token::Kind::Word;
                length = wordLength(sql);
            }
            if (length == 0) {
                kind = Token::Kind::Sign;
                length = 1;
            }
            tokens.push_back({kind, sql.substr(0, length)});
        }
        sql.remove_prefix(length);
    }
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
