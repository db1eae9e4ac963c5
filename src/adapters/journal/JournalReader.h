#pragma once

#include "adapters/journal/Entry.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quillmere::journal {

/// An entry as it is found in the file.
struct KeptEntry {
    std::uint64_t number = 0;
    Entry entry;
    /// None when the program ended, or the journal failed, between the two.
    std::optional<Outcome> outcome;
};

/// What a journal holds, oldest first.
struct Journal {
    std::vector<KeptEntry> entries;
    /// What could not be read, in words.
    std::vector<std::string> notes;

    /// Null when there is none of that number.
    [[nodiscard]] const KeptEntry* find(std::uint64_t number) const;
};

/// Reads a journal's file and the one before it. Raises FileNotFound when neither is there, PermissionDenied
/// when one cannot be read.
[[nodiscard]] Journal readJournal(const std::string& path);

} // namespace quillmere::journal
