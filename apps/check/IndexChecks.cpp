#include "check/CheckGroup.h"
#include "check/CodeTables.h"
#include "check/EngineIndexes.h"
#include "check/RegisterView.h"

#include "platform/text/Text.h"

#include <algorithm>
#include <array>
#include <set>
#include <string>

namespace quillmere::check {

namespace {

constexpr FindingKind missing{
    .id = "index-missing",
    .level = Level::Warning,
    .title = "缺少索引",
    .effect = "系统按这一列查找，没有索引时每次都要读完整张表：登记的人越多，打开、翻看和保存就越慢。",
    .remedy = "给这一列建立索引；多记录信息集用 A00 和 <表名>99 两列。"};

constexpr const FindingKind* kinds[] = {&missing};

struct SearchedColumn {
    std::string_view table;
    std::string_view column;
};

/// Columns that statements search or take the greatest of, beside the key of every table.
constexpr std::array searched{
    SearchedColumn{"s_infoitem", "TblName"},
    SearchedColumn{"A01", "A0101"},
    SearchedColumn{"A01", "A0199"},
    SearchedColumn{"B01", "B0101"},
    SearchedColumn{"B01", "B0199"},
    SearchedColumn{"P02", "P0299"},
    SearchedColumn{"P03", "P0399"},
    SearchedColumn{"C04", "C0499"},
    SearchedColumn{"E06", "A00"},
    SearchedColumn{"M02", "A00"},
};

void check(const RegisterView& view, const std::string& table, const std::string& column, Report& report) {
    if (!view.hasColumn(table, column)) return;
    const auto indexes = view.indexes().indexesOf(view.connection(), table);
    if (!indexes) return;
    const bool isIndexed = std::ranges::any_of(*indexes, [&](const EngineIndexes::Index& index) {
        return !index.empty() && text::equalsNoCase(index.front(), column);
    });
    if (!isIndexed) report.add(missing, table, {{"column", column}});
}

void run(const RegisterView& view, Report& report) {
    std::set<std::string> keyed;
    for (const SetEntry& set : view.sets()) {
        check(view, set.name, "A00", report);
        keyed.insert(text::lower(set.name));
    }
    for (const CodeTableInUse& codes : codeTablesInUse(view))
        check(view, codes.table, "dmcod", report);
    for (const SearchedColumn& row : searched) {
        const bool isDone = row.column == "A00" && keyed.contains(text::lower(row.table));
        if (!isDone) check(view, std::string(row.table), std::string(row.column), report);
    }
}

} // namespace

CheckGroup indexChecks() { return {kinds, run}; }

} // namespace quillmere::check
