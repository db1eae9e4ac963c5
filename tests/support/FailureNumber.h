#pragma once

#include "platform/Error.h"

#include <functional>
#include <optional>

namespace quillmere {

/// The number of the Error that `action` raises; none when it raises nothing. Any other exception
/// goes through and fails the test.
inline std::optional<int> failureOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const Error& error) {
        return error.number();
    }
    return std::nullopt;
}

inline std::optional<int> number(Failure failure) { return static_cast<int>(failure); }

} // namespace quillmere
