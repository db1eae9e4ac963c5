#pragma once

#include "Register.h"

#include <benchmark/benchmark.h>

#include <functional>
#include <string>
#include <vector>

namespace quillmere::bench {

/// Whether a case is measured on registers of every size, or on the smallest alone because what it works on
/// does not grow with the persons.
enum class Sizes { Every, Smallest };

struct Case {
    /// As "open/A01"; the part before the slash names the group.
    std::string name;
    /// How often the work is done: more often when it is short.
    int rounds;
    std::function<void(benchmark::State& state, Register& onRegister)> run;
    Sizes sizes = Sizes::Every;
};

/// What is measured; a file in cases/ for each.
/// @{
[[nodiscard]] std::vector<Case> recordCases();
[[nodiscard]] std::vector<Case> gridCases();
[[nodiscard]] std::vector<Case> saveCases();
[[nodiscard]] std::vector<Case> selectorCases();
[[nodiscard]] std::vector<Case> memoryCases();
/// @}

} // namespace quillmere::bench
