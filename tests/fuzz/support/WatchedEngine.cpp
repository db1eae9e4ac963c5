#include "support/WatchedEngine.h"

#include "support/Fuzzing.h"

#include "adapters/sqlite/SqliteConnection.h"

#include <sqlite3.h>

namespace quillmere::fuzz {

namespace {

sqlite3* lastOpened = nullptr;

int noteOpened(sqlite3* database, const char**, const sqlite3_api_routines*) {
    lastOpened = database;
    return SQLITE_OK;
}

constexpr int instructionsAStep = 1000;
constexpr int mostSteps = 200;
constexpr int mostBytes = 1 << 20;
constexpr sqlite3_int64 mostMemory = 1 << 26;

} // namespace

WatchedEngine::WatchedEngine() {
    // The adapter keeps its handle to itself; the engine gives it to an extension.
    static const int registered = sqlite3_auto_extension(reinterpret_cast<void (*)()>(noteOpened));
    sqlite3_hard_heap_limit64(mostMemory);
    hold(registered == SQLITE_OK, "the engine can be watched");
    connection_ = sqlite::openInMemory();
    database_ = lastOpened;
    // No other file, by "attach" or by "vacuum into".
    sqlite3_limit(database_, SQLITE_LIMIT_ATTACHED, 0);
    sqlite3_limit(database_, SQLITE_LIMIT_LENGTH, mostBytes);
    sqlite3_progress_handler(database_, instructionsAStep, countSteps, this);
    sqlite3_trace_v2(database_, SQLITE_TRACE_STMT, hear, this);
}

WatchedEngine::~WatchedEngine() = default;

int WatchedEngine::countSteps(void* self) {
    return ++static_cast<WatchedEngine*>(self)->steps_ > mostSteps ? 1 : 0;
}

int WatchedEngine::hear(unsigned, void* self, void* statement, void* text) {
    // A trigger's own statements are told as comments.
    const auto* begun = static_cast<const char*>(text);
    const char* sql = sqlite3_sql(static_cast<sqlite3_stmt*>(statement));
    if (sql != nullptr && begun != nullptr && !std::string_view(begun).starts_with("--"))
        static_cast<WatchedEngine*>(self)->ran_.emplace_back(sql);
    return 0;
}

std::string WatchedEngine::directly(const std::string& sql) {
    const auto lines = tryDirectly(sql);
    hold(lines.has_value(), "the fuzzer's own statement runs");
    return *lines;
}

std::optional<std::string> WatchedEngine::tryDirectly(const std::string& sql) {
    std::string lines;
    const auto addLine = [](void* all, int count, char** values, char**) {
        for (int i = 0; i < count; ++i)
            static_cast<std::string*>(all)->append(values[i] == nullptr ? "(null)" : values[i]).append("|");
        static_cast<std::string*>(all)->append("\n");
        return 0;
    };
    steps_ = 0;
    const int code = sqlite3_exec(database_, sql.c_str(), addLine, &lines, nullptr);
    forget();
    return code == SQLITE_OK ? std::optional(lines) : std::nullopt;
}

} // namespace quillmere::fuzz
