#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <vector>

namespace quillmere::bench {

/// How long the work takes by the wall clock.
template <class Action>
[[nodiscard]] double microsecondsOf(const Action& action) {
    const auto begun = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - begun).count();
}

/// The middle one. There must be one.
[[nodiscard]] inline double medianOf(std::vector<double> times) {
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::ranges::nth_element(times, middle);
    return *middle;
}

} // namespace quillmere::bench
