#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::sample {

/// A table read from comma-separated text: the first record names the columns, and every other
/// record has as many fields.
class CsvTable {
public:
    CsvTable(std::vector<std::string> columns, std::vector<std::vector<std::string>> rows);

    [[nodiscard]] const std::vector<std::string>& columns() const { return columns_; }
    [[nodiscard]] const std::vector<std::vector<std::string>>& rows() const& { return rows_; }
    /// A temporary table's rows would dangle in a loop.
    const std::vector<std::vector<std::string>>& rows() && = delete;

    /// Position of a column, its name compared exactly. Raises ItemNotFound.
    [[nodiscard]] std::size_t column(std::string_view name) const;

private:
    std::vector<std::string> columns_;
    std::vector<std::vector<std::string>> rows_;
};

/// Reads comma-separated text by RFC 4180, strictly. Records end with LF or CRLF, the last one may
/// do without. Raises BadArguments, with `name` and the line, for: no record at all, a byte order
/// mark, a quote inside an unquoted field, anything but a comma or the end of the record behind a
/// closing quote, a quoted field that never ends, a lone carriage return, and a record with more or
/// fewer fields than the first.
[[nodiscard]] CsvTable parseCsv(std::string_view text, std::string_view name);

} // namespace quillmere::sample
