#include "clerk/Settings.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>
#include <string_view>

// The clerks of the suite work from fixed seeds. By hand, for one seed or for many that follow:
//   test-clerk --seed 17 --steps 10000 --seeds 20
// and with --trace every step is printed when it begins.

namespace quillmere::test {

ClerkSettings& clerkSettings() {
    static ClerkSettings settings{.seeds = {10, 11, 12}, .steps = 2000};
    return settings;
}

namespace {

/// False when the command line asks for nothing that there is.
bool read(int count, char** arguments) {
    ClerkSettings& settings = clerkSettings();
    std::uint64_t first = 0;
    std::uint64_t seeds = 1;
    for (int i = 1; i < count; ++i) {
        const std::string_view name = arguments[i];
        if (name.starts_with("--gtest")) continue;
        if (name == "--trace") {
            settings.trace = true;
            continue;
        }
        const std::uint64_t value = i + 1 < count ? std::strtoull(arguments[++i], nullptr, 10) : 0;
        if (value == 0) return false;
        if (name == "--seed")
            first = value;
        else if (name == "--seeds")
            seeds = value;
        else if (name == "--steps")
            settings.steps = static_cast<int>(value);
        else
            return false;
    }
    if (first == 0) return true;
    settings.seeds.clear();
    for (std::uint64_t seed = first; seed < first + seeds; ++seed)
        settings.seeds.push_back(seed);
    return true;
}

} // namespace

} // namespace quillmere::test

int main(int count, char** arguments) {
    if (!quillmere::test::read(count, arguments)) {
        std::cerr << "usage: test-clerk [--seed N [--seeds N]] [--steps N] [--trace]\n";
        return 2;
    }
    testing::InitGoogleTest(&count, arguments);
    return RUN_ALL_TESTS();
}
