#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillmere::check {

/// What the command line asks for.
struct Arguments {
    /// The register to check.
    std::string database;
    /// For programs instead of for people.
    bool json = false;
    /// The kinds of finding instead of the findings.
    bool list = false;
    bool help = false;
    /// Why the command line is refused; empty when it is not.
    std::string complaint;
};

/// Reads the words behind the program's name.
[[nodiscard]] Arguments parseArguments(const std::vector<std::string>& words);

[[nodiscard]] std::string_view helpText();

} // namespace quillmere::check
