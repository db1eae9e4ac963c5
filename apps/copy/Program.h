#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace quillmere::copy {

/// The exit status of the program.
enum class Status { Copied = 0, Failed = 1, Misused = 2 };

/// Where the program writes.
struct Streams {
    std::ostream& out;
    std::ostream& complaints;
    /// The terminal that shows the progress; null for none.
    std::ostream* terminal = nullptr;
};

/// Runs the program with the words behind its name.
[[nodiscard]] Status runProgram(const std::vector<std::string>& words, const Streams& streams);

} // namespace quillmere::copy
