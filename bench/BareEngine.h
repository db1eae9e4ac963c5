#pragma once

#include <memory>
#include <span>
#include <string>

struct sqlite3;

namespace quillmere::bench {

/// SQLite itself on a database file: what the statements cost without the system around them.
class BareEngine {
public:
    /// Raises std::runtime_error for a file that cannot be opened.
    explicit BareEngine(const std::string& path);

    /// Prepares each statement, steps it to its end and finalizes it. Raises std::runtime_error.
    void run(std::span<const std::string> statements);

private:
    struct Close {
        void operator()(sqlite3* database) const;
    };

    std::unique_ptr<sqlite3, Close> database_;
};

} // namespace quillmere::bench
