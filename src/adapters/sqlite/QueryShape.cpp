#include "adapters/sqlite/QueryShape.h"

#include "platform/data/Tokens.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace quillmere::sqlite {

namespace {

using data::Token;

/// Longer statements are rare, and gain little.
constexpr std::size_t longest = 4096;

/// What ends a condition. Behind it a text may have to be the same as one of the query's items.
constexpr std::array<std::string_view, 8> conditionEnds{"group",  "having", "order",     "limit",
                                                        "window", "union",  "intersect", "except"};

/// A text in its quotes; one that never ends has an odd number of them.
bool isText(const Token& token) {
    return token.kind == Token::Kind::Quoted && token.text.front() == '\'' &&
           std::ranges::count(token.text, '\'') % 2 == 0;
}

bool endsCondition(const Token& token) {
    return std::ranges::any_of(conditionEnds, [&](std::string_view word) { return token.isWord(word); });
}

/// What stands between the quotes.
std::string contentOf(std::string_view quoted) {
    std::string content;
    for (std::size_t i = 1; i + 1 < quoted.size(); ++i) {
        content += quoted[i];
        if (quoted[i] == '\'') ++i;
    }
    return content;
}

/// A parameter of the statement's own, as `?` or `:name`, would get one of the texts.
bool isParameter(const Token& token) {
    constexpr std::string_view begins = "?:@#$";
    return token.kind != Token::Kind::Quoted && begins.find(token.text.front()) != std::string_view::npos;
}

class Shaping {
public:
    explicit Shaping(std::string_view sql) : sql_(sql) {}

    QueryShape run() {
        std::string_view rest = sql_;
        auto token = data::takeToken(rest);
        if (!token || !token->isWord("select")) return whole();
        bool behindEqual = false;
        while ((token = data::takeToken(rest))) {
            if (isParameter(*token)) return whole();
            if (depth_ == 0) enterOrLeave(*token);
            depth_ += token->isSign('(') ? 1 : token->isSign(')') ? -1 : 0;
            if (place_ == Place::Condition && behindEqual && isText(*token)) takeOut(token->text);
            behindEqual = token->isSign('=');
        }
        shape_.sql.append(sql_.substr(done_));
        return std::move(shape_);
    }

private:
    /// Names of columns are made of the text of the items, which stand before the condition.
    enum class Place { Items, Condition, Behind };

    [[nodiscard]] QueryShape whole() const { return {std::string(sql_), {}}; }

    void enterOrLeave(const Token& token) {
        if (token.kind != Token::Kind::Word) return;
        if (place_ == Place::Items && token.isWord("where")) place_ = Place::Condition;
        if (endsCondition(token)) place_ = Place::Behind;
    }

    void takeOut(std::string_view quoted) {
        const auto begin = static_cast<std::size_t>(quoted.data() - sql_.data());
        shape_.sql.append(sql_.substr(done_, begin - done_)).append("?");
        shape_.texts.push_back(contentOf(quoted));
        done_ = begin + quoted.size();
    }

    std::string_view sql_;
    QueryShape shape_;
    std::size_t done_ = 0;
    int depth_ = 0;
    Place place_ = Place::Items;
};

} // namespace

QueryShape shapeOf(std::string_view sql) {
    if (sql.size() > longest || sql.find('\0') != std::string_view::npos) return {std::string(sql), {}};
    return Shaping(sql).run();
}

} // namespace quillmere::sqlite
