#include "platform/convert/DateTime.h"

#include "platform/Error.h"
#include "platform/text/Text.h"

#include <array>
#include <string>

namespace quillmere::convert {

namespace {

constexpr int firstYear = 100;
constexpr int lastYear = 9999;

/// Reads a text from its front, a number or a mark at a time.
class Reader {
public:
    explicit Reader(std::u32string_view text) : rest_(text) {}

    [[nodiscard]] bool atEnd() const { return rest_.empty(); }
    [[nodiscard]] bool atDigit() const { return !atEnd() && digitOf(rest_.front()).has_value(); }

    bool take(char32_t mark) {
        if (atEnd() || rest_.front() != mark) return false;
        rest_.remove_prefix(1);
        return true;
    }

    /// All digits that follow, when there are `least` to `most` of them.
    std::optional<int> number(std::size_t least, std::size_t most) {
        int value = 0;
        std::size_t count = 0;
        for (; atDigit() && count <= most; ++count) {
            value = value * 10 + *digitOf(rest_.front());
            rest_.remove_prefix(1);
        }
        if (count < least || count > most) return std::nullopt;
        return value;
    }

    /// A month, day, hour, minute or second into `part`.
    bool shortNumber(int& part) {
        const auto value = number(1, 2);
        if (value) part = *value;
        return value.has_value();
    }

private:
    static std::optional<int> digitOf(char32_t character) {
        for (const char32_t zero : {U'0', U'０'})
            if (character >= zero && character < zero + 10) return static_cast<int>(character - zero);
        return std::nullopt;
    }

    std::u32string_view rest_;
};

bool readSeparated(Reader& reader, char32_t separator, DateTime& moment) {
    if (!reader.shortNumber(moment.month)) return false;
    return !reader.take(separator) || reader.shortNumber(moment.day);
}

bool readChinese(Reader& reader, DateTime& moment) {
    if (!reader.shortNumber(moment.month) || !reader.take(U'月')) return false;
    return !reader.atDigit() || (reader.shortNumber(moment.day) && reader.take(U'日'));
}

bool readDay(Reader& reader, DateTime& moment) {
    const auto year = reader.number(4, 4);
    if (!year) return false;
    moment.year = *year;
    for (const char32_t separator : {U'-', U'/', U'.'})
        if (reader.take(separator)) return readSeparated(reader, separator, moment);
    return reader.take(U'年') && readChinese(reader, moment);
}

bool readTime(Reader& reader, DateTime& moment) {
    if (reader.atEnd()) return true;
    if (!reader.take(U'T')) {
        if (!reader.take(U' ')) return false;
        while (reader.take(U' ')) {
        }
    }
    if (!reader.shortNumber(moment.hour) || !reader.take(U':') || !reader.shortNumber(moment.minute))
        return false;
    return !reader.take(U':') || reader.shortNumber(moment.second);
}

bool isInCalendar(const DateTime& moment) {
    return moment.year >= firstYear && moment.year <= lastYear && moment.day >= 1 &&
           moment.day <= daysInMonth(moment.year, moment.month) && moment.hour < 24 && moment.minute < 60 &&
           moment.second < 60;
}

} // namespace

bool isLeapYear(int year) { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }

int daysInMonth(int year, int month) {
    constexpr std::array days{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (month < 1 || month > 12) return 0;
    if (month == 2 && isLeapYear(year)) return 29;
    return days[static_cast<std::size_t>(month - 1)];
}

std::optional<DateTime> parseDate(std::string_view text) {
    const std::u32string characters = text::decode(text::trim(text));
    Reader reader(characters);
    DateTime moment;
    if (!readDay(reader, moment) || !readTime(reader, moment) || !reader.atEnd() || !isInCalendar(moment))
        return std::nullopt;
    return moment;
}

bool isDate(std::string_view text) { return parseDate(text).has_value(); }

DateTime addYears(const DateTime& from, int years) {
    const long long year = static_cast<long long>(from.year) + years;
    if (year < firstYear || year > lastYear) throw Error(Failure::InvalidCall);
    DateTime result = from;
    result.year = static_cast<int>(year);
    const int days = daysInMonth(result.year, result.month);
    if (result.day > days) result.day = days;
    return result;
}

} // namespace quillmere::convert
