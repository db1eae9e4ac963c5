#pragma once

#include "adapters/journal/Record.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace quillmere::journal {

/// Whether what was written is on the disk when the call returns.
enum class Sync { Wait, LeaveToSystem };

/// The file at its end, where records are added, by several processes too. Each function raises Error when
/// that cannot be done; readers find nothing of the record then, unless it was the disk that failed.
class JournalFile {
public:
    JournalFile(const std::string& path, std::uint64_t limit);
    ~JournalFile();
    JournalFile(const JournalFile&) = delete;
    JournalFile& operator=(const JournalFile&) = delete;

    /// Adds an entry. Its number, which no other entry in the file or in the one before it has.
    std::uint64_t addEntry(std::string_view text, Sync sync);
    void addOutcome(std::string_view text);

private:
    class Lock;

    void open();
    void close();
    /// Whether the open file is still the one that bears the name.
    [[nodiscard]] bool isCurrent() const;
    /// Begins a new file when this one would grow beyond the limit.
    void makeRoom(Lock& lock, std::size_t size);
    void write(std::string_view bytes);
    [[nodiscard]] std::uint64_t size() const;
    /// The number of the youngest entry in this file and in the one before it.
    [[nodiscard]] std::uint64_t youngest();
    void add(Record::Kind kind, std::uint64_t number, std::string_view text);

    std::string path_;
    std::uint64_t limit_;
    int file_ = -1;
    /// What `youngest` found, and how large the file was then; another program may have added to it since.
    std::uint64_t youngest_ = 0;
    std::uint64_t knownSize_ = 0;
    bool known_ = false;
};

/// Where the file before the current one lies.
[[nodiscard]] std::string olderFile(const std::string& path);

} // namespace quillmere::journal
