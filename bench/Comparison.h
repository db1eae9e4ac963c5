#pragma once

#include "BareEngine.h"
#include "Work.h"

#include <benchmark/benchmark.h>

namespace quillmere::bench {

/// Runs the work on the system and its statements on the bare engine, by turns in one process, so that
/// whatever else the machine does falls on both alike; either goes first as often as the other. The counters
/// of `state` become: `ours` and `bare`, the medians in microseconds; `ratio`, the one by the other;
/// `statements` of the first turn. The benchmark's own time is that of the system.
void compare(benchmark::State& state, BareEngine& engine, const Work& work);

} // namespace quillmere::bench
