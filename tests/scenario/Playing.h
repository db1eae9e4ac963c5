#pragma once

#include "scenario/Runner.h"

#include <string>
#include <string_view>
#include <vector>

namespace quillmere::test {

/// What playing a script came to.
struct Played {
    scenario::Status status = scenario::Status::Stopped;
    /// The transcript without the echoes of the commands.
    std::vector<std::string> printed;
    /// The whole transcript.
    std::string transcript;
    /// What went to standard error; the script is called "script".
    std::string complaints;
};

/// Plays a script on the screenless toolkit.
[[nodiscard]] Played play(std::string_view script);

/// Plays lines with the window open on a person of the sample register: `personID`, item 1 of group 1.
[[nodiscard]] Played playInWindow(std::string_view lines);
/// How many lines stand before those of `playInWindow`.
inline constexpr int linesBefore = 6;

/// A person of the sample register with two records of education and a project at its start.
inline constexpr std::string_view personID = "0980DF6D-BB1D-4BD6-830D-A1D754D4F9DF";

} // namespace quillmere::test
