#pragma once

#include "platform/data/RowSet.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::recovery {

/// Finds the rows of an entry among rows of the register, which may have further columns.
class RowComparison {
public:
    /// `columns` are those of the register's rows, every one of the entry's among them; `number` is the
    /// column by which records of an identity are numbered.
    RowComparison(const data::RowSet& kept, const std::vector<std::string>& columns, std::string_view number);

    /// Whether the row `index` of the entry is among the rows of the register; where the entry holds the same
    /// row several times, as often as up to this one.
    [[nodiscard]] bool hasSame(const data::RowSet& rows, std::size_t index) const;

    /// The row of the register that differs from the row `index` of the entry in its number alone. One that
    /// stands in the entry itself is a record of its own.
    [[nodiscard]] std::optional<std::size_t> findUnderOtherNumber(const data::RowSet& rows,
                                                                  std::size_t index) const;

private:
    enum class Number { Counts, IsPassedOver };

    [[nodiscard]] bool isSame(const data::RowSet& rows, std::size_t row, std::size_t index,
                              Number number) const;
    [[nodiscard]] bool standsInEntry(const data::RowSet& rows, std::size_t row) const;

    const data::RowSet& kept_;
    /// Where each column of the entry is among those of the register.
    std::vector<std::size_t> places_;
    std::optional<std::size_t> number_;
};

} // namespace quillmere::recovery
