#pragma once

#include <compare>
#include <optional>
#include <string_view>

namespace quillmere::convert {

/// A moment of the Gregorian calendar, local time, years 100 to 9999.
struct DateTime {
    int year = 0;
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;

    auto operator<=>(const DateTime&) const = default;
};

[[nodiscard]] bool isLeapYear(int year);
/// 0 for a month that there is not.
[[nodiscard]] int daysInMonth(int year, int month);

/// Reads a date in one of the forms that masks and catalogues let through: year and month, or year,
/// month and day, the year in four digits, separated by one of "-", "/", "." throughout, or written with 年,
/// 月 and 日; with or without a time of day ("h:m", "h:m:s") behind a blank (or a T). Full-width digits are
/// digits. Nothing rolls over: 1990-02-30 is no date. Blanks at both ends are passed over.
[[nodiscard]] std::optional<DateTime> parseDate(std::string_view text);
[[nodiscard]] bool isDate(std::string_view text);

/// The same day `years` later; 29 February becomes 28 February in a common year. Raises InvalidCall
/// when the year leaves 100 to 9999.
[[nodiscard]] DateTime addYears(const DateTime& from, int years);

} // namespace quillmere::convert
