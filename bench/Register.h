#pragma once

#include "BareEngine.h"
#include "platform/data/ObservedConnections.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace quillmere::bench {

/// A register with two ways to it: the system's own connection, whose statements can be listened to, and the
/// bare engine.
struct Register {
    std::size_t persons = 0;
    std::shared_ptr<data::RecordingConnection> connection;
    std::shared_ptr<BareEngine> engine;

    /// The first column of the answer.
    [[nodiscard]] std::vector<std::string> ask(const std::string& query) const;
    /// Its first row as a count. Raises when there is none.
    [[nodiscard]] std::size_t count(const std::string& query) const;
};

} // namespace quillmere::bench
