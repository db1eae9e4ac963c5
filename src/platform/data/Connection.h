#pragma once

#include "platform/data/RowSet.h"

#include <memory>
#include <string_view>

namespace quillmere::data {

/// The one way to a database. This comment is the contract for an engine's adapter; the engine
/// contract tests hold every adapter to it.
///
/// - A call takes exactly one statement, in UTF-8, in the dialect of the catalogue: `iif`, `len`,
///   `mid`, `format(value, picture)`, `like` with `%` and without regard to case, `true`, `false`.
///   A trailing `;` and blanks are allowed. More than one statement is refused with
///   StatementFailed before anything runs.
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
    virtual ~Connection() = default;

    /// Runs a statement that yields rows and fetches all of them.
    [[nodiscard]] virtual RowSet query(std::string_view sql) = 0;

    /// Runs a statement and drops any rows of it.
    virtual void execute(std::string_view sql) = 0;

    [[nodiscard]] virtual bool isOpen() const = 0;
    virtual void close() = 0;
};

/// A connection that was created and never opened: every statement raises InvalidConnection.
class UnopenedConnection final : public Connection {
public:
    RowSet query(std::string_view sql) override;
    void execute(std::string_view sql) override;
    [[nodiscard]] bool isOpen() const override { return false; }
    void close() override;
};

} // namespace quillmere::data
