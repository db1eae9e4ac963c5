#pragma once

#include "platform/Error.h"

#include <functional>
#include <optional>
#include <string>

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

/// The description of the Error that `action` raises; empty when it raises nothing.
inline std::string descriptionOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const Error& error) {
        return error.description();
    }
    return {};
}

inline std::optional<int> number(Failure failure) { return static_cast<int>(failure); }

} // namespace quillmere
