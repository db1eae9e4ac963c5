#include "check/CheckGroup.h"
#include "check/RegisterView.h"
#include "check/RequiredColumns.h"

#include "platform/text/Text.h"

#include <map>
#include <set>
#include <string>

namespace quillmere::check {

namespace {

constexpr FindingKind tableMissing{
    .id = "table-missing",
    .title = "缺少数据表",
    .effect =
        "凡是要读写这张表的操作都会失败：编目表缺失时窗口打不开，数据表缺失时点击它的菜单项会关闭窗口。",
    .remedy = "建立这张表；信息集不再使用时，从 s_infotable 中删去它。",
    .failure = Failure::StatementFailed};

constexpr FindingKind columnMissing{
    .id = "column-missing",
    .title = "缺少系统直接使用的列",
    .effect = "系统按名称读写这一列，读写它的语句会失败。",
    .remedy = "给表补上这一列：A00 是主键文本，<表名>99 是整数序号，其余按样例登记库的类型。"};

constexpr const FindingKind* kinds[] = {&tableMissing, &columnMissing};

/// A name as it is compared, and as it is written.
struct Name {
    std::string written;

    bool operator<(const Name& other) const { return text::lower(written) < text::lower(other.written); }
};

using Requirements = std::map<Name, std::set<Name>>;

void require(Requirements& requirements, std::span<const RequiredColumns> rows) {
    for (const RequiredColumns& row : rows)
        for (const std::string_view column : row.columns)
            requirements[{std::string(row.table)}].insert({std::string(column)});
}

void requireSets(Requirements& requirements, const RegisterView& view) {
    for (const SetEntry& set : view.sets()) {
        auto& columns = requirements[{set.name}];
        columns.insert({"A00"});
        if (set.isMultiple()) columns.insert({set.sequenceField()});
    }
}

void run(const RegisterView& view, Report& report) {
    Requirements requirements;
    require(requirements, catalogueColumns());
    if (view.isCatalogueReadable()) {
        require(requirements, dataColumns());
        requireSets(requirements, view);
    }
    for (const auto& [table, columns] : requirements) {
        if (!view.hasTable(table.written)) {
            report.add(tableMissing, table.written, {});
            continue;
        }
        for (const Name& column : columns) {
            if (!view.hasColumn(table.written, column.written))
                report.add(columnMissing, table.written, {{"column", column.written}});
        }
    }
}

} // namespace

CheckGroup structureChecks() { return {kinds, run}; }

} // namespace quillmere::check
