#include "adapters/qt/GridColumns.h"

#include <algorithm>
#include <numeric>

namespace quillmere::qt {

namespace {

constexpr int widestContent = 320;

/// Below this the column would cut something that it could show.
int leastOf(const ColumnNeed& column) {
    return std::max(column.heading, std::min(column.content, widestContent));
}

} // namespace

std::vector<int> fitColumns(const std::vector<ColumnNeed>& columns, int room) {
    std::vector<int> widths;
    int spare = 0;
    for (const ColumnNeed& column : columns) {
        widths.push_back(std::max(column.designed, leastOf(column)));
        spare += widths.back() - leastOf(column);
    }
    const int excess = std::accumulate(widths.begin(), widths.end(), 0) - room;
    if (excess <= 0 || spare == 0) return widths;
    const double part = std::min(1.0, static_cast<double>(excess) / spare);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const double given = part * (widths[i] - leastOf(columns[i]));
        // Rounded up, so that no pixel too many is left over.
        widths[i] -= static_cast<int>(given + 0.999);
    }
    return widths;
}

} // namespace quillmere::qt
