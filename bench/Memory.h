#pragma once

#include <cstddef>

namespace quillmere::bench {

/// What the process holds in memory, in KiB. Zero where the system does not tell.
struct Memory {
    std::size_t resident = 0;
    /// The most that it has held so far.
    std::size_t peak = 0;
};

[[nodiscard]] Memory memoryNow();

} // namespace quillmere::bench
