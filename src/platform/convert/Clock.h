#pragma once

#include "platform/convert/DateTime.h"

#include <optional>

/// The time that the system sees.
namespace quillmere::clock {

/// The fixed time when one is set, else the machine's local time.
[[nodiscard]] convert::DateTime now();

/// Fixes the time (tests, scenarios); an empty value goes back to the machine's.
void fix(std::optional<convert::DateTime> moment);

} // namespace quillmere::clock
