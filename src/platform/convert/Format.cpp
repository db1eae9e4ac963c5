#include "platform/convert/Format.h"

#include "platform/convert/Convert.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>

namespace quillmere::convert {

namespace {

constexpr std::string_view dateSymbols = "ymdhns";
constexpr std::string_view numberSymbols = "0#.,";
constexpr std::string_view digitPlaces = "0#";

char lowerOf(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool isDateSymbol(char c) { return dateSymbols.find(lowerOf(c)) != std::string_view::npos; }

bool isDatePicture(std::string_view picture) {
    return std::any_of(picture.begin(), picture.end(), isDateSymbol);
}

std::string padded(int number, std::size_t width) {
    std::string digits = std::to_string(number);
    if (digits.size() < width) digits.insert(0, width - digits.size(), '0');
    return digits;
}

/// A run of one symbol: `m` is the month except straight after an hour.
std::string dateRun(const DateTime& moment, char symbol, std::size_t length, bool afterHour) {
    const std::size_t width = std::min<std::size_t>(length, 2);
    switch (symbol) {
    case 'y':
        return length > 2 ? padded(moment.year, 4) : padded(moment.year % 100, 2);
    case 'm':
        return padded(afterHour ? moment.minute : moment.month, width);
    case 'd':
        return padded(moment.day, width);
    case 'h':
        return padded(moment.hour, width);
    case 'n':
        return padded(moment.minute, width);
    default:
        return padded(moment.second, width);
    }
}

/// A number as its decimal digits, so that rounding works on what a person reads.
struct Decimal {
    bool negative = false;
    std::string whole;
    std::string decimals;

    [[nodiscard]] bool isZero() const {
        return (whole + decimals).find_first_not_of('0') == std::string::npos;
    }

    /// Keeps `count` decimals, halves away from zero.
    void round(std::size_t count) {
        if (decimals.size() <= count) return;
        const bool up = decimals[count] >= '5';
        decimals.resize(count);
        if (up) addOneAtTheEnd();
    }

private:
    void addOneAtTheEnd() {
        for (std::string* part : {&decimals, &whole}) {
            const std::size_t place = part->find_last_not_of('9');
            const bool found = place != std::string::npos;
            std::fill(part->begin() + static_cast<std::ptrdiff_t>(found ? place + 1 : 0), part->end(), '0');
            if (found) {
                ++(*part)[place];
                return;
            }
        }
        whole.insert(0, 1, '1');
    }
};

Decimal decimalOf(double number) {
    // The largest double has 309 digits, the smallest some 340 decimals.
    std::array<char, 400> buffer{};
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(number),
                                       std::chars_format::fixed);
    const std::string_view digits(buffer.data(), static_cast<std::size_t>(written.ptr - buffer.data()));
    const std::size_t point = std::min(digits.find('.'), digits.size());
    Decimal result{number < 0, std::string(digits.substr(0, point)), {}};
    if (point < digits.size()) result.decimals = digits.substr(point + 1);
    return result;
}

/// What a number picture asks for.
struct NumberPicture {
    std::string_view before;
    std::string_view behind;
    bool point = false;
    bool grouped = false;
    std::size_t leastWhole = 0;
    std::size_t leastDecimals = 0;
    std::size_t mostDecimals = 0;
};

/// None when the picture has no place for a digit.
std::optional<NumberPicture> numberPicture(std::string_view picture) {
    if (picture.find_first_of(digitPlaces) == std::string_view::npos) return std::nullopt;
    const std::size_t first = picture.find_first_of(numberSymbols);
    const std::size_t last = picture.find_last_of(numberSymbols);
    const std::string_view places = picture.substr(first, last - first + 1);
    if (places.find_first_not_of(numberSymbols) != std::string_view::npos) return std::nullopt;
    const std::size_t point = std::min(places.find('.'), places.size());
    const std::string_view whole = places.substr(0, point);
    const std::string_view decimals = places.substr(point);
    NumberPicture result;
    result.before = picture.substr(0, first);
    result.behind = picture.substr(last + 1);
    result.point = !decimals.empty();
    result.grouped = whole.find(',') != std::string_view::npos;
    result.leastWhole = static_cast<std::size_t>(std::count(whole.begin(), whole.end(), '0'));
    result.mostDecimals =
        static_cast<std::size_t>(std::count_if(decimals.begin(), decimals.end(), [](char c) {
            return digitPlaces.find(c) != std::string_view::npos;
        }));
    // A zero asks for its own place and for all before it.
    const std::size_t lastZero = decimals.find_last_of('0');
    result.leastDecimals = lastZero == std::string_view::npos ? 0 : std::min(lastZero, result.mostDecimals);
    return result;
}

std::string grouped(const std::string& whole) {
    constexpr std::size_t groupSize = 3;
    std::string result;
    for (std::size_t i = 0; i < whole.size(); ++i) {
        if (i > 0 && (whole.size() - i) % groupSize == 0) result += ',';
        result += whole[i];
    }
    return result;
}

std::string formatNumber(double number, const NumberPicture& picture) {
    Decimal decimal = decimalOf(number);
    decimal.round(picture.mostDecimals);
    const bool negative = decimal.negative && !decimal.isZero();
    std::string whole = decimal.whole;
    whole.erase(0, std::min(whole.find_first_not_of('0'), whole.size()));
    if (whole.size() < picture.leastWhole) whole.insert(0, picture.leastWhole - whole.size(), '0');
    if (picture.grouped) whole = grouped(whole);
    std::string decimals = decimal.decimals;
    const std::size_t needed = decimals.find_last_not_of('0') + 1;
    decimals.resize(std::max(needed, picture.leastDecimals), '0');
    std::string result(negative ? "-" : "");
    result.append(picture.before).append(whole);
    if (picture.point) result.append(".").append(decimals);
    return result.append(picture.behind);
}

} // namespace

std::string format(const DateTime& moment, std::string_view picture) {
    std::string result;
    bool afterHour = false;
    for (std::size_t i = 0; i < picture.size();) {
        const char symbol = lowerOf(picture[i]);
        if (!isDateSymbol(symbol)) {
            result += picture[i++];
            continue;
        }
        std::size_t length = 1;
        while (i + length < picture.size() && lowerOf(picture[i + length]) == symbol)
            ++length;
        result += dateRun(moment, symbol, length, afterHour);
        afterHour = symbol == 'h';
        i += length;
    }
    return result;
}

std::string format(std::string_view value, std::string_view picture) {
    if (isDatePicture(picture)) {
        const auto moment = parseDate(value);
        return moment ? format(*moment, picture) : std::string(value);
    }
    const auto places = numberPicture(picture);
    if (!places || !isNumeric(value)) return std::string(value);
    return formatNumber(toDouble(value), *places);
}

} // namespace quillmere::convert
