#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The platform's conversions between text and numbers.
namespace quillmere::convert {

/// What can be converted to a number: blanks at both ends, a sign (in front or behind), digits with
/// thousands separators, a decimal point, an exponent. The empty text is none, nor is a number that no
/// double holds, nor one in full-width digits: an engine would store those as a text.
[[nodiscard]] bool isNumeric(std::string_view text);

/// Raises TypeMismatch when the text is not numeric.
[[nodiscard]] double toDouble(std::string_view text);

/// 32-bit and 16-bit signed integers; a fraction rounds to the nearest, halves to even. Raise
/// TypeMismatch, Overflow.
[[nodiscard]] std::int32_t toLong(std::string_view text);
[[nodiscard]] std::int16_t toInteger16(std::string_view text);
[[nodiscard]] std::int32_t toLong(double number);
[[nodiscard]] std::int16_t toInteger16(double number);

/// An amount in ten-thousandths, halves to even. Raises TypeMismatch, Overflow.
[[nodiscard]] std::int64_t toCurrency(std::string_view text);

/// The shortest text that gives the number back, without an exponent where that is readable.
[[nodiscard]] std::string toText(double number);

} // namespace quillmere::convert
