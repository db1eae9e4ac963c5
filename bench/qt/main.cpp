// What the Qt toolkit takes for the work that a clerk waits for: a window, a panel, a long list, a large
// tree; and what the reference host's search takes. Exits with 1 when what was built is not all there.

#include "OpenRegisters.h"
#include "Options.h"
#include "QtCase.h"
#include "Running.h"
#include "quillmere/Qt.h"

namespace {

using namespace quillmere::bench;

std::vector<QtCase> allCases() {
    std::vector<QtCase> cases = panelCases();
    for (const auto& more : {listCases(), treeCases(), searchCases()})
        cases.insert(cases.end(), more.begin(), more.end());
    return cases;
}

void run(const Options& options) {
    OpenRegisters registers(options);
    Clerk clerk;
    // Nothing may open on the screen of whoever measures.
    quillmere::qt::Toolkit toolkit(
        {.applicationName = "quillmere-bench-qt", .platform = "offscreen", .companion = &clerk});
    for (const QtCase& each : allCases()) {
        for (const std::size_t persons : options.persons) {
            if (!each.everySize && persons != options.persons.front()) continue;
            registerCase(each.name, persons, options.smoke ? 1 : each.rounds,
                         [&, persons, work = each.run](auto& state) {
                             Stage stage{clerk, toolkit.desktop(), registers.of(persons)};
                             work(state, stage);
                         });
        }
    }
    runRegistered(options.json, options.others);
}

} // namespace

int main(int count, char** arguments) { return runProgram("quillmere-bench-qt", count, arguments, run); }
