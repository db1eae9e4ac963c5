#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::bench {

/// What the command line asks for.
struct Options {
    /// Where SQLite registers are kept and found again; empty for a folder that goes.
    std::string registers;
    /// The sizes of the registers, in the order of the command line.
    std::vector<std::size_t> persons{1'000};
    /// postgresql:URI; empty for SQLite.
    std::string server;
    /// Where the results are left as JSON; empty for nowhere.
    std::string json;
    std::size_t keptQueries = 128;
    /// Every case once, to see that it works.
    bool smoke = false;
    bool help = false;
    /// What is meant for the benchmark library.
    std::vector<std::string> others;
};

/// Raises std::invalid_argument for an option that is not known or has no fitting value.
[[nodiscard]] Options parseOptions(const std::vector<std::string>& arguments);

/// The options, for behind the program's name.
[[nodiscard]] std::string_view helpText();

} // namespace quillmere::bench
