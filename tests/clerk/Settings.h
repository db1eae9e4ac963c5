#pragma once

#include <cstdint>
#include <vector>

namespace quillmere::test {

/// How the random clerks are run: by the seeds and steps of the suite, or as the command line says.
struct ClerkSettings {
    std::vector<std::uint64_t> seeds;
    int steps = 0;
    bool trace = false;
};

[[nodiscard]] ClerkSettings& clerkSettings();

} // namespace quillmere::test
