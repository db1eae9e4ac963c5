#pragma once

#include "metadata/cFieldItem.h"
#include "platform/data/RowSet.h"

#include <array>
#include <cstddef>
#include <memory>

namespace quillmere {

/// Rows of s_infoitem, and what becomes of each of them. The columns are looked up once, not for every
/// row.
class CatalogueFields {
public:
    /// Raises ItemNotFound when there are rows and one of the columns is missing.
    explicit CatalogueFields(data::RowSet rows);

    [[nodiscard]] std::size_t count() const { return rows_.rowCount(); }

    /// The field of a row, from 0, without a value; a null reads as the field model says. Raises Overflow
    /// for a width beyond 16 bits, TypeMismatch for one that is no number.
    [[nodiscard]] std::shared_ptr<cFieldItem> field(std::size_t row) const;

private:
    static constexpr std::size_t columnCount = 12;

    data::RowSet rows_;
    std::array<std::size_t, columnCount> columns_{};
};

} // namespace quillmere
