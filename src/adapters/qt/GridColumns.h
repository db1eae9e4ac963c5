#pragma once

#include <vector>

namespace quillmere::qt {

/// What one column of a table asks for, in pixels. A hidden column asks for nothing.
struct ColumnNeed {
    /// As the catalogue has it.
    int designed = 0;
    /// To read its heading whole.
    int heading = 0;
    /// To read its widest text whole.
    int content = 0;
};

/// Widths for the columns of a table, of which `room` pixels can be seen: as designed, wider where that
/// would cut a text, and nearer to the texts where the table would else have to be scrolled. A very long
/// text is cut all the same.
[[nodiscard]] std::vector<int> fitColumns(const std::vector<ColumnNeed>& columns, int room);

} // namespace quillmere::qt
