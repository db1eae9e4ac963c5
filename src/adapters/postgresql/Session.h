#pragma once

#include "adapters/postgresql/ConnectionString.h"

#include <memory>
#include <string>
#include <string_view>

struct pg_conn;
struct pg_result;

namespace quillmere::postgresql {

struct ClearResult {
    void operator()(pg_result* result) const;
};
using Result = std::unique_ptr<pg_result, ClearResult>;

/// The way to a server: connects, and connects again after a loss.
class Session {
public:
    /// Connects. Raises what `raiseUnreachable` does, and Unspecified for a database not in UTF-8.
    explicit Session(ConnectionOptions options);

    /// The connection, made again when it had been lost. Raises `raiseUnreachable` when that fails; the
    /// next call tries again.
    [[nodiscard]] pg_conn* connection();

    /// Gives the result back when it is a good one; raises why it is none.
    [[nodiscard]] Result checked(Result result);

private:
    struct Finish {
        void operator()(pg_conn* connection) const;
    };

    void connect();

    ConnectionOptions options_;
    std::unique_ptr<pg_conn, Finish> connection_;
};

} // namespace quillmere::postgresql
