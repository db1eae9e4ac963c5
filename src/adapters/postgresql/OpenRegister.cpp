#include "quillmere/PostgreSql.h"

#include "adapters/postgresql/JetSchema.h"
#include "adapters/postgresql/PostgreSqlConnection.h"
#include "adapters/postgresql/PostgreSqlError.h"

namespace quillmere {

std::shared_ptr<data::Connection> openPostgreSql(std::string_view address) {
    auto connection = postgresql::open({.address = std::string(address)});
    if (postgresql::installedJetVersion(*connection) < postgresql::neededJetVersion())
        postgresql::raiseUnusable("数据库中没有所需版本的 jet 模式，请先运行 quillmere-postgresql install");
    // Without the table of the information sets there is nothing that a window could show.
    if (connection->query("select to_regclass('s_infotable')").at(0, 0).isNull())
        postgresql::raiseUnusable("数据库中没有人才信息目录（缺少表 s_infotable）");
    return connection;
}

} // namespace quillmere
