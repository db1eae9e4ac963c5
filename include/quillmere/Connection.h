#pragma once

#include <quillmere/RowSet.h>

#include <string_view>

namespace quillmere::data {

/// The one way to a database. A host gets one from `openSqlite` and its like; it may wrap one, or implement
/// its own. This comment is the contract for an engine's adapter; the engine contract tests hold every
/// adapter to it.
///
/// - A call takes exactly one statement, in UTF-8, in the dialect of the catalogue: `iif`, `len`,
///   `mid`, `format(value, picture)`, `like` with `%` and without regard to case, `true`, `false`.
///   A trailing `;` and blanks are allowed. More than one statement is refused with
///   StatementFailed before anything runs.
/// - The dialect has no comments and no parameters, and quotes texts as `'...'` and names as `"..."`.
///   What else of these an engine has is refused in the same way wherever a quote in a person's text could
///   hide the rest of its statement by it.
/// - Text is compared without regard to (ASCII) case.
/// - Each statement stands alone: what it changed is stored when the call returns.
/// - A failing statement raises Error (StatementFailed, ConstraintFailed, Unspecified) whose
///   description is Chinese, with the engine's own message behind it. Nothing of it is kept.
/// - A connection that is not open raises InvalidConnection.
/// - A connection is used on one thread at a time.
class Connection {
public:
    Connection() = default;
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    virtual ~Connection();

    /// Runs a statement that yields rows and fetches all of them.
    [[nodiscard]] virtual RowSet query(std::string_view sql) = 0;

    /// Runs a statement and drops any rows of it.
    virtual void execute(std::string_view sql) = 0;

    /// Whether statements can be run.
    [[nodiscard]] virtual bool isOpen() const = 0;
    /// Ends the connection; closing a closed one is harmless.
    virtual void close() = 0;
};

} // namespace quillmere::data
