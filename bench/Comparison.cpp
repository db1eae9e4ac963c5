#include "Comparison.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

namespace quillmere::bench {

namespace {

double microsecondsOf(const std::function<void()>& work) {
    const auto begun = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - begun).count();
}

double median(std::vector<double>& times) {
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::ranges::nth_element(times, middle);
    return *middle;
}

} // namespace

Comparison compare(int rounds, const std::function<void()>& system, const std::function<void()>& bareEngine) {
    // The first rounds fill the caches of both.
    for (int i = 0; i < rounds / 10 + 1; ++i) {
        system();
        bareEngine();
    }
    std::vector<double> systemTimes;
    std::vector<double> bareTimes;
    for (int i = 0; i < rounds; ++i) {
        systemTimes.push_back(microsecondsOf(system));
        bareTimes.push_back(microsecondsOf(bareEngine));
    }
    return {median(systemTimes), median(bareTimes)};
}

void print(std::string_view what, std::size_t statements, const Comparison& comparison) {
    std::printf("%s: %zu statements, system %.0f us, bare engine %.0f us, ratio %.2f\n",
                std::string(what).c_str(), statements, comparison.system, comparison.bareEngine,
                comparison.ratio());
}

} // namespace quillmere::bench
