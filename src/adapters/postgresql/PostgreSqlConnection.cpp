#include "adapters/postgresql/PostgreSqlConnection.h"

#include "adapters/postgresql/PostgreSqlError.h"
#include "adapters/postgresql/ResultRows.h"
#include "adapters/postgresql/Session.h"
#include "adapters/postgresql/StatementGuard.h"
#include "platform/Error.h"

#include <libpq-fe.h>

#include <limits>
#include <optional>
#include <string>
#include <utility>

namespace quillmere::postgresql {

namespace {

/// Leaves the copying that a statement began; the connection is good for the next one then.
void leaveCopy(pg_conn* connection, ExecStatusType status) {
    if (status == PGRES_COPY_IN) PQputCopyEnd(connection, "not here");
    char* piece = nullptr;
    while (status == PGRES_COPY_OUT && PQgetCopyData(connection, &piece, 0) > 0)
        PQfreemem(piece);
    while (PGresult* rest = PQgetResult(connection))
        PQclear(rest);
}

class Connected final : public PostgreSqlConnection {
public:
    explicit Connected(ConnectionOptions options) : session_(std::in_place, std::move(options)) {}

    data::RowSet query(std::string_view sql) override { return rowsOf(run(sql).get(), sql); }
    void execute(std::string_view sql) override { (void)run(sql); }

    void executeScript(const std::string& script) override {
        Session& session = requireSession();
        (void)session.checked(Result(PQexec(session.connection(), script.c_str())));
    }

    void copyIn(std::string_view sql, const NextPiece& next) override;

    [[nodiscard]] bool isOpen() const override { return session_.has_value(); }
    void close() override { session_.reset(); }

private:
    Session& requireSession() {
        if (!session_) throw Error(Failure::InvalidConnection);
        return *session_;
    }

    /// Sends it by the extended protocol, which refuses a second statement before the first has run.
    Result send(Session& session, std::string_view sql) {
        return Result(PQexecParams(session.connection(), std::string(sql).c_str(), 0, nullptr, nullptr,
                                   nullptr, nullptr, 0));
    }

    Result run(std::string_view sql) {
        Session& session = requireSession();
        requireDialect(sql);
        Result result = send(session, sql);
        const ExecStatusType status = PQresultStatus(result.get());
        if (status == PGRES_COPY_IN || status == PGRES_COPY_OUT) {
            leaveCopy(session.connection(), status);
            raiseStatementFailed("不能用语句传送成批数据");
        }
        return session.checked(std::move(result));
    }

    std::optional<Session> session_;
};

void Connected::copyIn(std::string_view sql, const NextPiece& next) {
    Session& session = requireSession();
    pg_conn* const connection = session.connection();
    Result begun = send(session, sql);
    if (PQresultStatus(begun.get()) != PGRES_COPY_IN) {
        (void)session.checked(std::move(begun));
        raiseStatementFailed("不是成批写入的语句");
    }
    try {
        for (std::string_view piece = next(); !piece.empty(); piece = next()) {
            constexpr std::size_t longest = std::numeric_limits<int>::max();
            if (piece.size() > longest) raiseStatementFailed("语句过长");
            // A refusal shows in the result of the whole.
            if (PQputCopyData(connection, piece.data(), static_cast<int>(piece.size())) != 1) break;
        }
    } catch (...) {
        leaveCopy(connection, PGRES_COPY_IN);
        throw;
    }
    PQputCopyEnd(connection, nullptr);
    Result result(PQgetResult(connection));
    while (PGresult* rest = PQgetResult(connection))
        PQclear(rest);
    (void)session.checked(std::move(result));
}

} // namespace

std::shared_ptr<PostgreSqlConnection> open(const OpenOptions& options) {
    return std::make_shared<Connected>(connectionOptions(options.address, options.schema));
}

} // namespace quillmere::postgresql
