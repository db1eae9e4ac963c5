#include "adapters/sqlite/SqliteConnection.h"

#include "adapters/sqlite/SqliteError.h"
#include "adapters/sqlite/SqliteFunctions.h"
#include "adapters/sqlite/StatementCache.h"
#include "platform/Error.h"

#include <sqlite3.h>

#include <algorithm>
#include <filesystem>
#include <limits>
#include <string>
#include <system_error>

namespace quillmere::sqlite {

namespace {

/// The handle of a database. Closing leaves no log behind when no other program has the file open.
struct CloseDatabase {
    void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
};
using Database = std::unique_ptr<sqlite3, CloseDatabase>;

class SqliteConnection final : public data::Connection {
public:
    SqliteConnection(Database database, std::size_t keptQueries)
        : database_(std::move(database)), queries_(keptQueries) {
        note_.attachTo(database_.get());
    }

    data::RowSet query(std::string_view sql) override { return statementFor(sql)->query(); }
    void execute(std::string_view sql) override { statementFor(sql)->execute(); }
    [[nodiscard]] bool isOpen() const override { return database_ != nullptr; }

    void close() override {
        queries_.clear();
        database_.reset();
    }

private:
    std::shared_ptr<Statement> statementFor(std::string_view sql) {
        if (!isOpen()) throw Error(Failure::InvalidConnection);
        return queries_.statementFor(database_.get(), note_, sql);
    }

    // The statements go before the database, and both before the note that it writes into.
    CompilationNote note_;
    Database database_;
    StatementCache queries_;
};

void run(sqlite3* database, const char* sql) {
    const int code = sqlite3_exec(database, sql, nullptr, nullptr, nullptr);
    if (code != SQLITE_OK) raiseLatest(database, code);
}

/// Sets what only the open handle knows. None of it touches the file.
void configure(sqlite3* database, std::chrono::milliseconds busyTimeout) {
    constexpr std::chrono::milliseconds longest{std::numeric_limits<int>::max()};
    sqlite3_extended_result_codes(database, 1);
    sqlite3_busy_timeout(
        database, static_cast<int>(std::clamp(busyTimeout, std::chrono::milliseconds{0}, longest).count()));
    sqlite3_db_config(database, SQLITE_DBCONFIG_ENABLE_FKEY, 0, nullptr);
    // Otherwise a misspelt "name" in double quotes would read as a text instead of failing.
    sqlite3_db_config(database, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(database, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
    addFunctions(database);
}

/// A log that cannot be had (a read-only file, a file in use) is no reason not to open: the mode
/// decides on speed, statements are whole in every one.
void chooseLog(sqlite3* database, bool writeAheadLog) {
    if (sqlite3_db_readonly(database, "main") != 0) return;
    sqlite3_exec(database, writeAheadLog ? "pragma journal_mode=wal" : "pragma journal_mode=delete", nullptr,
                 nullptr, nullptr);
    // In either mode a killed process leaves each statement whole. FULL writes the log through to the
    // disk before a call returns, so that a saved record also outlasts a power failure; NORMAL would
    // spare that write and could lose the last records saved.
    run(database, "pragma synchronous=full");
}

Database openHandle(const std::string& name, int flags) {
    sqlite3* raw = nullptr;
    // One thread at a time is the contract, so the handle needs no lock of its own.
    const int code = sqlite3_open_v2(name.c_str(), &raw, flags | SQLITE_OPEN_NOMUTEX, nullptr);
    Database database(raw);
    if (code != SQLITE_OK) raiseLatest(raw, code);
    return database;
}

/// SQLite gives names that begin so a meaning of their own; here they are files like any other.
std::string plainFileName(const std::string& path) {
    const bool special = path.starts_with(":") || path.starts_with("file:");
    return special ? "./" + path : path;
}

} // namespace

std::shared_ptr<data::Connection> open(const OpenOptions& options) {
    const std::filesystem::path file(std::u8string(options.path.begin(), options.path.end()));
    std::error_code ignored;
    const bool missing = options.path.empty() || (!options.create && !std::filesystem::exists(file, ignored));
    if (missing) throw Error(Failure::FileNotFound, "找不到数据库文件：" + options.path, "SQLite");

    const int create = options.create ? SQLITE_OPEN_CREATE : 0;
    auto database = openHandle(plainFileName(options.path), SQLITE_OPEN_READWRITE | create);
    configure(database.get(), options.busyTimeout);
    // The first read shows whether the file is a database at all.
    run(database.get(), "select count(*) from sqlite_master");
    chooseLog(database.get(), options.writeAheadLog);
    return std::make_shared<SqliteConnection>(std::move(database), options.keptQueries);
}

std::shared_ptr<data::Connection> openInMemory() {
    const OpenOptions defaults;
    auto database = openHandle(":memory:", SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    configure(database.get(), defaults.busyTimeout);
    return std::make_shared<SqliteConnection>(std::move(database), defaults.keptQueries);
}

} // namespace quillmere::sqlite
