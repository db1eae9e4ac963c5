#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace quillmere::sample {

/// A source of chance that gives the same values for the same seed on every machine. (The standard
/// distributions don't promise that, the engine does.)
class Random {
public:
    explicit Random(std::uint64_t seed) : engine_(seed) {}

    /// From 0 to `count` - 1.
    [[nodiscard]] std::size_t below(std::size_t count) { return static_cast<std::size_t>(engine_() % count); }

    /// Both bounds included.
    [[nodiscard]] int between(int low, int high) {
        const auto count = static_cast<std::size_t>(high - low) + 1;
        return low + static_cast<int>(below(count));
    }

    [[nodiscard]] bool chance(int percent) { return between(1, 100) <= percent; }

    template <typename T>
    [[nodiscard]] const T& pick(const std::vector<T>& values) {
        return values[below(values.size())];
    }

    [[nodiscard]] std::uint64_t bits() { return engine_(); }

private:
    std::mt19937_64 engine_;
};

} // namespace quillmere::sample
