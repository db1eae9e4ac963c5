#include "adapters/postgresql/Session.h"

#include "adapters/postgresql/PostgreSqlError.h"

#include <libpq-fe.h>

#include <array>
#include <utility>
#include <vector>

namespace quillmere::postgresql {

namespace {

/// Notices are for a person at a prompt; libpq would print them.
void ignoreNotice(void* /*unused*/, const PGresult* /*notice*/) {}

} // namespace

void ClearResult::operator()(pg_result* result) const { PQclear(result); }
void Session::Finish::operator()(pg_conn* connection) const { PQfinish(connection); }

Session::Session(ConnectionOptions options) : options_(std::move(options)) {
    connect();
    // In another encoding a text could fail to be stored, and the length of one would not be its characters.
    const char* encoding = PQparameterStatus(connection_.get(), "server_encoding");
    if (encoding == nullptr || std::string_view(encoding) != "UTF8") raiseUnusable("数据库的编码不是 UTF8");
}

void Session::connect() {
    std::vector<const char*> names;
    std::vector<const char*> values;
    for (const auto& [name, value] : options_) {
        names.push_back(name.c_str());
        values.push_back(value.c_str());
    }
    names.push_back(nullptr);
    values.push_back(nullptr);
    connection_.reset(PQconnectdbParams(names.data(), values.data(), 0));
    if (PQstatus(connection_.get()) != CONNECTION_OK) raiseUnreachable(connection_.get());
    PQsetNoticeReceiver(connection_.get(), ignoreNotice, nullptr);
}

pg_conn* Session::connection() {
    if (PQstatus(connection_.get()) != CONNECTION_OK) connect();
    return connection_.get();
}

Result Session::checked(Result result) {
    switch (PQresultStatus(result.get())) {
    case PGRES_COMMAND_OK:
    case PGRES_TUPLES_OK:
        return result;
    case PGRES_EMPTY_QUERY:
        raiseStatementFailed("语句为空");
    default:
        break;
    }
    if (!result || PQstatus(connection_.get()) != CONNECTION_OK) raiseLost(connection_.get());
    raiseFailed(result.get());
}

} // namespace quillmere::postgresql
