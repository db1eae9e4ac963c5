// What counts as a date, and what stays of it when it is written out.

#include "support/Fuzzing.h"

#include "platform/convert/DateTime.h"
#include "platform/convert/Format.h"

namespace {

using namespace quillmere;
using convert::DateTime;
using fuzz::hold;

bool isInCalendar(const DateTime& moment) {
    return moment.year >= 100 && moment.year <= 9999 && moment.month >= 1 && moment.month <= 12 &&
           moment.day >= 1 && moment.day <= convert::daysInMonth(moment.year, moment.month) &&
           moment.hour >= 0 && moment.hour < 24 && moment.minute >= 0 && moment.minute < 60 &&
           moment.second >= 0 && moment.second < 60;
}

void isReadBack(const DateTime& moment) {
    for (const char* picture : {"yyyy-mm-dd hh:nn:ss", "yyyy/m/d h:n:s", "yyyy年mm月dd日 hh:nn:ss"})
        hold(convert::parseDate(convert::format(moment, picture)) == moment,
             "a date written out is the same date");
    const auto month = convert::parseDate(convert::format(moment, "yyyy.MM"));
    hold(month && month->year == moment.year && month->month == moment.month,
         "a month written out is the same month");
}

void movesByYears(const DateTime& moment, int years) {
    DateTime moved;
    const auto failure = fuzz::failureOf([&] { moved = convert::addYears(moment, years); });
    const int year = moment.year + years;
    hold(failure.has_value() == (year < 100 || year > 9999), "only years outside of the calendar fail");
    if (failure) return;
    hold(isInCalendar(moved) && moved.year == year && moved.month == moment.month,
         "a date some years on has the same month");
    hold(moved.day == moment.day || (moment.month == 2 && moment.day == 29 && moved.day == 28),
         "and the same day but for the 29th of February");
}

} // namespace

/// A line with a number of years, and the text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Input input(data, size);
    const int years = fuzz::numberOf(input.line());
    const std::string text = input.rest();
    const auto moment = convert::parseDate(text);
    hold(moment.has_value() == convert::isDate(text), "what is a date can be read");
    if (!moment) {
        hold(convert::format(text, "yyyy-MM-dd") == text, "what is no date is left as it is");
        return 0;
    }
    hold(isInCalendar(*moment), "a date is in the calendar");
    hold(convert::parseDate(" " + text + "  ") == moment, "blanks around a date do not matter");
    isReadBack(*moment);
    movesByYears(*moment, years);
    return 0;
}
