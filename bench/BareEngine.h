#pragma once

#include <span>
#include <string>

namespace quillmere::bench {

/// An engine's own client library: what the statements cost without the system around them.
class BareEngine {
public:
    BareEngine() = default;
    BareEngine(const BareEngine&) = delete;
    BareEngine& operator=(const BareEngine&) = delete;
    virtual ~BareEngine() = default;

    /// Runs each statement to its end and reads every value that it yields where the engine holds it: no
    /// client could do with less. None is kept. Raises std::runtime_error.
    virtual void run(std::span<const std::string> statements) = 0;
};

} // namespace quillmere::bench
