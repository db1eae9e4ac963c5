#include "BareSqlite.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <cstdint>
#include <stdexcept>

namespace quillmere::bench {

namespace {

[[noreturn]] void raise(sqlite3* database) { throw std::runtime_error(sqlite3_errmsg(database)); }

/// Characters of a text: what the statements call by a name that SQLite itself does not know.
void lengthOf(sqlite3_context* context, int /*count*/, sqlite3_value** arguments) {
    const unsigned char* byte = sqlite3_value_text(arguments[0]);
    if (byte == nullptr) return;
    int length = 0;
    for (; *byte != 0; ++byte)
        length += (*byte & 0xC0U) != 0x80U ? 1 : 0;
    sqlite3_result_int(context, length);
}

/// How much there was to read.
std::int64_t readRow(sqlite3_stmt* statement) {
    std::int64_t read = 0;
    const int columns = sqlite3_column_count(statement);
    for (int i = 0; i < columns; ++i) {
        switch (sqlite3_column_type(statement, i)) {
        case SQLITE_NULL:
            break;
        case SQLITE_INTEGER:
            read += sqlite3_column_int64(statement, i);
            break;
        case SQLITE_FLOAT:
            read += static_cast<std::int64_t>(sqlite3_column_double(statement, i));
            break;
        default:
            benchmark::DoNotOptimize(sqlite3_column_text(statement, i));
            read += sqlite3_column_bytes(statement, i);
        }
    }
    return read;
}

} // namespace

void BareSqlite::Close::operator()(sqlite3* database) const { sqlite3_close_v2(database); }

BareSqlite::BareSqlite(const std::string& path) {
    sqlite3* raw = nullptr;
    const int code =
        sqlite3_open_v2(path.c_str(), &raw, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    database_.reset(raw);
    if (code != SQLITE_OK) raise(raw);
    if (sqlite3_create_function_v2(raw, "len", 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, lengthOf,
                                   nullptr, nullptr, nullptr) != SQLITE_OK) {
        raise(raw);
    }
}

void BareSqlite::run(std::span<const std::string> statements) {
    for (const std::string& sql : statements) {
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v2(database_.get(), sql.data(), static_cast<int>(sql.size()), &statement,
                               nullptr) != SQLITE_OK) {
            raise(database_.get());
        }
        int code = sqlite3_step(statement);
        for (; code == SQLITE_ROW; code = sqlite3_step(statement))
            benchmark::DoNotOptimize(readRow(statement));
        sqlite3_finalize(statement);
        if (code != SQLITE_DONE) raise(database_.get());
    }
}

} // namespace quillmere::bench
