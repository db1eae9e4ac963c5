#pragma once

#include "Register.h"

#include <filesystem>
#include <string>

namespace quillmere::bench {

/// Where registers come from: SQLite files in a folder, made when they are not there yet, or a database on a
/// server.
struct Source {
    std::filesystem::path folder;
    /// postgresql:URI, of a database without tables; empty for SQLite.
    std::string server;
    /// Queries that the system keeps compiled; the bare engine keeps none.
    std::size_t keptQueries = 128;
};

/// A register with so many persons, with what `BenchData` adds to it. Raises when it cannot be made.
[[nodiscard]] Register openRegister(const Source& source, std::size_t persons);

} // namespace quillmere::bench
