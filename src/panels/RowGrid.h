#pragma once

#include "panels/FailureBox.h"
#include "panels/frmC04.h"

#include <span>
#include <string>
#include <string_view>

namespace quillmere {

/// One column of a grid, from the second on, and the input of the row editor that it fills.
struct GridColumnRow {
    std::string_view input;
    /// Stored as "yyyy-MM", entered as "yyyy年MM月".
    bool isMonth = false;
    bool isNumber = false;
};

/// A grid of rows that are kept through the row editor, with its three buttons. The key stands
/// between the two parts of each statement.
struct RowGridRow {
    std::string_view grid;
    /// What the names of the buttons have behind cmdAdd, cmdModify and cmdDel.
    std::string_view buttonEnding = {};
    /// The frame that grid and buttons stand in; empty for none.
    std::string_view frame = {};
    std::string_view select;
    std::string_view selectEnd;
    std::string_view remove;
    std::string_view removeEnd;
    /// The editor's frame, its caption, and where it is told the number of the row.
    std::string_view frameNo;
    std::string_view caption;
    std::string frmC04::*sequence = nullptr;
    std::span<const GridColumnRow> columns;
    FailureBox bindFailure;
    FailureBox removeFailure;
    /// The caption is set on the loaded editor instead of being told to it before.
    bool captionAfterLoad = false;
    /// Adding reports its failure; otherwise it goes to whoever clicked. Modifying never reports.
    bool reportsAdding = true;
};

/// The grids of each panel.
[[nodiscard]] std::span<const RowGridRow> scheduleGrids();
[[nodiscard]] std::span<const RowGridRow> budgetGrids();
[[nodiscard]] std::span<const RowGridRow> fundingPlanGrids();

} // namespace quillmere
