#include "check/PostgreSqlIndexes.h"

#include "check/IndexRows.h"

#include "platform/data/Connection.h"
#include "platform/text/Text.h"

namespace quillmere::check {

std::optional<std::vector<EngineIndexes::Index>> PostgreSqlIndexes::indexesOf(data::Connection& connection,
                                                                              std::string_view table) const {
    // An index on some of the rows alone serves none of the statements.
    return indexesFrom(connection.query(
        "select c.relname as indexname, pg_get_indexdef(x.indexrelid, a.attnum, true) as columnname "
        "from pg_index x join pg_class c on c.oid=x.indexrelid "
        "join pg_attribute a on a.attrelid=x.indexrelid "
        "where x.indrelid=to_regclass('" +
        text::replaceAll(table, "'", "''") + "') and x.indpred is null order by c.relname, a.attnum"));
}

} // namespace quillmere::check
