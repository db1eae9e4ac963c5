#pragma once

#include <memory>
#include <string_view>

namespace quillmere {

namespace data {
class Connection;
}

/// Connects to a register on a PostgreSQL server: "postgresql://role@server/database", with the further
/// options of libpq behind a question mark ("?sslmode=verify-full"), or libpq's words
/// ("host=server dbname=database"). What the address leaves open comes from libpq's usual places, the
/// password from PGPASSWORD or the password file.
///
/// Raises quillmere::Error with a Chinese description, which never tells the password, for an address that
/// cannot be read, for a server that cannot be reached, and for a database in which the schema jet or the
/// register is missing. A connection that is lost later fails the statement that notices; the next
/// statement connects again.
[[nodiscard]] std::shared_ptr<data::Connection> openPostgreSql(std::string_view address);

} // namespace quillmere
