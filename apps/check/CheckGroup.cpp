#include "check/CheckGroup.h"

#include "check/RegisterView.h"

#include <array>

namespace quillmere::check {

namespace {

/// The structure comes first: without it nothing else can be read.
constexpr std::array groups{structureChecks, setChecks,    fieldChecks,  headingChecks,
                            ruleChecks,      widgetChecks, codeChecks,   menuChecks,
                            panelChecks,     valueChecks,  recordChecks, indexChecks};

} // namespace

std::vector<const FindingKind*> findingKinds() {
    std::vector<const FindingKind*> kinds;
    for (const auto& group : groups) {
        const auto own = group().kinds;
        kinds.insert(kinds.end(), own.begin(), own.end());
    }
    return kinds;
}

Report runChecks(const RegisterView& view) {
    Report report;
    for (const auto& group : groups) {
        group().run(view, report);
        if (!view.isCatalogueReadable()) break;
    }
    return report;
}

} // namespace quillmere::check
