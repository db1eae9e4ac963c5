#pragma once

#include <span>
#include <string_view>

namespace quillmere::check {

/// Columns that the system reads or writes by their names.
struct RequiredColumns {
    std::string_view table;
    std::span<const std::string_view> columns;
};

/// Of the catalogue.
[[nodiscard]] std::span<const RequiredColumns> catalogueColumns();
/// Of data tables, whatever the catalogue says of them.
[[nodiscard]] std::span<const RequiredColumns> dataColumns();

} // namespace quillmere::check
