#pragma once

#include <string>

namespace quillmere::scenario {

/// A script cannot go on. Deliberately no std::exception and no Error: nothing in the system may take
/// it for a failure of its own and show it to the person.
struct Stop {
    std::string reason;
    /// Where in the script, from 1; filled in by the player.
    int line = 0;
};

} // namespace quillmere::scenario
