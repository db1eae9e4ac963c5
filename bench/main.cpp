// What the system adds to the time that the engine needs for the same statements. Exits with 1 when a
// statement too many, or too few, is sent; the times are printed and judged by whoever reads them.

#include "Case.h"
#include "OpenRegisters.h"
#include "Running.h"

namespace {

using namespace quillmere::bench;

/// The selector's large code tables are made in SQLite's words.
std::vector<Case> casesOn(const Options& options) {
    std::vector<Case> cases = recordCases();
    const auto add = [&](std::vector<Case> more) { cases.insert(cases.end(), more.begin(), more.end()); };
    add(gridCases());
    add(saveCases());
    if (options.server.empty()) add(selectorCases());
    add(memoryCases());
    return cases;
}

void run(const Options& options) {
    OpenRegisters registers(options);
    for (const Case& each : casesOn(options)) {
        for (const std::size_t persons : options.persons) {
            if (each.sizes == Sizes::Smallest && persons != options.persons.front()) continue;
            registerCase(
                each.name, persons, options.smoke ? 1 : each.rounds,
                [&registers, persons, work = each.run](auto& state) { work(state, registers.of(persons)); });
        }
    }
    runRegistered(options.json, options.others);
}

} // namespace

int main(int count, char** arguments) { return runProgram("quillmere-bench", count, arguments, run); }
