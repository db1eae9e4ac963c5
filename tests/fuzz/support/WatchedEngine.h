#pragma once

#include "platform/data/Connection.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3;

namespace quillmere::fuzz {

/// A database in memory behind the adapter for SQLite, of which the engine itself tells what runs. It is kept
/// from files, and what takes long or much memory fails.
class WatchedEngine {
public:
    WatchedEngine();
    ~WatchedEngine();
    WatchedEngine(const WatchedEngine&) = delete;
    WatchedEngine& operator=(const WatchedEngine&) = delete;

    [[nodiscard]] data::Connection& connection() { return *connection_; }

    /// Statements that began to run since the last `forget`, as the engine cut them off the text.
    [[nodiscard]] const std::vector<std::string>& ran() const { return ran_; }
    void forget() { ran_.clear(); }

    /// Of the fuzzer itself, past the adapter: each row a line, its columns separated by "|".
    std::string directly(const std::string& sql);
    /// The same, none when the engine refuses or gives up.
    std::optional<std::string> tryDirectly(const std::string& sql);

private:
    static int hear(unsigned event, void* self, void* statement, void* text);
    static int countSteps(void* self);

    int steps_ = 0;
    std::vector<std::string> ran_;
    std::shared_ptr<data::Connection> connection_;
    sqlite3* database_ = nullptr;
};

} // namespace quillmere::fuzz
