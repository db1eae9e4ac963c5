#pragma once

#include "component/automation/Automation.h"

#include <string>

/// How a failure leaves the server: as a result code, with its source and description beside it.
namespace quillmere::component {

/// The result code of a failure's number: the numbers of the automation platform stand in the range of
/// controls (0x800A0000 and up), an engine's own, which are negative, are codes already.
[[nodiscard]] HRESULT resultCodeOf(int number);
/// And back.
[[nodiscard]] int numberOf(HRESULT code);

struct FailureReport {
    HRESULT code = S_OK;
    std::string source;
    std::string description;
};

/// What the exception that is being handled tells a caller. Never throws.
[[nodiscard]] FailureReport currentFailure() noexcept;

/// Leaves the description with the thread, for callers by interface, and returns the code.
HRESULT report(const FailureReport& failure) noexcept;
/// The report of a late-bound call: fills `exception` when there is one, and returns DISP_E_EXCEPTION.
HRESULT report(const FailureReport& failure, EXCEPINFO* exception) noexcept;

/// Runs a call by interface: its failures become result codes.
template <class Action>
HRESULT guarded(Action action) noexcept {
    try {
        action();
        return S_OK;
    } catch (...) {
        return report(currentFailure());
    }
}

} // namespace quillmere::component
