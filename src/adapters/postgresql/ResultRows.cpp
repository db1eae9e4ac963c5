#include "adapters/postgresql/ResultRows.h"

#include "platform/convert/PlainNumber.h"
#include "platform/data/SelectItems.h"
#include "platform/text/Text.h"

#include <libpq-fe.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace quillmere::postgresql {

namespace {

/// Numbers of the server's own types, which never change.
enum class Type : Oid {
    Boolean = 16,
    Integer8 = 20,
    Integer2 = 21,
    Integer4 = 23,
    Real4 = 700,
    Real8 = 701,
    Numeric = 1700,
};

/// A number as the text that the server shows: whole when it is written so. NaN and its like stay text.
data::Value numberValue(std::string_view text) {
    if (const auto whole = convert::plainNumber<std::int64_t>(text)) return *whole;
    if (const auto real = convert::plainNumber<double>(text)) return *real;
    return text;
}

data::Value valueOf(Oid type, std::string_view text) {
    switch (static_cast<Type>(type)) {
    case Type::Boolean:
        return text == "t";
    case Type::Integer2:
    case Type::Integer4:
    case Type::Integer8:
    case Type::Numeric:
        return numberValue(text);
    case Type::Real4:
    case Type::Real8:
        if (const auto real = convert::plainNumber<double>(text)) return *real;
        return text;
    default:
        return text;
    }
}

/// The server keeps so many bytes of a name, and no half character.
constexpr std::size_t longestName = 63;

bool isTheSame(std::string_view kept, std::string_view spelt) {
    const std::string lower = text::lower(spelt);
    return lower == kept || spelt == kept ||
           (spelt.size() > longestName && (lower.starts_with(kept) || spelt.starts_with(kept)));
}

std::vector<std::string> columnNames(const PGresult* result, std::string_view sql) {
    const auto count = static_cast<std::size_t>(PQnfields(result));
    const std::vector<data::Token> tokens = data::tokensOf(sql);
    const auto items = data::selectItems(tokens);
    std::vector<std::string> names;
    for (std::size_t i = 0; i < count; ++i) {
        std::string name = PQfname(result, static_cast<int>(i));
        if (items.size() == count) {
            std::string spelt = data::columnName(items[i]);
            if (isTheSame(name, spelt)) name = std::move(spelt);
        }
        names.push_back(std::move(name));
    }
    return names;
}

} // namespace

data::RowSet rowsOf(const pg_result* result, std::string_view sql) {
    data::RowSet rows(columnNames(result, sql));
    const int columns = PQnfields(result);
    for (int row = 0; row < PQntuples(result); ++row) {
        std::vector<data::Value> values;
        values.reserve(static_cast<std::size_t>(columns));
        for (int column = 0; column < columns; ++column) {
            if (PQgetisnull(result, row, column) != 0) {
                values.emplace_back(data::Null{});
                continue;
            }
            const auto length = static_cast<std::size_t>(PQgetlength(result, row, column));
            values.push_back(valueOf(PQftype(result, column), {PQgetvalue(result, row, column), length}));
        }
        rows.addRow(std::move(values));
    }
    return rows;
}

} // namespace quillmere::postgresql
