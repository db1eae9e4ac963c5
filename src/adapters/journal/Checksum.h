#pragma once

#include <cstdint>
#include <string_view>

namespace quillmere::journal {

/// The CRC-32 of a text, as zip and Ethernet have it; `before` is that of what stands in front of it.
[[nodiscard]] std::uint32_t checksum(std::string_view text, std::uint32_t before = 0);

} // namespace quillmere::journal
