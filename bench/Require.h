#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

namespace quillmere::bench {

/// Raises std::runtime_error, which ends the program with status 1: what was measured was not what it should
/// be.
/// @{
inline void require(bool holds, const std::string& what) {
    if (!holds) throw std::runtime_error(what);
}
inline void require(std::size_t found, std::size_t expected, const std::string& what) {
    require(found == expected,
            what + ": " + std::to_string(found) + " instead of " + std::to_string(expected));
}
/// @}

} // namespace quillmere::bench
