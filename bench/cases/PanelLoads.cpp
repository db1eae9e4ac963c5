#include "Case.h"
#include "Memory.h"
#include "Window.h"

// Whether a window that is worked in all day holds more and more memory.

namespace quillmere::bench {

namespace {

/// Clicks the items of the whole menu in turn until `loads` panels have been loaded.
void loadPanels(frmPersonWh& window, int loads) {
    while (loads > 0) {
        const auto& groups = window.menu().groups();
        for (std::size_t group = 0; group < groups.size(); ++group) {
            for (std::size_t item = 0; item < groups[group].items.size() && loads > 0; ++item, --loads) {
                if (!window.menu().clickItem(static_cast<int>(group) + 1, static_cast<int>(item) + 1))
                    throw std::runtime_error("an item of the menu cannot be clicked");
            }
        }
    }
}

/// Counters in KiB: `settled` when every panel has been there some times, `grown` by so much after as many
/// loads as the case has rounds, `peak` of the whole process.
void hold(benchmark::State& state, Register& from) {
    constexpr int settling = 1'000;
    const auto person = from.ask("select A00 from A01 where A0199=60").front();
    withWindow(from, person, [&](frmPersonWh& window) {
        loadPanels(window, settling);
        const std::size_t settled = memoryNow().resident;
        for ([[maybe_unused]] auto _ : state)
            loadPanels(window, 1'000);
        const std::size_t after = memoryNow().resident;
        state.counters["settled"] = static_cast<double>(settled);
        state.counters["grown"] = static_cast<double>(after) - static_cast<double>(settled);
        state.counters["peak"] = static_cast<double>(memoryNow().peak);
    });
}

} // namespace

std::vector<Case> memoryCases() { return {{"memory/10000-panel-loads", 10, hold, Sizes::Smallest}}; }

} // namespace quillmere::bench
