#include "sample/postgresql/OutputDatabase.h"

#include "adapters/postgresql/JetSchema.h"
#include "adapters/postgresql/PostgreSqlConnection.h"
#include "platform/Error.h"
#include "sample/CopyTarget.h"

#include <string_view>
#include <utility>

namespace quillmere::sample {
namespace {

constexpr auto unfinished = "data_unfinished";
constexpr auto dropUnfinished = "drop schema if exists data_unfinished cascade";

/// Sends statements as they are, and rows as the server's own copy takes them.
class CopyingConnection final : public data::Connection, public CopyTarget {
public:
    explicit CopyingConnection(postgresql::PostgreSqlConnection& server) : server_(server) {}

    data::RowSet query(std::string_view sql) override { return server_.query(sql); }
    void execute(std::string_view sql) override { server_.execute(sql); }
    [[nodiscard]] bool isOpen() const override { return server_.isOpen(); }
    void close() override { server_.close(); }

    void copyRows(std::string_view table, std::string_view columns, std::string_view lines) override {
        std::string sql("copy ");
        sql.append(table).append(" (").append(columns).append(") from stdin");
        server_.copyIn(sql, [&lines] { return std::exchange(lines, {}); });
    }

private:
    postgresql::PostgreSqlConnection& server_;
};

void refuseToReplace(data::Connection& server) {
    const bool hasTables = !server.query("select 1 from pg_tables where schemaname='data' limit 1").empty();
    if (hasTables) throw Error(Failure::PermissionDenied, "模式 data 中已有数据表", "quillmere-sample");
}

/// What was not to be replaced must be empty still: without "cascade" the server refuses to drop anything
/// else.
void changePlaces(postgresql::PostgreSqlConnection& server, bool replace) {
    try {
        server.executeScript(std::string("begin; drop schema data") + (replace ? " cascade" : "") +
                             "; alter schema data_unfinished rename to data; commit");
    } catch (...) {
        server.executeScript("rollback");
        throw;
    }
}

} // namespace

std::shared_ptr<data::Connection> fillDatabase(const std::string& address, bool replace,
                                               const std::function<void(data::Connection&)>& fill) {
    const auto server = postgresql::open({.address = address});
    postgresql::installJetSchema(*server);
    if (!replace) refuseToReplace(*server);
    server->execute(dropUnfinished);
    server->execute(std::string("create schema ") + unfinished);
    try {
        const auto writer = postgresql::open({.address = address, .schema = unfinished});
        // What is not complete is thrown away, so nothing of it has to outlast a power failure.
        writer->execute("set synchronous_commit=off");
        CopyingConnection copying(*writer);
        fill(copying);
        writer->execute("analyze");
        writer->close();
        changePlaces(*server, replace);
    } catch (...) {
        server->execute(dropUnfinished);
        throw;
    }
    return server;
}

std::shared_ptr<data::Connection> buildDatabase(const std::string& address, const Options& options,
                                                bool replace) {
    return fillDatabase(address, replace, [&options](data::Connection& connection) {
        Options own = options;
        own.engine = Engine::PostgreSql;
        build(connection, own);
    });
}

} // namespace quillmere::sample
