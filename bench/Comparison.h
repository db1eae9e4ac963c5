#pragma once

#include <functional>
#include <string_view>

namespace quillmere::bench {

/// How long the system takes for a piece of work, and how long the bare engine takes for the same
/// statements: medians, in microseconds.
struct Comparison {
    double system = 0;
    double bareEngine = 0;

    [[nodiscard]] double ratio() const { return system / bareEngine; }
};

/// Runs both by turns, so that whatever else the machine does falls on both alike.
[[nodiscard]] Comparison compare(int rounds, const std::function<void()>& system,
                                 const std::function<void()>& bareEngine);

void print(std::string_view what, std::size_t statements, const Comparison& comparison);

} // namespace quillmere::bench
