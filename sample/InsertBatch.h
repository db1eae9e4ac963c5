#pragma once

#include "platform/data/Connection.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::sample {

/// The text as an SQL literal, single quotes doubled.
[[nodiscard]] std::string quoted(std::string_view text);
/// The same, the empty text as `null`.
[[nodiscard]] std::string quotedOrNull(std::string_view text);
/// The text as it stands, for numbers and booleans; the empty text as `null`.
[[nodiscard]] std::string bareOrNull(std::string_view text);

/// Inserts rows of literals into one table, many rows a statement.
class InsertBatch {
public:
    /// `columns` is the column list as the statement has it.
    InsertBatch(data::Connection& connection, std::string_view table, std::string_view columns);

    void add(const std::vector<std::string>& literals);
    /// Sends what is left. A batch that ends without it drops its last rows.
    void flush();

private:
    static constexpr std::size_t rowsPerStatement = 200;

    data::Connection& connection_;
    std::string head_;
    std::string rows_;
    std::size_t count_ = 0;
};

} // namespace quillmere::sample
