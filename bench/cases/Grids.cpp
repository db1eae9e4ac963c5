#include "BenchData.h"
#include "Case.h"
#include "Comparison.h"
#include "Require.h"
#include "StatementsOf.h"
#include "Window.h"
#include "platform/ui/DataGrid.h"

// A set of many records: a person's jobs, with the grid of them.

namespace quillmere::bench {

namespace {

constexpr const char* jobs = "主要工作经历";

ui::DataGrid& gridOf(frmPersonWh& window) { return dynamic_cast<ui::DataGrid&>(*window.findDeep("DGItems")); }

void openGrid(benchmark::State& state, const Register& from, std::size_t rows) {
    withWindow(from, personWithJobs(from, rows), [&](frmPersonWh& window) {
        const auto show = [&window] { openSet(window, jobs); };
        auto statements = statementsOf(*from.connection, show);
        require(gridOf(window).rowCount(), rows, "rows in the list");
        compare(state, *from.engine, {.turns = {{show, std::move(statements)}}});
    });
}

/// Down row by row, and back to the first one.
void moveThroughGrid(benchmark::State& state, const Register& from, std::size_t rows) {
    withWindow(from, personWithJobs(from, rows), [&](frmPersonWh& window) {
        constexpr int steps = 100;
        openSet(window, jobs);
        ui::DataGrid& grid = gridOf(window);
        Work work;
        for (int step = 1; step <= steps; ++step) {
            const int row = step % static_cast<int>(rows) + 1;
            const auto click = [&grid, row] { require(grid.clickRow(row), "the row cannot be clicked"); };
            work.turns.push_back({click, statementsOf(*from.connection, click)});
            require(static_cast<std::size_t>(grid.currentRow()), static_cast<std::size_t>(row),
                    "current row");
        }
        compare(state, *from.engine, work);
    });
}

} // namespace

std::vector<Case> gridCases() {
    struct Row {
        std::size_t records;
        int rounds;
    };
    std::vector<Case> cases;
    for (const Row& row : {Row{10, 300}, Row{100, 300}, Row{1'000, 100}, Row{10'000, 20}}) {
        const std::string suffix = std::to_string(row.records) + "-rows";
        const auto add = [&](const char* name, int rounds, auto measure) {
            cases.push_back({name + suffix, rounds,
                             [measure, records = row.records](benchmark::State& state, Register& from) {
                                 measure(state, from, records);
                             }});
        };
        add("open-list/", row.rounds, openGrid);
        add("move-in-list/", 300, moveThroughGrid);
    }
    return cases;
}

} // namespace quillmere::bench
