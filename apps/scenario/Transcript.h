#pragma once

#include <ostream>
#include <string_view>

namespace quillmere::scenario {

/// What a scenario prints, line by line.
class Transcript {
public:
    explicit Transcript(std::ostream& out) : out_(out) {}

    /// Prints one line; CR and LF in it are shown as `\r` and `\n`.
    void line(std::string_view text);
    /// Prints nothing from now on: what the unwinding of a broken-off script does is no part of it.
    void silence() { silent_ = true; }

private:
    std::ostream& out_;
    bool silent_ = false;
};

} // namespace quillmere::scenario
