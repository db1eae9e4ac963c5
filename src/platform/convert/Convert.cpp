#include "platform/convert/Convert.h"

#include "platform/Error.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

namespace quillmere::convert {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isSign(char c) { return c == '+' || c == '-'; }

/// Reads a number from its front and collects it in the plain form that the standard library reads.
class NumberReader {
public:
    explicit NumberReader(std::string_view text) : rest_(text) {}

    /// The number in plain form, none when the text is no number.
    std::optional<std::string> read() {
        const bool signedInFront = takeSign();
        if (!takeMantissa() || !takeExponent()) return std::nullopt;
        if (!signedInFront) takeSign();
        if (!rest_.empty()) return std::nullopt;
        return negative_ ? "-" + plain_ : plain_;
    }

private:
    bool takeSign() {
        skipBlanks();
        if (rest_.empty() || !isSign(rest_.front())) return false;
        negative_ = rest_.front() == '-';
        rest_.remove_prefix(1);
        skipBlanks();
        return true;
    }

    void skipBlanks() {
        while (rest_.starts_with(' '))
            rest_.remove_prefix(1);
    }

    /// The digits that follow, separators among them passed over when there may be some.
    std::size_t takeDigits(bool separators) {
        std::size_t count = 0;
        while (!rest_.empty() &&
               (isDigit(rest_.front()) || (separators && count > 0 && rest_.front() == ','))) {
            if (isDigit(rest_.front())) {
                plain_ += rest_.front();
                ++count;
            }
            rest_.remove_prefix(1);
        }
        return count;
    }

    bool takeMantissa() {
        std::size_t digits = takeDigits(true);
        if (digits == 0) plain_ += '0';
        if (rest_.starts_with('.')) {
            plain_ += '.';
            rest_.remove_prefix(1);
            const std::size_t decimals = takeDigits(false);
            if (decimals == 0) plain_ += '0';
            digits += decimals;
        }
        return digits > 0;
    }

    /// True when there is none, or a whole one.
    bool takeExponent() {
        if (rest_.empty() || (rest_.front() != 'e' && rest_.front() != 'E')) return true;
        rest_.remove_prefix(1);
        plain_ += 'e';
        if (!rest_.empty() && isSign(rest_.front())) {
            plain_ += rest_.front();
            rest_.remove_prefix(1);
        }
        return takeDigits(false) > 0;
    }

    std::string_view rest_;
    std::string plain_;
    bool negative_ = false;
};

/// The number in the plain form of NumberReader, none when the text is no number.
std::optional<std::string> plainOf(std::string_view text) {
    const std::string trimmed = text::trim(text);
    return NumberReader(trimmed).read();
}

/// The nearest integer, halves to the even one, whatever rounding the process has set.
double roundHalfToEven(double number) {
    const double below = std::floor(number);
    const double rest = number - below;
    if (rest < 0.5) return below;
    if (rest > 0.5) return below + 1;
    return std::fmod(below, 2) == 0 ? below : below + 1;
}

template <class Integer>
Integer toInteger(double number) {
    const double rounded = roundHalfToEven(number);
    // Both bounds are powers of two, which a double holds exactly.
    constexpr double least = static_cast<double>(std::numeric_limits<Integer>::min());
    if (!(rounded >= least && rounded < -least)) throw Error(Failure::Overflow);
    return static_cast<Integer>(rounded);
}

/// Digits as they are read, the point standing behind the first `whole` of them (or as many noughts
/// beyond either end).
struct Digits {
    bool negative = false;
    std::string digits;
    std::int64_t whole = 0;
};

Digits digitsOf(std::string_view plain) {
    Digits result;
    result.negative = plain.starts_with('-');
    if (result.negative) plain.remove_prefix(1);
    const std::size_t mark = std::min(plain.find('e'), plain.size());
    const std::size_t point = std::min(plain.find('.'), mark);
    result.digits = plain.substr(0, point);
    if (point < mark) result.digits += plain.substr(point + 1, mark - point - 1);
    const std::size_t noughts = std::min(result.digits.find_first_not_of('0'), result.digits.size());
    result.digits.erase(0, noughts);
    result.whole = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(noughts);
    if (mark == plain.size()) return result;
    std::string_view exponent = plain.substr(mark + 1);
    if (exponent.starts_with('+')) exponent.remove_prefix(1);
    std::int32_t places = 0;
    if (std::from_chars(exponent.data(), exponent.data() + exponent.size(), places).ec != std::errc())
        places = std::numeric_limits<std::int32_t>::max() * (exponent.starts_with('-') ? -1 : 1);
    result.whole += places;
    return result;
}

std::optional<double> parse(std::string_view text) {
    const auto plain = plainOf(text);
    if (!plain) return std::nullopt;
    double number = 0;
    const auto [end, error] = std::from_chars(plain->data(), plain->data() + plain->size(), number);
    if (error == std::errc::result_out_of_range) {
        // Too near to 0 reads as 0; too far from it is no number that anything could hold.
        if (digitsOf(*plain).whole > 0) return std::nullopt;
        return 0.0;
    }
    return number;
}

/// Ten-thousandths, worked out on the digits themselves: in binary most halves are not quite halves.
std::int64_t inUnits(std::string_view plain) {
    constexpr std::int64_t decimals = 4;
    constexpr std::int64_t mostDigits = 19;
    const Digits number = digitsOf(plain);
    const std::int64_t count = number.whole + decimals;
    if (number.digits.empty() || count < 0) return 0;
    if (count > mostDigits) throw Error(Failure::Overflow);
    const std::size_t kept = static_cast<std::size_t>(count);
    std::string whole = number.digits.substr(0, kept);
    whole.resize(kept, '0');
    std::uint64_t units = 0;
    std::from_chars(whole.data(), whole.data() + whole.size(), units);
    if (kept < number.digits.size()) {
        const std::string_view rest = std::string_view(number.digits).substr(kept);
        const bool half = rest.front() == '5' && rest.find_first_not_of('0', 1) == std::string_view::npos;
        if (half ? units % 2 == 1 : rest.front() >= '5') ++units;
    }
    constexpr std::uint64_t most = std::numeric_limits<std::int64_t>::max();
    if (units > most + (number.negative ? 1 : 0)) throw Error(Failure::Overflow);
    return static_cast<std::int64_t>(number.negative ? 0 - units : units);
}

} // namespace

bool isNumeric(std::string_view text) { return parse(text).has_value(); }

double toDouble(std::string_view text) {
    const auto number = parse(text);
    if (!number) throw Error(Failure::TypeMismatch);
    return *number;
}

std::int32_t toLong(double number) { return toInteger<std::int32_t>(number); }
std::int16_t toInteger16(double number) { return toInteger<std::int16_t>(number); }
std::int32_t toLong(std::string_view text) { return toLong(toDouble(text)); }
std::int16_t toInteger16(std::string_view text) { return toInteger16(toDouble(text)); }

std::int64_t toCurrency(std::string_view text) {
    const auto plain = plainOf(text);
    if (!plain) throw Error(Failure::TypeMismatch);
    return inUnits(*plain);
}

std::string toText(double number) {
    // From 10^15 on a double no longer holds every integer's tail, and digits would be made up.
    constexpr double readable = 1e15;
    constexpr double smallest = 1e-6;
    const double size = std::abs(number);
    // A nought below 0 is a matter of binary numbers, not of what people read.
    if (size == 0) return "0";
    const auto form =
        size >= smallest && size < readable ? std::chars_format::fixed : std::chars_format::general;
    std::array<char, 64> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, form);
    return error == std::errc() ? std::string(buffer.data(), end) : std::string();
}

} // namespace quillmere::convert
