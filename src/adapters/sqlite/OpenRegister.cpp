#include "quillmere/Sqlite.h"

#include "adapters/sqlite/SqliteConnection.h"
#include "platform/Error.h"

#include <string>

namespace quillmere {

std::shared_ptr<data::Connection> openSqlite(std::string_view path) {
    const std::string file(path);
    auto connection = sqlite::open({.path = file});
    // Without the table of the information sets there is nothing that a window could show.
    constexpr auto findCatalogue = "select name from sqlite_master where type in ('table','view') and "
                                   "name='s_infotable' collate nocase";
    if (connection->query(findCatalogue).empty())
        throw Error(Failure::Unspecified, "数据库中没有人才信息目录（缺少表 s_infotable）：" + file,
                    "SQLite");
    return connection;
}

} // namespace quillmere
