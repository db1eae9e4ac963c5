#include "copy/Source.h"

#include "address/RegisterAddress.h"
#include "copy/SqliteStore.h"
#ifdef QUILLMERE_WITH_POSTGRESQL
#include "copy/postgresql/PostgreSqlStore.h"

#include <quillmere/PostgreSql.h>
#else
#include "platform/Error.h"
#endif
#include <quillmere/Sqlite.h>

namespace quillmere::copy {

namespace {

template <class EngineStore>
Source sourceOn(const std::shared_ptr<data::Connection>& connection) {
    return {connection, std::make_unique<EngineStore>(*connection)};
}

} // namespace

Source openSource(const RegisterAddress& address) {
    if (!address.onServer) return sourceOn<SqliteStore>(openSqlite(address.way));
#ifdef QUILLMERE_WITH_POSTGRESQL
    return sourceOn<PostgreSqlStore>(openPostgreSql(address.way));
#else
    throw Error(Failure::Unspecified, "本程序没有带 PostgreSQL 的支持", "quillmere-copy");
#endif
}

} // namespace quillmere::copy
