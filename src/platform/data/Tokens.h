#pragma once

#include <optional>
#include <string_view>
#include <vector>

namespace quillmere::data {

/// A piece of a statement's text. A word is a name, a keyword or a number; a quoted piece is a text or a
/// name in quotes or brackets, with them; a sign is any other character.
struct Token {
    enum class Kind { Word, Quoted, Sign };

    Kind kind;
    std::string_view text;

    /// Whether it is the word `keyword`, given in small letters.
    [[nodiscard]] bool isWord(std::string_view keyword) const;
    [[nodiscard]] bool isSign(char sign) const { return kind == Kind::Sign && text.front() == sign; }
};

/// Takes the first piece off `rest`, and the blanks and comments before it; none when there is no more. It
/// refers to what `rest` refers to.
[[nodiscard]] std::optional<Token> takeToken(std::string_view& rest);

/// The pieces of `sql` in their order, without blanks and comments. They refer to `sql`.
[[nodiscard]] std::vector<Token> tokensOf(std::string_view sql);

/// Whether a comment stands in `sql` outside its quotes. The catalogue's dialect has none, while an engine
/// may: a quote in a text could then hide the rest of its statement, conditions and all, and the statement
/// would run instead of failing.
[[nodiscard]] bool hasComment(std::string_view sql);

} // namespace quillmere::data
