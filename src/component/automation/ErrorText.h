#pragma once

#include "component/automation/Automation.h"

#include <string>

namespace quillmere::component {

/// What a failed call by interface left with the thread.
struct ErrorText {
    std::string source;
    std::string description;
};

/// Takes it from the thread; both empty when nothing was left.
[[nodiscard]] ErrorText takeErrorText();

} // namespace quillmere::component
