#pragma once

#include "platform/data/Connection.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::sample {

class CopyTarget;

/// The text as an SQL literal, single quotes doubled.
[[nodiscard]] std::string quoted(std::string_view text);
/// The same, the empty text as `null`.
[[nodiscard]] std::string quotedOrNull(std::string_view text);
/// The text as it stands, for numbers and booleans; the empty text as `null`.
[[nodiscard]] std::string bareOrNull(std::string_view text);

/// Inserts rows of literals into one table, many rows a statement; copies them where the connection is a
/// CopyTarget.
class InsertBatch {
public:
    /// `columns` is the column list as the statement has it.
    InsertBatch(data::Connection& connection, std::string_view table, std::string_view columns);

    void add(const std::vector<std::string>& literals);
    /// Sends what is left. A batch that ends without it drops its last rows.
    void flush();

private:
    static constexpr std::size_t rowsPerStatement = 200;
    static constexpr std::size_t bytesPerCopy = 1'000'000;

    void addValues(const std::vector<std::string>& literals);
    void addLine(const std::vector<std::string>& literals);

    data::Connection& connection_;
    CopyTarget* copy_;
    std::string table_;
    std::string columns_;
    std::string rows_;
    std::size_t count_ = 0;
};

} // namespace quillmere::sample
