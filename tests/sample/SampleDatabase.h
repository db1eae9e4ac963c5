#pragma once

#include "adapters/sqlite/SqliteConnection.h"
#include "platform/data/Connection.h"
#include "sample/SampleRegister.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::sample::test {

/// A fresh register in memory.
[[nodiscard]] inline std::shared_ptr<data::Connection> makeRegister(const Options& options = {}) {
    auto connection = sqlite::openInMemory();
    build(*connection, options);
    return connection;
}

/// The default register, built once. Tests read it and leave it as it is.
[[nodiscard]] inline const std::shared_ptr<data::Connection>& sharedDefaultRegister() {
    static const std::shared_ptr<data::Connection> connection = makeRegister();
    return connection;
}

[[nodiscard]] inline data::Connection& defaultRegister() { return *sharedDefaultRegister(); }

/// The rows of a query as text, a null as "<null>".
using TextRows = std::vector<std::vector<std::string>>;

[[nodiscard]] inline TextRows textRows(data::Connection& connection, std::string_view sql) {
    const data::RowSet rows = connection.query(sql);
    TextRows result;
    for (std::size_t r = 0; r < rows.rowCount(); ++r) {
        result.emplace_back();
        for (const data::Value& value : rows.row(r)) {
            result.back().push_back(value.isNull() ? "<null>" : value.toText());
        }
    }
    return result;
}

[[nodiscard]] inline std::vector<std::string> firstColumn(data::Connection& connection,
                                                          std::string_view sql) {
    std::vector<std::string> column;
    for (const auto& row : textRows(connection, sql))
        column.push_back(row.front());
    return column;
}

[[nodiscard]] inline int countOf(data::Connection& connection, std::string_view sql) {
    return connection.query(sql).at(0, std::size_t{0}).toLong();
}

/// Of the default register.
[[nodiscard]] inline std::vector<std::string> column(std::string_view sql) {
    return firstColumn(defaultRegister(), sql);
}
[[nodiscard]] inline int count(std::string_view sql) { return countOf(defaultRegister(), sql); }

} // namespace quillmere::sample::test
