// The pieces of a statement, and the names of its columns.

#include "support/Fuzzing.h"

#include "platform/data/EmptyList.h"
#include "platform/data/SelectItems.h"
#include "platform/data/Tokens.h"

namespace {

using namespace quillmere;
using fuzz::hold;

bool isBlank(std::string_view text) { return text.find_first_not_of(" \t\r\n\f") == std::string_view::npos; }

void coverTheStatement(const std::string& sql, const std::vector<data::Token>& tokens) {
    const bool hasComment = data::hasComment(sql);
    std::string_view rest = sql;
    for (const data::Token& token : tokens) {
        hold(!token.text.empty(), "a piece is never empty");
        const auto at = static_cast<std::size_t>(token.text.data() - rest.data());
        hold(at <= rest.size() && token.text.size() <= rest.size() - at,
             "pieces stand in their order in the text");
        hold(hasComment || isBlank(rest.substr(0, at)), "without comments only blanks stand between pieces");
        rest.remove_prefix(at + token.text.size());
    }
    hold(hasComment || isBlank(rest), "without comments only blanks stand behind the last piece");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string sql = fuzz::Input(bytes, size).rest();
    const auto tokens = data::tokensOf(sql);
    coverTheStatement(sql, tokens);
    (void)data::hasEmptyList(tokens);
    const auto items = data::selectItems(tokens);
    hold(items.empty() || tokens.front().isWord("select"), "only a query has items");
    for (const auto& item : items)
        hold(sql.size() >= data::columnName(item).size(), "a column's name stands in the statement");
    return 0;
}
