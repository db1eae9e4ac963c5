#include "copy/SqliteStore.h"

#include "copy/StoreRows.h"

#include "platform/Error.h"
#include "platform/text/Text.h"

#include <array>

namespace quillmere::copy {

namespace {

/// A declared type by a word in it, as SQLite itself reads declarations. The first row that fits counts.
struct TypeRow {
    std::string_view word;
    Kind kind;
};

constexpr std::array types{
    TypeRow{"bool", Kind::Boolean}, TypeRow{"int", Kind::Whole},       TypeRow{"char", Kind::Text},
    TypeRow{"clob", Kind::Text},    TypeRow{"text", Kind::Text},       TypeRow{"real", Kind::Number},
    TypeRow{"floa", Kind::Number},  TypeRow{"doub", Kind::Number},     TypeRow{"numeric", Kind::Number},
    TypeRow{"deci", Kind::Number},  TypeRow{"currency", Kind::Number},
};

std::optional<Kind> kindOf(const std::string& type) {
    const std::string lower = text::lower(type);
    for (const TypeRow& row : types)
        if (lower.find(row.word) != std::string::npos) return row.kind;
    return std::nullopt;
}

} // namespace

std::vector<Table> SqliteStore::tables() const {
    const data::RowSet withoutNumbers =
        connection().query("select name from pragma_table_list where schema='main' and wr=1 order by name");
    if (!withoutNumbers.empty()) {
        throw Error(Failure::Unspecified,
                    "不能复制没有行号（WITHOUT ROWID）的表 " + withoutNumbers.at(0, 0).toText(),
                    "quillmere-copy");
    }
    return tablesFrom(
        connection().query("select m.name as tablename, c.name as columnname, c.type as typename "
                           "from sqlite_master m, pragma_table_xinfo(m.name) c where m.type='table' and "
                           "substr(m.name,1,7)<>'sqlite_' and c.hidden<>1 order by m.name, c.cid"),
        kindOf);
}

std::vector<std::string> SqliteStore::others() const {
    return textsOf(connection().query("select iif(type='view','视图 ','触发器 ') || name from sqlite_master "
                                      "where type in ('view','trigger') order by type desc, name"));
}

void SqliteStore::read(const Table& table, const std::vector<std::string>& columns, const Visit& visit) {
    constexpr std::string_view rowsPerPage = "500";
    // Row numbers are the order in which rows came.
    const std::string select =
        "select " + nameList(columns) + ", _rowid_ from " + quotedName(table.name) + " ";
    const std::string order = "order by _rowid_ limit " + std::string(rowsPerPage);
    std::string after;
    for (;;) {
        const data::RowSet page = connection().query(select + after + order);
        for (std::size_t row = 0; row < page.rowCount(); ++row)
            visit(Row(page.row(row)).first(columns.size()));
        if (page.empty()) return;
        after = "where _rowid_ > " + page.row(page.rowCount() - 1).back().toText() + " ";
    }
}

} // namespace quillmere::copy
