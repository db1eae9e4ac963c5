#pragma once

#include "platform/data/Connection.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>

/// Databases on a PostgreSQL server, version 14 or later. What the dialect needs stands in the schema jet
/// of the database (`JetSchema.h`).
namespace quillmere::postgresql {

struct OpenOptions {
    /// A URI, or libpq's words; see `connectionOptions`.
    std::string address;

    /// Where the register's tables are, and where new ones go.
    std::string schema = "data";
};

/// A connection to a server. When it is lost, the statement that notices fails; the next one connects
/// again, once, and fails when that is not possible.
class PostgreSqlConnection : public data::Connection {
public:
    /// Writes pieces of a copy's text until it has none left; an empty piece is the end.
    using NextPiece = std::function<std::string_view()>;

    /// Sends "copy ... from stdin" with its lines, as the server reads them ("text" format). All rows
    /// are stored when it returns, or none.
    virtual void copyIn(std::string_view sql, const NextPiece& next) = 0;

    /// Runs a script of many statements, all of it or none. For scripts of our own only.
    virtual void executeScript(const std::string& script) = 0;
};

/// Connects. Raises BadArguments for an address that cannot be read, Unspecified when there is no
/// connection, or when the database is not one in UTF-8.
[[nodiscard]] std::shared_ptr<PostgreSqlConnection> open(const OpenOptions& options);

} // namespace quillmere::postgresql
