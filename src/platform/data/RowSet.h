#pragma once

#include "platform/data/Value.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::data {

/// The answer to one query: named columns and all rows, fetched. Column names keep the spelling of
/// the statement and are looked up without regard to (ASCII) case.
class RowSet {
public:
    RowSet() = default;
    explicit RowSet(std::vector<std::string> columns) : columns_(std::move(columns)) {}

    void addRow(std::vector<Value> row) { rows_.push_back(std::move(row)); }

    [[nodiscard]] const std::vector<std::string>& columns() const { return columns_; }
    [[nodiscard]] std::size_t rowCount() const { return rows_.size(); }
    [[nodiscard]] bool empty() const { return rows_.empty(); }
    [[nodiscard]] const std::vector<Value>& row(std::size_t index) const { return rows_[index]; }

    /// Index of the column of that name, the first one when several bear it.
    [[nodiscard]] std::optional<std::size_t> findColumn(std::string_view name) const;

    /// A cell, row and column from 0. Raises ItemNotFound for a column that is not there,
    /// NoCurrentRecord for a row that is not.
    [[nodiscard]] const Value& at(std::size_t row, std::size_t column) const;
    [[nodiscard]] const Value& at(std::size_t row, std::string_view column) const;

private:
    std::vector<std::string> columns_;
    std::vector<std::vector<Value>> rows_;
};

} // namespace quillmere::data
