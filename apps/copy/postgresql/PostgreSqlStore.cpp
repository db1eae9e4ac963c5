#include "copy/postgresql/PostgreSqlStore.h"

#include "copy/StoreRows.h"

#include "platform/text/Text.h"

#include <array>

namespace quillmere::copy {

namespace {

struct TypeRow {
    std::string_view type;
    Kind kind;
};

/// The server's own names of its types.
constexpr std::array types{
    TypeRow{"bool", Kind::Boolean},   TypeRow{"int2", Kind::Whole},    TypeRow{"int4", Kind::Whole},
    TypeRow{"int8", Kind::Whole},     TypeRow{"float4", Kind::Number}, TypeRow{"float8", Kind::Number},
    TypeRow{"numeric", Kind::Number}, TypeRow{"text", Kind::Text},     TypeRow{"varchar", Kind::Text},
    TypeRow{"bpchar", Kind::Text},
};

std::optional<Kind> kindOf(const std::string& type) {
    for (const TypeRow& row : types)
        if (row.type == type) return row.kind;
    return std::nullopt;
}

constexpr std::string_view inSchema =
    "(select relnamespace from pg_class where oid=to_regclass('s_infotable'))";

} // namespace

void PostgreSqlStore::beginReading() {
    // Otherwise rows of a table that others are reading as well could begin in its middle.
    connection().execute("set synchronize_seqscans=off");
    connection().execute("begin isolation level repeatable read read only");
}

std::vector<Table> PostgreSqlStore::tables() const {
    return tablesFrom(
        connection().query("select c.relname::text as tablename, a.attname::text as columnname, "
                           "t.typname::text as typename from pg_class c "
                           "join pg_attribute a on a.attrelid=c.oid and a.attnum>0 and not a.attisdropped "
                           "join pg_type t on t.oid=a.atttypid "
                           "where c.relkind in ('r','p') and not c.relispartition and c.relnamespace=" +
                           std::string(inSchema) + " order by c.relname, a.attnum"),
        kindOf);
}

std::vector<std::string> PostgreSqlStore::others() const {
    const std::string schema(inSchema);
    return textsOf(connection().query(
        "select iif(relkind='f','外部表 ','视图 ') || relname from pg_class "
        "where relkind in ('v','m','f') and relnamespace=" +
        schema +
        " union all select '触发器 ' || tgname from pg_trigger join pg_class c on c.oid=tgrelid "
        "where not tgisinternal and c.relnamespace=" +
        schema + " order by 1"));
}

std::string PostgreSqlStore::nameFor(const std::string& name) const { return text::lower(name); }

void PostgreSqlStore::read(const Table& table, const std::vector<std::string>& columns, const Visit& visit) {
    connection().execute("declare copied no scroll cursor for select " + nameList(columns) + " from " +
                         quotedName(table.name));
    for (;;) {
        const data::RowSet page = connection().query("fetch 500 from copied");
        if (page.empty()) break;
        for (std::size_t row = 0; row < page.rowCount(); ++row)
            visit(page.row(row));
    }
    connection().execute("close copied");
}

} // namespace quillmere::copy
