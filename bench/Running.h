#pragma once

#include "Options.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace quillmere::bench {

/// Hands a case to the benchmark library, which calls it once for `rounds` rounds.
void registerCase(const std::string& name, std::size_t persons, int rounds,
                  const std::function<void(benchmark::State&)>& work);

/// Runs what is registered and prints the table of it. `others` are options for the library, `json` is a file
/// for the results or empty. Raises std::invalid_argument for an option that the library does not know, and
/// what a case raises.
void runRegistered(const std::string& json, const std::vector<std::string>& others);

/// A main program: reads the options, runs, and tells what failed. The program's status: 2 for a command line
/// that asks for nothing sensible, 1 when `run` raises.
[[nodiscard]] int runProgram(const char* name, int count, char** arguments,
                             const std::function<void(const Options&)>& run);

} // namespace quillmere::bench
