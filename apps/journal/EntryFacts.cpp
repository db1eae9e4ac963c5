#include "journal/EntryFacts.h"

#include "platform/data/SelectItems.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <array>
#include <span>

namespace quillmere::recovery {

namespace {

using data::TokenSpan;

bool isSame(std::string_view name, std::string_view other) {
    return text::equalsNoCase(journal::plainName(name), other);
}

/// The items of the first list in brackets in `tokens`, which goes on behind that list.
std::vector<TokenSpan> takeList(TokenSpan& tokens) {
    while (!tokens.empty() && !tokens.front().isSign('('))
        tokens = tokens.subspan(1);
    if (tokens.empty()) return {};
    tokens = tokens.subspan(1);
    std::vector<TokenSpan> items = data::splitAtCommas(tokens, {});
    std::size_t size = items.size() - 1;
    for (const TokenSpan item : items)
        size += item.size();
    tokens = tokens.subspan(std::min(size, tokens.size()));
    return items;
}

/// The text of a literal in quotes.
std::string literalText(std::string_view token) {
    if (token.size() < 2 || token.front() != '\'') return std::string(token);
    return text::replaceAll(token.substr(1, token.size() - 2), "''", "'");
}

std::optional<std::string> identityOfInsert(std::string_view statement) {
    const std::vector<data::Token> all = data::tokensOf(statement);
    TokenSpan tokens = all;
    const auto columns = takeList(tokens);
    const auto values = takeList(tokens);
    for (std::size_t i = 0; i < std::min(columns.size(), values.size()); ++i) {
        const bool single = columns[i].size() == 1 && values[i].size() == 1;
        if (single && isSame(columns[i].front().text, identityColumn))
            return literalText(values[i].front().text);
    }
    return std::nullopt;
}

struct DeedRow {
    journal::Kind kind;
    std::string_view words;
};

constexpr std::array deeds{DeedRow{journal::Kind::Delete, "删除"}, DeedRow{journal::Kind::Update, "修改"},
                           DeedRow{journal::Kind::Insert, "新增"}, DeedRow{journal::Kind::Other, "其他"}};

std::string signOf(char32_t control) {
    if (control == U'\n') return "\\n";
    if (control == U'\r') return "\\r";
    if (control == U'\t') return "\\t";
    constexpr std::string_view digits = "0123456789abcdef";
    return std::string("\\x") + digits[control / 16] + digits[control % 16];
}

} // namespace

std::string numberColumn(std::string_view table) { return journal::plainName(table) + "99"; }

std::vector<std::string> identitiesOf(const journal::Entry& entry) {
    std::vector<std::string> found;
    if (entry.kind == journal::Kind::Insert) {
        if (auto identity = identityOfInsert(entry.statement)) found.push_back(*std::move(identity));
        return found;
    }
    const auto column = entry.rows.findColumn(identityColumn);
    if (!column) return found;
    for (std::size_t row = 0; row < entry.rows.rowCount(); ++row) {
        std::string identity = entry.rows.at(row, *column).toTextOrEmpty();
        if (std::ranges::find(found, identity) == found.end()) found.push_back(std::move(identity));
    }
    return found;
}

bool renumbers(const journal::Entry& entry) {
    return newValue(entry, identityColumn) || newValue(entry, numberColumn(entry.table));
}

bool tellsColumns(const journal::Entry& entry) {
    const auto statement = journal::readWriting(entry.statement);
    return entry.statementBytesLeftOut == 0 && statement && !statement->assignments.empty();
}

std::optional<std::string> newValue(const journal::Entry& entry, std::string_view column) {
    if (entry.kind != journal::Kind::Update) return std::nullopt;
    const auto statement = journal::readWriting(entry.statement);
    if (!statement) return std::nullopt;
    for (const journal::Assignment& each : statement->assignments)
        if (isSame(each.column, column)) return std::string(each.expression);
    return std::nullopt;
}

std::string_view deedOf(const journal::Entry& entry) {
    if (renumbers(entry)) return "重编序号";
    return std::ranges::find(deeds, entry.kind, &DeedRow::kind)->words;
}

std::string_view outcomeOf(const journal::KeptEntry& kept) {
    if (!kept.outcome) return "不明";
    return kept.outcome->failure ? "失败" : "成功";
}

std::string shownText(std::string_view text) {
    constexpr char32_t firstPrintable = 0x20;
    constexpr char32_t afterPrintable = 0x7f;
    constexpr char32_t printableAgain = 0xa0;
    std::string shown;
    for (const char32_t each : text::decode(text)) {
        const bool control = each < firstPrintable || (each >= afterPrintable && each < printableAgain);
        shown += control ? signOf(each) : text::encode(each);
    }
    return shown;
}

std::string shown(const data::Value& value) {
    if (value.isNull()) return "null";
    if (!value.isText()) return value.toText();
    return "'" + shownText(value.toText()) + "'";
}

} // namespace quillmere::recovery
