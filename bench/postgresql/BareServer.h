#pragma once

#include "BareEngine.h"

#include <memory>

struct pg_conn;

namespace quillmere::bench {

/// libpq itself, with one call for each statement, by the protocol that takes no second one with it.
class BareServer final : public BareEngine {
public:
    /// With the options of the system's own connection, else the statements would mean something else.
    /// Raises std::runtime_error when there is no connection.
    explicit BareServer(const std::string& address);

    void run(std::span<const std::string> statements) override;

private:
    struct Close {
        void operator()(pg_conn* connection) const;
    };

    std::unique_ptr<pg_conn, Close> connection_;
};

} // namespace quillmere::bench
