#pragma once

#include <cstdint>
#include <string>
#include <utility>

namespace quillmere::cinterface {

/// What became of a call: 0 and empty texts when it worked.
struct LastFailure {
    std::int32_t number = 0;
    std::string source;
    std::string description;
};

/// That of the exception which is being handled.
[[nodiscard]] LastFailure currentFailure() noexcept;

/// Runs the work of a call, and keeps in `last` what became of it. The number of the failure, or 0.
template <class Work>
std::int32_t keep(LastFailure& last, const Work& work) noexcept {
    // Apart from `last` until the end: while a window is open, calls come from inside of a call.
    LastFailure now;
    try {
        work();
    } catch (...) {
        now = currentFailure();
    }
    last = std::move(now);
    return last.number;
}

/// Of this thread's calls that have no handle to keep it with.
[[nodiscard]] LastFailure& lastWithoutHandle() noexcept;

} // namespace quillmere::cinterface
