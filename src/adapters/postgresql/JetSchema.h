#pragma once

#include <string_view>

namespace quillmere::data {
class Connection;
}

/// The schema jet of a database: the functions, the operator and the collation that the dialect needs. It is
/// made by the numbered files of the folder `schema`, and a table in it says which of them have been run.
namespace quillmere::postgresql {

class PostgreSqlConnection;

/// What this program needs: the number of the last file.
[[nodiscard]] int neededJetVersion();

/// What the database has; 0 for nothing.
[[nodiscard]] int installedJetVersion(data::Connection& connection);

/// Runs the files that the database has not had, all of them or none, and makes the schema `data` for the
/// tables of a register. A database that has them all, or more, is left as it is. Raises what the server
/// does, for example when the role may not create a schema.
void installJetSchema(PostgreSqlConnection& connection);

} // namespace quillmere::postgresql
