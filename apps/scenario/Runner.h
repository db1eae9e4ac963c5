#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::scenario {

class Engine;
class Toolkit;

/// How a run of the program or of one script ends.
enum class Status { Held = 0, Failed = 1, Stopped = 2 };

struct Options {
    std::string toolkit = "model";
    std::string database = "sqlite";
    /// Directory for pictures; empty for none.
    std::string shots;
    std::vector<std::string> files;
};

/// What a script is played on. Either can be used for several scripts, one after the other.
struct Stage {
    Toolkit& toolkit;
    Engine& engine;
};

/// Plays a script, called `name` in complaints, and prints its transcript. Everything that one script
/// sets (time, connection, sponsorship) is gone for the next.
[[nodiscard]] Status playScript(std::string_view text, const std::string& name, const Stage& stage,
                                const std::string& shots, std::ostream& out, std::ostream& complaints);

/// The whole program behind its arguments, without the program's own name: plays every file, and gives
/// the worst status.
[[nodiscard]] Status runProgram(const std::vector<std::string>& arguments, std::ostream& out,
                                std::ostream& complaints);

} // namespace quillmere::scenario
