#pragma once

#include "Register.h"
#include "Screen.h"
#include "shell/frmPersonWh.h"

#include <benchmark/benchmark.h>

#include <functional>
#include <string>
#include <vector>

namespace quillmere::bench {

/// Where a case is played: a toolkit with a clerk before it, and a register.
struct Stage {
    Clerk& clerk;
    ui::Desktop& desktop;
    Register& from;
};

struct QtCase {
    std::string name;
    int rounds;
    std::function<void(benchmark::State& state, Stage& stage)> run;
    /// Whether it hangs on the number of persons.
    bool everySize = false;
};

/// What is measured; a file in cases/ for each.
/// @{
[[nodiscard]] std::vector<QtCase> panelCases();
[[nodiscard]] std::vector<QtCase> listCases();
[[nodiscard]] std::vector<QtCase> treeCases();
[[nodiscard]] std::vector<QtCase> searchCases();
/// @}

/// Opens the maintenance window in a real window on everything there is of a person, lets `work` work on it
/// when it has been painted, and closes it.
void withQtWindow(Stage& stage, const std::function<void(frmPersonWh& window)>& work);

/// Measures `work` in rounds; the counter `ours` is the median in microseconds for each of the `parts` that a
/// round consists of.
void measure(benchmark::State& state, const std::function<void()>& work, int parts = 1);

} // namespace quillmere::bench
