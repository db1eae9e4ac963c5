#include "QtCase.h"
#include "Require.h"
#include "platform/data/Recordset.h"
#include "platform/ui/DataGrid.h"

#include <QTableView>

// A list of records, filled and walked through.

namespace quillmere::bench {

namespace {

std::shared_ptr<data::Recordset> rowsOf(data::Connection& connection, int count) {
    auto rows = std::make_shared<data::Recordset>();
    rows->open("with recursive n(i) as (select 1 union all select i+1 from n where i<" +
                   std::to_string(count) + ") select i as no, '姓名'||i as name, '单位'||i as unit from n",
               connection);
    return rows;
}

void withList(
    Stage& stage, int count,
    const std::function<void(ui::DataGrid& grid, const std::shared_ptr<data::Recordset>& rows)>& work) {
    withQtWindow(stage, [&](frmPersonWh& window) {
        require(window.menu().clickItem(1, 2), "no such item of the menu");
        settle();
        work(dynamic_cast<ui::DataGrid&>(*window.findDeep("DGItems")), rowsOf(*stage.from.connection, count));
    });
}

void fill(benchmark::State& state, Stage& stage, int count) {
    withList(stage, count, [&](ui::DataGrid& grid, const auto& rows) {
        measure(state, [&] {
            grid.setDataSource(nullptr);
            grid.setDataSource(rows);
            settle();
        });
        require(widgetIn<QTableView>("DGItems").model()->rowCount() == count,
                "rows are missing from the list");
    });
}

void step(benchmark::State& state, Stage& stage, int count) {
    constexpr int steps = 200;
    withList(stage, count, [&](ui::DataGrid& grid, const auto& rows) {
        grid.setDataSource(rows);
        settle();
        measure(
            state,
            [&] {
                for (int i = 1; i <= steps; ++i)
                    grid.clickRow(i * (count / steps));
                settle();
            },
            steps);
        const int current = widgetIn<QTableView>("DGItems").currentIndex().row();
        require(current == steps * (count / steps) - 1, "the row is not the current one");
    });
}

} // namespace

std::vector<QtCase> listCases() {
    std::vector<QtCase> cases;
    for (const int count : {1'000, 10'000}) {
        const std::string suffix = std::to_string(count) + "-rows";
        cases.push_back(
            {"qt-list-fill/" + suffix, 5, [count](auto& state, auto& stage) { fill(state, stage, count); }});
        cases.push_back(
            {"qt-list-step/" + suffix, 3, [count](auto& state, auto& stage) { step(state, stage, count); }});
    }
    return cases;
}

} // namespace quillmere::bench
