#include "CodeSelector.h"

#include "ChosenDesktop.h"
#include "Comparison.h"
#include "StatementsOf.h"
#include "binding/fmGrpCod.h"
#include "metadata/Globals.h"

#include <chrono>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

namespace quillmere::bench {

namespace {

constexpr const char* divisions = "DM_XZQH";
constexpr const char* deepTable = "DM_BENCH3";
constexpr const char* flatTable = "DM_BENCH1";
constexpr std::size_t flatCodes = 10'000;

/// Opens the selector once, works on it and closes it by its frame.
class Clerk final : public ui::ScreenlessPerson {
public:
    using Work = std::function<void(ui::Form& selector, ui::TreeView& tree)>;

    explicit Clerk(Work work) : work_(std::move(work)) {}

    ui::Answer answer(const ui::MessageBox& box) override { throw std::runtime_error(box.text); }
    std::string choose(const ui::FileDialog& /*dialog*/) override { return {}; }
    void work(ui::Form& form) override {
        work_(form, dynamic_cast<ui::TreeView&>(*form.findDeep("tvGrpCod")));
        form.closeByFrame();
    }

private:
    Work work_;
};

void open(const char* table, const Clerk::Work& work) {
    Clerk clerk(work);
    const ChosenDesktop desktop(clerk);
    fmGrpCod selector;
    selector.CodeTable = table;
    ui::desktop().showModal(selector);
}

std::size_t countOf(data::Connection& connection, const std::string& from) {
    const auto rows = connection.query("select count(*) from " + from);
    return static_cast<std::size_t>(rows.at(0, std::size_t{0}).toLong());
}

void require(std::size_t found, std::size_t expected, const std::string& what) {
    if (found == expected) return;
    throw std::runtime_error(what + ": " + std::to_string(found) + " instead of " + std::to_string(expected));
}

void measureOpening(const char* table, int rounds, data::RecordingConnection& connection,
                    BareEngine& engine) {
    const std::string name(table);
    const std::size_t codes = countOf(connection, name);
    const std::size_t levels = countOf(connection, "s_CodeLevDefine where dmgrp='" + name + "'");
    const auto onceThrough = [&] {
        open(table, [&](ui::Form&, const ui::TreeView& tree) {
            require(tree.nodes().size(), codes, "nodes of " + name);
        });
    };
    const auto statements = statementsOf(connection, onceThrough);
    require(statements.size(), 2 + levels, "statements of the selector over " + name);
    const auto comparison = compare(rounds, onceThrough, [&] { engine.run(statements); });
    print("opening the code selector over " + std::to_string(codes) + " codes", statements.size(),
          comparison);
    std::printf("  of which the system's own: %.1f ms\n", (comparison.system - comparison.bareEngine) / 1000);
}

void requireAt(const ui::TreeView& tree, const ui::TreeView::Node& node) {
    if (tree.SelectedItem() != &node) throw std::runtime_error("the keys do not lead to " + node.key);
}

/// Down from the first code of the flat table to its last, and up again.
void measureMoving() {
    open(flatTable, [](ui::Form& selector, const ui::TreeView& tree) {
        require(tree.roots().size(), flatCodes, "codes in one level");
        const auto begun = std::chrono::steady_clock::now();
        for (std::size_t i = 1; i < flatCodes; ++i)
            selector.pressKey({ui::key::Down});
        requireAt(tree, *tree.roots().back());
        for (std::size_t i = 1; i < flatCodes; ++i)
            selector.pressKey({ui::key::Up});
        requireAt(tree, *tree.roots().front());
        const std::chrono::duration<double, std::micro> taken = std::chrono::steady_clock::now() - begun;
        std::printf("moving through %zu codes of one level: %.2f us a key\n", flatCodes,
                    taken.count() / (2.0 * (flatCodes - 1)));
    });
}

} // namespace

void addLargeCodeTables(data::Connection& connection) {
    const std::vector<std::string> statements = {
        "create table DM_BENCH3 (dmcod text collate nocase primary key, dmcpt text, dmhnd text, dmattr "
        "boolean)",
        // 100 codes of two digits, 99 below each of them, 10 below each of the first 90 of those.
        "with recursive n(i) as (select 0 union all select i+1 from n where i<99) insert into DM_BENCH3 "
        "select printf('%02d',i), '大类'||i, 'dl', false from n",
        "with recursive n(i) as (select 0 union all select i+1 from n where i<9899) insert into DM_BENCH3 "
        "select printf('%02d%02d',i/99,i%99), '中类'||i, 'zl', true from n",
        "with recursive n(i) as (select 0 union all select i+1 from n where i<89999) insert into DM_BENCH3 "
        "select printf('%02d%02d%d',i/900,i/10%90,i%10), '小类'||i, 'xl', true from n",
        "insert into s_CodeTableDefine (dmgrp,codtbldsc) values ('DM_BENCH3','三级')",
        "insert into s_CodeLevDefine (dmgrp,levelnum,bit) values ('DM_BENCH3',1,2)",
        "insert into s_CodeLevDefine (dmgrp,levelnum,bit) values ('DM_BENCH3',2,4)",
        "insert into s_CodeLevDefine (dmgrp,levelnum,bit) values ('DM_BENCH3',3,5)",
        "create table DM_BENCH1 (dmcod text collate nocase primary key, dmcpt text, dmhnd text, dmattr "
        "boolean)",
        "with recursive n(i) as (select 0 union all select i+1 from n where i<9999) insert into DM_BENCH1 "
        "select printf('%04d',i), '类'||i, 'l', true from n",
        "insert into s_CodeTableDefine (dmgrp,codtbldsc) values ('DM_BENCH1','一级')",
        "insert into s_CodeLevDefine (dmgrp,levelnum,bit) values ('DM_BENCH1',1,4)",
    };
    for (const std::string& statement : statements)
        connection.execute(statement);
}

void measureCodeSelector(const std::shared_ptr<data::RecordingConnection>& connection, BareEngine& engine) {
    constexpr int divisionRounds = 100;
    constexpr int deepRounds = 10;
    publishConnection(connection);
    measureOpening(divisions, divisionRounds, *connection, engine);
    measureOpening(deepTable, deepRounds, *connection, engine);
    measureMoving();
}

} // namespace quillmere::bench
