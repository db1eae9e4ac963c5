#include "Running.h"

#include "TableReporter.h"

#include <cstdio>
#include <exception>
#include <stdexcept>

namespace quillmere::bench {

void registerCase(const std::string& name, std::size_t persons, int rounds,
                  const std::function<void(benchmark::State&)>& work) {
    benchmark::RegisterBenchmark((name + "/persons:" + std::to_string(persons)).c_str(), work)
        ->Iterations(rounds)
        ->Unit(benchmark::kMicrosecond)
        ->UseManualTime();
}

void runRegistered(const std::string& json, const std::vector<std::string>& others) {
    std::vector<std::string> arguments{"quillmere-bench"};
    if (!json.empty()) arguments.push_back("--benchmark_out=" + json);
    arguments.insert(arguments.end(), others.begin(), others.end());
    std::vector<char*> pointers;
    pointers.reserve(arguments.size());
    for (std::string& argument : arguments)
        pointers.push_back(argument.data());
    int count = static_cast<int>(pointers.size());
    benchmark::Initialize(&count, pointers.data());
    if (count > 1) throw std::invalid_argument(std::string("unknown option ") + pointers[1]);
    TableReporter table;
    benchmark::RunSpecifiedBenchmarks(&table);
}

int runProgram(const char* name, int count, char** arguments,
               const std::function<void(const Options&)>& run) {
    const std::string help(helpText());
    try {
        const Options options = parseOptions({arguments + 1, arguments + count});
        if (options.help)
            std::printf("usage: %s %s", name, help.c_str());
        else
            run(options);
    } catch (const std::invalid_argument& wrong) {
        std::fprintf(stderr, "%s: %s\nusage: %s %s", name, wrong.what(), name, help.c_str());
        return 2;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s: %s\n", name, failure.what());
        return 1;
    }
    return 0;
}

} // namespace quillmere::bench
