#include "platform/convert/Clock.h"

#include <algorithm>
#include <ctime>

namespace quillmere::clock {

namespace {

/// The user interface's one thread sets and reads it.
std::optional<convert::DateTime> fixedMoment;

std::tm localTime(std::time_t moment) {
    std::tm parts{};
#ifdef _WIN32
    localtime_s(&parts, &moment);
#else
    localtime_r(&moment, &parts);
#endif
    return parts;
}

} // namespace

convert::DateTime now() {
    if (fixedMoment) return *fixedMoment;
    const std::tm parts = localTime(std::time(nullptr));
    // A leap second reads as the one before it: no other part of the system knows a second 60.
    return {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday,
            parts.tm_hour,        parts.tm_min,     std::min(parts.tm_sec, 59)};
}

void fix(std::optional<convert::DateTime> moment) { fixedMoment = moment; }

} // namespace quillmere::clock
