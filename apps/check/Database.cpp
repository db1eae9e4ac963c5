#include "check/Database.h"

#include "address/RegisterAddress.h"
#include "check/SqliteIndexes.h"
#include "platform/Error.h"

#ifdef QUILLMERE_WITH_POSTGRESQL
#include "check/PostgreSqlIndexes.h"

#include <quillmere/PostgreSql.h>
#endif
#include <quillmere/Sqlite.h>

namespace quillmere::check {

namespace {

Database openFile(const std::string& path) { return {openSqlite(path), std::make_unique<SqliteIndexes>()}; }

Database openServer(const std::string& way) {
#ifdef QUILLMERE_WITH_POSTGRESQL
    return {openPostgreSql(way), std::make_unique<PostgreSqlIndexes>()};
#else
    (void)way;
    throw Error(Failure::Unspecified, "本程序没有带 PostgreSQL 的支持", "quillmere-check");
#endif
}

} // namespace

Database openDatabase(const std::string& name) {
    const RegisterAddress address = readAddress(name);
    return address.onServer ? openServer(address.way) : openFile(address.way);
}

} // namespace quillmere::check
