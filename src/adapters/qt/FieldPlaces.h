#pragma once

#include <vector>

namespace quillmere::qt {

/// How many rows of fields the corner is high where it stands beside them.
constexpr int cornerRows = 6;

/// Where a field stands among the others, in rows and columns of fields from 0.
struct FieldPlace {
    int row;
    int column;

    bool operator==(const FieldPlace&) const = default;
};

/// A place for each field, in their order: row by row, around something in the upper right corner. A wide
/// field takes two whole rows, of which the first is told. In a single column the corner has the first row.
[[nodiscard]] std::vector<FieldPlace> placesFor(const std::vector<bool>& wide, int columns, bool corner);

} // namespace quillmere::qt
