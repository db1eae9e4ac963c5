#include "clerk/Witness.h"

#include "clerk/Diary.h"
#include "clerk/OddTexts.h"
#include "platform/Error.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quillmere::test {

namespace {

constexpr std::string_view blanks = " \t\r\n";

/// The text in quotes that begins at `at`, which is moved behind it.
std::string readLiteral(std::string_view sql, std::size_t& at) {
    std::string literal;
    for (++at; at < sql.size(); ++at) {
        if (sql[at] != '\'') {
            literal += sql[at];
        } else if (at + 1 < sql.size() && sql[at + 1] == '\'') {
            literal += sql[at++];
        } else {
            ++at;
            break;
        }
    }
    return literal;
}

} // namespace

Skeleton::Skeleton(std::string_view sql) {
    for (std::size_t at = 0; at < sql.size();) {
        if (sql[at] == '\'') {
            literals.push_back(readLiteral(sql, at));
            text += '?';
            continue;
        }
        goesOn =
            goesOn || (text.find(';') != std::string::npos && blanks.find(sql[at]) == std::string_view::npos);
        text += sql[at++];
    }
    text = text::lower(text::trim(text));
    hasComment = text.find("--") != std::string::npos || text.find("/*") != std::string::npos;
}

std::vector<std::string> Skeleton::identities() const {
    std::vector<std::string> found;
    const auto literalAt = [&](std::size_t at) {
        const auto before = std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(at), '?');
        found.push_back(literals[static_cast<std::size_t>(before)]);
    };
    for (const std::string_view comparison : {"a00=?", "a00 =?"}) {
        for (std::size_t at = text.find(comparison); at != std::string::npos;
             at = text.find(comparison, at + 1))
            literalAt(at + comparison.size() - 1);
    }
    if (const std::size_t values = text.find("values(?");
        text.starts_with("insert") && values != std::string::npos)
        literalAt(values + std::string_view("values(").size());
    return found;
}

Witness::Witness(std::shared_ptr<data::Connection> target, std::function<std::string()> atHand)
    : target_(std::move(target)), atHand_(std::move(atHand)) {}

data::RowSet Witness::query(std::string_view sql) {
    failed_ = sql;
    data::RowSet rows = target_->query(sql);
    failed_.clear();
    examine(sql);
    return rows;
}

void Witness::execute(std::string_view sql) {
    failed_ = sql;
    target_->execute(sql);
    failed_.clear();
    examine(sql);
}

void Witness::examine(std::string_view sql) {
    const Skeleton skeleton(sql);
    const auto wrong = [&](const char* what) { throw Finding(what + (": " + shown(std::string(sql)))); };
    if (skeleton.goesOn) wrong("two statements in one");
    if (skeleton.hasComment) wrong("a comment in a statement");
    const bool reads = skeleton.text.starts_with("select ");
    constexpr std::array kinds{"insert into ", "update ", "delete from "};
    if (!reads &&
        std::ranges::none_of(kinds, [&](const char* kind) { return skeleton.text.starts_with(kind); }))
        wrong("a statement of another kind");
    const bool makesIdentity = skeleton.text.find(" s_guid") != std::string::npos;
    if (makesIdentity) return;
    const std::vector<std::string> identities = skeleton.identities();
    if (!reads) {
        ++changes_;
        if (identities.empty()) wrong("a change of more than one identity");
    }
    for (const std::string& identity : identities)
        if (identity != atHand_()) wrong("a statement about another identity");
}

} // namespace quillmere::test
