#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace quillmere::scenario {

/// A picture of 8 by 8 grey points as a JPEG file of exactly `size` bytes; none below the 141 that it
/// needs. Comments fill it up.
[[nodiscard]] std::optional<std::string> makeJpeg(std::size_t size);

} // namespace quillmere::scenario
