#include "copy/Structure.h"

#include "platform/Error.h"
#include "platform/text/Text.h"
#include "sample/Catalogue.h"
#include "sample/Schema.h"

#include <algorithm>
#include <array>

namespace quillmere::copy {

namespace {

struct ColumnName {
    std::string_view table;
    std::string_view column;
};

/// What the delivered tables of one engine have for themselves; it means nothing on another.
constexpr std::array engineColumns{ColumnName{"S_GUID", "session"}};

bool isOfEngine(const Table& table, const Column& column) {
    return std::ranges::any_of(engineColumns, [&](const ColumnName& own) {
        return text::equalsNoCase(own.table, table.name) && text::equalsNoCase(own.column, column.name);
    });
}

std::string_view typeOf(Kind kind, const sample::Dialect& dialect) {
    switch (kind) {
    case Kind::Boolean:
        return dialect.boolean;
    case Kind::Whole:
        return "bigint";
    case Kind::Number:
        return dialect.number;
    case Kind::Text:
        break;
    }
    return dialect.text;
}

std::string declaration(const Column& column, const Store& target) {
    return quotedName(target.nameFor(column.name)) + " " +
           std::string(typeOf(column.kind.value(), sample::dialectOf(target.engine())));
}

/// The columns of a table that the new register has not yet.
std::vector<Column> furtherColumns(const Table& table, const std::vector<Table>& made) {
    const Table* const same = findTable(made, table.name);
    std::vector<Column> further;
    for (const Column& column : table.columns) {
        const bool isThere = same != nullptr && findColumn(*same, column.name) != nullptr;
        if (!isThere && !isOfEngine(table, column)) further.push_back(column);
    }
    return further;
}

void refuseStrangeTypes(const std::vector<Table>& source, const std::vector<Table>& made) {
    std::vector<std::string> strange;
    for (const Table& table : source) {
        for (const Column& column : furtherColumns(table, made)) {
            if (column.kind) continue;
            strange.push_back(table.name + "." + column.name + "（" +
                              (column.type.empty() ? "没有类型" : column.type) + "）");
        }
    }
    if (strange.empty()) return;
    throw Error(Failure::Unspecified, "这些列的类型不能带到另一个数据库：" + text::join(strange, "、"),
                "quillmere-copy");
}

bool isCodeTable(const Table& table) {
    constexpr std::array columns{"dmcod", "dmcpt", "dmhnd", "dmattr"};
    return std::ranges::all_of(columns, [&](const char* name) { return findColumn(table, name) != nullptr; });
}

void makeFurtherTable(const Table& table, const Store& target) {
    const std::string name = quotedName(target.nameFor(table.name));
    if (isCodeTable(table)) {
        target.connection().execute(sample::codeTableStatement(name, sample::dialectOf(target.engine())));
        return;
    }
    std::string columns;
    for (const Column& column : table.columns)
        columns.append(columns.empty() ? "" : ", ").append(declaration(column, target));
    target.connection().execute("create table " + name + " (" + columns + ")");
}

void makeFurtherColumns(const Table& table, const std::vector<Table>& made, const Store& target) {
    const Table& same = *findTable(made, table.name);
    for (const Column& column : furtherColumns(table, made)) {
        target.connection().execute("alter table " + quotedName(same.name) + " add column " +
                                    declaration(column, target));
    }
}

TablePair pairOf(const Table& source, const Table& target) {
    TablePair pair{source, target, {}};
    for (const Column& column : source.columns) {
        if (isOfEngine(source, column)) continue;
        const Column* const same = findColumn(target, column.name);
        if (same == nullptr || !same->kind)
            throw Error(Failure::ItemNotFound, source.name + "." + column.name, "quillmere-copy");
        pair.columns.push_back({column.name, same->name, *same->kind});
    }
    std::ranges::sort(pair.columns, {}, [](const ColumnPair& one) { return text::lower(one.target); });
    return pair;
}

} // namespace

std::vector<TablePair> makeTables(const std::vector<Table>& source, Store& target) {
    sample::createTables(target.connection(), sample::informationSets(), sample::dialectOf(target.engine()));
    const std::vector<Table> delivered = target.tables();
    refuseStrangeTypes(source, delivered);
    for (const Table& table : source)
        if (findTable(delivered, table.name) == nullptr) makeFurtherTable(table, target);
    const std::vector<Table> named = target.tables();
    for (const Table& table : source)
        makeFurtherColumns(table, named, target);
    const std::vector<Table> made = target.tables();
    std::vector<TablePair> pairs;
    pairs.reserve(source.size());
    for (const Table& table : source)
        pairs.push_back(pairOf(table, *findTable(made, table.name)));
    return pairs;
}

void makeIndexes(const std::vector<TablePair>& tables, Store& target) {
    const std::vector<sample::SetRow> sets = sample::informationSets();
    sample::createIndexes(target.connection(), sets, sample::dialectOf(target.engine()));
    for (const TablePair& table : tables) {
        const std::string& name = table.target.name;
        const bool delivered = std::ranges::any_of(
            sets, [&](const sample::SetRow& set) { return text::equalsNoCase(set.name, name); });
        const Column* const key = findColumn(table.target, "A00");
        if (delivered || key == nullptr) continue;
        const Column* const number = findColumn(table.target, name + "99");
        std::string columns = quotedName(key->name);
        if (number != nullptr) columns += ", " + quotedName(number->name);
        // Whether its keys may repeat only the source knows, so this one is not unique.
        target.connection().execute("create index " + quotedName(target.nameFor("IX_" + name + "_A00")) +
                                    " on " + quotedName(name) + " (" + columns + ")");
    }
}

std::vector<std::string> missingTables(const std::vector<Table>& source, const Store& target) {
    std::vector<std::string> missing;
    for (const Table& table : target.tables())
        if (findTable(source, table.name) == nullptr) missing.push_back(table.name);
    return missing;
}

} // namespace quillmere::copy
