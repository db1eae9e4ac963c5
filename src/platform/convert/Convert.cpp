#include "platform/convert/Convert.h"

#include "platform/Error.h"
#include "platform/text/Text.h"

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

/// Full-width digits, signs and points are typed for their narrow forms.
std::string narrow(std::string_view text) {
    constexpr char32_t fullWidthFirst = U'！';
    constexpr char32_t fullWidthLast = U'～';
    constexpr char32_t distance = fullWidthFirst - U'!';
    std::u32string characters = text::decode(text);
    for (char32_t& character : characters)
        if (character >= fullWidthFirst && character <= fullWidthLast) character -= distance;
    return text::encode(characters);
}

std::optional<double> parse(std::string_view text) {
    const std::string narrowed = text::trim(narrow(text));
    const auto plain = NumberReader(narrowed).read();
    if (!plain) return std::nullopt;
    double number = 0;
    const auto [end, error] = std::from_chars(plain->data(), plain->data() + plain->size(), number);
    if (error == std::errc::result_out_of_range) {
        // Too near to 0 reads as 0; too far from it is no number that anything could hold.
        const std::size_t exponent = plain->find('e');
        const bool tiny = exponent != std::string::npos && plain->compare(exponent + 1, 1, "-") == 0;
        if (!tiny) return std::nullopt;
        return 0.0;
    }
    return number;
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
    constexpr double unitsInOne = 10000;
    return toInteger<std::int64_t>(toDouble(text) * unitsInOne);
}

std::string toText(double number) {
    // From 10^15 on a double no longer holds every integer's tail, and digits would be made up.
    constexpr double readable = 1e15;
    constexpr double smallest = 1e-6;
    const double size = std::abs(number);
    const auto form = (size == 0 || (size >= smallest && size < readable)) ? std::chars_format::fixed
                                                                           : std::chars_format::general;
    std::array<char, 64> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, form);
    return error == std::errc() ? std::string(buffer.data(), end) : std::string();
}

} // namespace quillmere::convert
