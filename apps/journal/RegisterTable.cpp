#include "journal/RegisterTable.h"

#include "adapters/journal/WritingStatement.h"
#include "journal/EntryFacts.h"
#include "platform/Error.h"
#include "platform/text/Text.h"

#include <array>
#include <charconv>
#include <cmath>

namespace quillmere::recovery {

namespace {

std::string quoted(std::string_view text, std::string_view quote) {
    const std::string once(quote);
    return once + text::replaceAll(text, once, once + once) + once;
}

std::string realLiteral(double number) {
    if (!std::isfinite(number)) throw Error(Failure::Overflow);
    std::array<char, 32> digits{};
    const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    std::string text(digits.data(), written.ptr);
    // Without a point it would be stored as a whole number where a column takes either.
    if (text.find_first_of(".e") == std::string::npos) text += ".0";
    return text;
}

struct LiteralText {
    std::string operator()(data::Null) const { return "null"; }
    std::string operator()(bool value) const { return value ? "true" : "false"; }
    std::string operator()(std::int64_t value) const { return std::to_string(value); }
    std::string operator()(double value) const { return realLiteral(value); }
    std::string operator()(const std::string& value) const { return quoted(value, "'"); }
};

/// Whether the catalogue says that the set has one record for each identity; nothing for what is no set.
std::optional<bool> isSingle(data::Connection& connection, const std::string& name) {
    const data::RowSet rows =
        connection.query("select Property from s_infotable where tblname=" + quoted(name, "'"));
    if (rows.empty() || rows.at(0, std::size_t{0}).isNull()) return std::nullopt;
    return rows.at(0, std::size_t{0}).toBoolean();
}

} // namespace

std::optional<std::string> RegisterTable::column(std::string_view wanted) const {
    for (const std::string& each : columns)
        if (text::equalsNoCase(each, wanted)) return quoted(each, "\"");
    return std::nullopt;
}

RegisterTable readTable(data::Connection& connection, const std::string& name) {
    RegisterTable table{name, connection.query("select * from " + name + " where 1=0").columns()};
    if (!table.column(identityColumn)) return table;
    const bool hasNumber = table.column(numberColumn(name)).has_value();
    const auto single = isSingle(connection, journal::plainName(name));
    if (single.value_or(false))
        table.key = RowKey::Identity;
    else if (hasNumber)
        // Without the catalogue the names tell as much.
        table.key = RowKey::Numbered;
    return table;
}

std::string literal(const data::Value& value) { return std::visit(LiteralText(), value.raw()); }

bool isSameValue(const data::Value& one, const data::Value& other) {
    if (one.isNull() || other.isNull()) return one.isNull() && other.isNull();
    return one == other || (one.isText() == other.isText() && one.toText() == other.toText());
}

} // namespace quillmere::recovery
