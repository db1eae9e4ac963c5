#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::recovery {

enum class Command { List, Show, Restore };

/// What the command line asks for.
struct Arguments {
    Command command = Command::List;
    /// The journal.
    std::string file;
    /// The numbers of entries.
    std::vector<std::uint64_t> entries;
    /// The register that rows go back to.
    std::string database;
    /// What a list is limited to; empty for no limit. The time as entries have it.
    std::string table;
    std::string identity;
    std::string since;
    /// Tell what would be done, and do nothing.
    bool dryRun = false;
    /// Bring a record back although one that differs in its number alone is there.
    bool anyway = false;
    bool help = false;
    /// Why the command line is refused; empty when it is not.
    std::string complaint;
};

/// Reads the words behind the program's name.
[[nodiscard]] Arguments parseArguments(const std::vector<std::string>& words);

[[nodiscard]] std::string_view helpText();

} // namespace quillmere::recovery
