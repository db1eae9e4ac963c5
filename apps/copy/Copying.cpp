#include "copy/Copying.h"

#include "copy/CellText.h"
#include "copy/Progress.h"

#include "platform/Error.h"
#include "platform/text/Text.h"
#include "sample/InsertBatch.h"

#include <algorithm>
#include <cstdint>

namespace quillmere::copy {

namespace {

/// Does something with a table; a failure tells which one it was.
template <class Work>
auto withTable(const TablePair& table, Work work) {
    try {
        return work();
    } catch (const Error& failure) {
        throw Error(static_cast<Failure>(failure.number()), table.source.name + "：" + failure.description(),
                    failure.source());
    }
}

std::vector<std::string> namesOf(const TablePair& table, std::string ColumnPair::*name) {
    std::vector<std::string> names;
    for (const ColumnPair& column : table.columns)
        names.push_back(column.*name);
    return names;
}

std::size_t countRows(Store& store, const Table& table) {
    const data::RowSet count = store.connection().query("select count(*) from " + quotedName(table.name));
    return static_cast<std::size_t>(std::get<std::int64_t>(count.at(0, 0).raw()));
}

std::size_t countRows(Store& store, const std::vector<TablePair>& tables) {
    std::size_t rows = 0;
    for (const TablePair& table : tables)
        rows += countRows(store, table.source);
    return rows;
}

/// A delivered table has to be one: what a view shows could not be saved into.
void refuseViews(const Summary& summary) {
    for (const std::string& other : summary.leftBehind) {
        const std::string name = other.substr(other.find(' ') + 1);
        const bool isDelivered = std::ranges::any_of(
            summary.added, [&](const std::string& table) { return text::equalsNoCase(table, name); });
        if (isDelivered)
            throw Error(Failure::Unspecified, "原登记库中应该是表的，是" + other, "quillmere-copy");
    }
}

Digest copyRows(const TablePair& table, Store& source, Store& target, Progress& progress) {
    std::vector<std::string> columns;
    for (const ColumnPair& column : table.columns)
        columns.push_back(quotedName(column.target));
    sample::InsertBatch batch(target.connection(), quotedName(table.target.name), text::join(columns, ","));
    std::vector<std::string> literals(table.columns.size());
    Digest digest;
    source.read(table.source, namesOf(table, &ColumnPair::source), [&](Store::Row row) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            const Kind kind = table.columns[i].kind;
            const auto text = cellText(row[i], kind);
            digest.addCell(text);
            literals[i] = cellLiteral(row[i], kind, text);
        }
        digest.endRow();
        batch.add(literals);
        progress.step("复制", table.source.name);
    });
    batch.flush();
    // The engine's own count: a row that reading left out would be missing in both digests.
    const std::size_t counted = countRows(source, table.source);
    if (counted != digest.rows()) {
        throw Error(Failure::Unspecified,
                    "只读到 " + std::to_string(counted) + " 行中的 " + std::to_string(digest.rows()) + " 行",
                    "quillmere-copy");
    }
    return digest;
}

} // namespace

void compareTable(const TablePair& table, const Digest& expected, Store& target, Progress& progress) {
    Digest digest;
    target.read(table.target, namesOf(table, &ColumnPair::target), [&](Store::Row row) {
        for (std::size_t i = 0; i < row.size(); ++i)
            digest.addCell(cellText(row[i], table.columns[i].kind));
        digest.endRow();
        progress.step("核对", table.source.name);
    });
    if (digest == expected) return;
    throw Error(Failure::Unspecified,
                "复制后的内容与原来不同：原来 " + std::to_string(expected.rows()) + " 行 " +
                    expected.shown() + "，现在 " + std::to_string(digest.rows()) + " 行 " + digest.shown(),
                "quillmere-copy");
}

Summary copyRegister(Store& source, Store& target, Progress& progress) {
    const Reading reading(source);
    const std::vector<Table> tables = source.tables();
    Summary summary{.tables = {}, .added = {}, .leftBehind = source.others()};

    target.connection().execute("begin");
    const std::vector<TablePair> pairs = makeTables(tables, target);
    summary.added = missingTables(tables, target);
    refuseViews(summary);
    // Each row is copied and then compared.
    progress.expect(2 * countRows(source, pairs));
    for (const TablePair& table : pairs) {
        const Digest digest = withTable(table, [&] { return copyRows(table, source, target, progress); });
        summary.tables.push_back({table.source.name, digest});
    }
    for (std::size_t i = 0; i < pairs.size(); ++i)
        withTable(pairs[i], [&] { compareTable(pairs[i], summary.tables[i].digest, target, progress); });
    target.connection().execute("commit");
    makeIndexes(pairs, target);
    return summary;
}

} // namespace quillmere::copy
