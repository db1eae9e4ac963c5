#include "copy/postgresql/ServerTarget.h"

#include "copy/postgresql/PostgreSqlStore.h"

#include "adapters/postgresql/PostgreSqlConnection.h"
#include "platform/Error.h"
#include "sample/postgresql/OutputDatabase.h"

#include <random>

namespace quillmere::copy {

namespace {

[[noreturn]] void refuse(const std::string& reason) {
    throw Error(Failure::PermissionDenied, reason, "quillmere-copy");
}

/// One database may go by many addresses. But it has its locks once.
bool isSameDatabase(data::Connection& one, data::Connection& other) {
    std::random_device chance;
    const std::string key = "(" + std::to_string(chance() / 2) + "," + std::to_string(chance() / 2) + ")";
    (void)one.query("select pg_advisory_lock" + key);
    const bool free = other.query("select pg_try_advisory_lock" + key).at(0, 0).toBoolean();
    (void)one.query("select pg_advisory_unlock" + key);
    if (free) (void)other.query("select pg_advisory_unlock" + key);
    return !free;
}

void refuseUnlessEmpty(data::Connection& server) {
    // Tables, views, sequences, functions: changing places with the schema would take them away.
    const data::RowSet found =
        server.query("select c.relname::text from pg_class c join pg_namespace n on n.oid=c.relnamespace "
                     "where n.nspname='data' union all select p.proname::text from pg_proc p "
                     "join pg_namespace n on n.oid=p.pronamespace where n.nspname='data' order by 1 limit 1");
    if (!found.empty()) refuse("目标不是空的：模式 data 中已有 " + found.at(0, 0).toText());
    if (!server.query("select to_regclass('s_infotable')").at(0, 0).isNull())
        refuse("目标不是空的：已有登记库（表 s_infotable）");
}

} // namespace

Summary copyToServer(const std::string& address, Store& source, Progress& progress) {
    const auto server = postgresql::open({.address = address});
    const bool comesFromServer = source.engine() == sample::Engine::PostgreSql;
    if (comesFromServer && isSameDatabase(source.connection(), *server))
        refuse("原登记库和目标是同一个数据库");
    refuseUnlessEmpty(*server);
    server->close();

    Summary summary;
    (void)sample::fillDatabase(address, false, [&](data::Connection& connection) {
        PostgreSqlStore target(connection);
        summary = copyRegister(source, target, progress);
    });
    return summary;
}

} // namespace quillmere::copy
