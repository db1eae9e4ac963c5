#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace quillmere::fuzz {

using Function = int(const std::uint8_t* data, std::size_t size);

struct Fuzzer {
    std::string_view name;
    Function* run;
};

/// All of them, by name.
[[nodiscard]] std::span<const Fuzzer> fuzzers();

} // namespace quillmere::fuzz
