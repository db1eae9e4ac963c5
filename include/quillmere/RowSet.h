#pragma once

#include <quillmere/Value.h>

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::data {

/// The answer to one query: named columns and all rows, fetched. Column names keep the spelling of
/// the statement and are looked up without regard to (ASCII) case.
class RowSet {
public:
    /// No column and no row.
    RowSet() noexcept;
    /// Columns of these names, and no row.
    explicit RowSet(std::vector<std::string> columns);
    /// With the same columns and rows.
    /// @{
    RowSet(const RowSet& other);
    RowSet& operator=(const RowSet& other);
    /// @}
    /// Leaves `other` without columns and rows.
    /// @{
    RowSet(RowSet&& other) noexcept;
    RowSet& operator=(RowSet&& other) noexcept;
    /// @}
    ~RowSet();

    /// Adds a row at the end, with a value for each column.
    void addRow(std::vector<Value> row);

    /// The names of the columns, in the order of the statement.
    [[nodiscard]] const std::vector<std::string>& columns() const noexcept;
    /// How many rows there are.
    [[nodiscard]] std::size_t rowCount() const noexcept;
    /// Whether there is no row.
    [[nodiscard]] bool empty() const noexcept;
    /// The values of a row, from 0 and below rowCount().
    [[nodiscard]] const std::vector<Value>& row(std::size_t index) const;

    /// Index of the column of that name, the first one when several bear it.
    [[nodiscard]] std::optional<std::size_t> findColumn(std::string_view name) const;

    /// A cell, row and column from 0. Raises ItemNotFound for a column that is not there,
    /// NoCurrentRecord for a row that is not.
    [[nodiscard]] const Value& at(std::size_t row, std::size_t column) const;
    /// A cell by the name of its column; raises the same.
    [[nodiscard]] const Value& at(std::size_t row, std::string_view column) const;

private:
    struct Table;
    std::unique_ptr<Table> table_;
};

} // namespace quillmere::data
