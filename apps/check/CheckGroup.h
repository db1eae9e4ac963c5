#pragma once

#include "check/Report.h"

#include <span>
#include <vector>

namespace quillmere::check {

class RegisterView;

/// Checks that belong together, and the kinds of finding that they can report.
struct CheckGroup {
    std::span<const FindingKind* const> kinds;
    void (*run)(const RegisterView& view, Report& report);
};

[[nodiscard]] CheckGroup structureChecks();
[[nodiscard]] CheckGroup setChecks();
[[nodiscard]] CheckGroup fieldChecks();
[[nodiscard]] CheckGroup headingChecks();
[[nodiscard]] CheckGroup ruleChecks();
[[nodiscard]] CheckGroup widgetChecks();
[[nodiscard]] CheckGroup codeChecks();
[[nodiscard]] CheckGroup menuChecks();
[[nodiscard]] CheckGroup panelChecks();
[[nodiscard]] CheckGroup valueChecks();
[[nodiscard]] CheckGroup recordChecks();
[[nodiscard]] CheckGroup indexChecks();

/// Every kind that there is, in the order in which documents list them.
[[nodiscard]] std::vector<const FindingKind*> findingKinds();

/// Runs all checks. Where the catalogue itself cannot be read, only what is missing of it is reported.
/// Raises Error for a failure that is no fault of the register, as a connection that breaks.
[[nodiscard]] Report runChecks(const RegisterView& view);

} // namespace quillmere::check
