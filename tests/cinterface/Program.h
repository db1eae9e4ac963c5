#pragma once

#include <string>

namespace quillmere::cinterface {

struct Ended {
    int status = -1;
    /// What it wrote, messages included.
    std::string output;
};

/// Runs a command of the shell to its end.
Ended run(const std::string& command);

} // namespace quillmere::cinterface
