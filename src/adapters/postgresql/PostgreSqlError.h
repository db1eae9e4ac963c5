#pragma once

#include <string_view>

struct pg_conn;
struct pg_result;

namespace quillmere::postgresql {

/// Raises the Error that tells why a statement failed, in Chinese, with the server's own message behind it.
[[noreturn]] void raiseFailed(const pg_result* result);

/// Raises Unspecified: no connection could be made, or the one there was is lost. libpq's message stands
/// behind the Chinese text; it names server, database and role, never the password.
[[noreturn]] void raiseUnreachable(const pg_conn* connection);
[[noreturn]] void raiseLost(const pg_conn* connection);

/// Raises StatementFailed with a description of our own behind the usual Chinese opening.
[[noreturn]] void raiseStatementFailed(std::string_view reason);

/// Raises Unspecified with a description of our own.
[[noreturn]] void raiseUnusable(std::string_view description);

} // namespace quillmere::postgresql
