#pragma once

#include "platform/data/Connection.h"

#include <chrono>
#include <cstddef>
#include <memory>
#include <string>

/// Databases in SQLite files.
namespace quillmere::sqlite {

struct OpenOptions {
    /// The database file, in UTF-8.
    std::string path;

    /// Makes the file when it is not there; without it a missing file raises FileNotFound.
    bool create = false;

    /// How long a statement waits for another program's statement before it fails.
    std::chrono::milliseconds busyTimeout{5000};

    /// A write-ahead log makes saving three times as fast. Turn it off for a file on a network
    /// share: the log needs memory that all users of the file share.
    bool writeAheadLog = true;

    /// How many prepared queries are kept for their next run. Their results are never kept.
    std::size_t keptQueries = 128;
};

/// Opens a database file for reading and writing; a file that may not be written opens for reading,
/// and a statement that would change it fails. The folder of a file with a write-ahead log has to be
/// writable all the same, since readers too keep track in a file beside it. Raises FileNotFound for a missing
/// file, Unspecified for one that cannot be opened or is no database.
[[nodiscard]] std::shared_ptr<data::Connection> open(const OpenOptions& options);

/// Opens a fresh, empty database that lives as long as the connection is open.
[[nodiscard]] std::shared_ptr<data::Connection> openInMemory();

} // namespace quillmere::sqlite
