#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillmere::copy {

/// What the command line asks for.
struct Arguments {
    std::string source;
    std::string target;
    bool help = false;
    /// Why the command line is refused; empty when it is not.
    std::string complaint;
};

/// Reads the words behind the program's name.
[[nodiscard]] Arguments parseArguments(const std::vector<std::string>& words);

[[nodiscard]] std::string_view helpText();

} // namespace quillmere::copy
