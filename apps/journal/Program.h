#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace quillmere::recovery {

/// The exit status of the program.
enum class Status { Done = 0, Failed = 1, Misused = 2 };

/// Runs the program with the words behind its name.
[[nodiscard]] Status runProgram(const std::vector<std::string>& words, std::ostream& out,
                                std::ostream& complaints);

} // namespace quillmere::recovery
