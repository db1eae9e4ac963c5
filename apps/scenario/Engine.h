#pragma once

#include "platform/data/Connection.h"
#include "sample/Dialect.h"

#include <memory>
#include <string>

namespace quillmere::scenario {

/// Where the databases of a script come from.
class Engine {
public:
    Engine() = default;
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;
    virtual ~Engine() = default;

    /// A connection to a place without tables that nothing else uses. The one before goes; the last goes
    /// with the engine.
    [[nodiscard]] virtual std::shared_ptr<data::Connection> openFresh() = 0;
    [[nodiscard]] virtual sample::Engine dialect() const = 0;
};

/// The engine of that name: "sqlite", or "postgresql:" with the way to a database behind it. Raises Stop for
/// another one, and for one that is not built in.
[[nodiscard]] std::unique_ptr<Engine> makeEngine(const std::string& database);

} // namespace quillmere::scenario
