#include "check/SqliteIndexes.h"

#include "check/IndexRows.h"

#include "platform/data/Connection.h"
#include "platform/text/Text.h"

namespace quillmere::check {

std::optional<std::vector<EngineIndexes::Index>> SqliteIndexes::indexesOf(data::Connection& connection,
                                                                          std::string_view table) const {
    // An index on some of the rows alone serves none of the statements.
    return indexesFrom(
        connection.query("select l.name as indexname, i.name as columnname from pragma_index_list('" +
                         text::replaceAll(table, "'", "''") +
                         "') l, pragma_index_info(l.name) i where l.partial=0 order by l.name, i.seqno"));
}

} // namespace quillmere::check
