#include "component/automation/NumberText.h"

#include "platform/Error.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>

namespace quillmere::component {

std::string dateText(double daysSince1899) {
    constexpr double firstDay = -657434; // 1 January 100
    constexpr double dayAfterLast = 2958466;
    constexpr std::chrono::sys_days zero{std::chrono::year{1899} / 12 / 30};
    constexpr long secondsOfDay = 24L * 60 * 60;
    if (!(daysSince1899 > firstDay - 1 && daysSince1899 < dayAfterLast)) throw Error(Failure::Overflow);

    // The time of day counts forward from midnight, also before 1899.
    double whole = 0;
    const double fraction = std::abs(std::modf(daysSince1899, &whole));
    auto days = static_cast<long>(whole);
    long seconds = std::lround(fraction * secondsOfDay);
    if (seconds == secondsOfDay) {
        seconds = 0;
        ++days;
    }
    const std::chrono::year_month_day day{zero + std::chrono::days{days}};
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02u-%02u", static_cast<int>(day.year()),
                  static_cast<unsigned>(day.month()), static_cast<unsigned>(day.day()));
    std::string result = text.data();
    if (seconds == 0) return result;
    std::snprintf(text.data(), text.size(), " %02ld:%02ld:%02ld", seconds / 3600, seconds / 60 % 60,
                  seconds % 60);
    return result + text.data();
}

std::string singleText(float number) {
    std::array<char, 64> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number);
    return {text.data(), end.ptr};
}

} // namespace quillmere::component
