#pragma once

#include <span>
#include <string_view>
#include <vector>

namespace quillmere::check::test {

/// A way to break the sample register, and the one finding that it leads to.
struct Fault {
    std::vector<std::string_view> statements;
    /// Kind and place, as `lineOf` has them.
    std::string_view finding;
};

[[nodiscard]] std::span<const Fault> faults();

} // namespace quillmere::check::test
