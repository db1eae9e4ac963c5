#pragma once

#include <string_view>

struct sqlite3;

namespace quillmere::sqlite {

/// Raises the Error that tells the database's latest failure, in Chinese, with SQLite's own message
/// behind it. `code` is what the failed call gave back.
[[noreturn]] void raiseLatest(sqlite3* database, int code);

/// Raises StatementFailed with a description of our own behind the usual Chinese opening.
[[noreturn]] void raiseStatementFailed(std::string_view reason);

} // namespace quillmere::sqlite
