#pragma once

#include "BareEngine.h"

#include <memory>

struct sqlite3;

namespace quillmere::bench {

/// SQLite itself on a database file. Each statement is prepared, stepped to its end and finalized.
class BareSqlite final : public BareEngine {
public:
    /// Raises std::runtime_error for a file that cannot be opened.
    explicit BareSqlite(const std::string& path);

    void run(std::span<const std::string> statements) override;

private:
    struct Close {
        void operator()(sqlite3* database) const;
    };

    std::unique_ptr<sqlite3, Close> database_;
};

} // namespace quillmere::bench
