#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace quillmere::check {

/// The exit status of the program.
enum class Status {
    Clean = 0,      ///< nothing, or nothing but notes
    Warnings = 1,   ///< warnings and no error
    Errors = 2,     ///< at least one error
    Unreadable = 3, ///< no register could be checked
};

/// Runs the program with the words behind its name.
[[nodiscard]] Status runProgram(const std::vector<std::string>& words, std::ostream& out,
                                std::ostream& complaints);

} // namespace quillmere::check
