// What counts as a number, and what becomes of it.

#include "support/Fuzzing.h"

#include "platform/convert/Convert.h"

#include <cmath>

namespace {

using namespace quillmere;
using fuzz::failureOf;
using fuzz::hold;

void isTheNearestInteger(const std::string& text, double number) {
    std::int32_t whole = 0;
    const auto failure = failureOf([&] { whole = convert::toLong(text); });
    hold(!failure || failure == Failure::Overflow, "a number can only be too large for 32 bits");
    if (failure) return hold(std::abs(number) > 2147483647.0, "what fits into 32 bits is no overflow");
    const double away = std::abs(number - whole);
    hold(away < 0.5 || (away == 0.5 && whole % 2 == 0),
         "a number becomes the nearest integer, halves the even one");

    std::int16_t small = 0;
    const auto tooLarge = failureOf([&] { small = convert::toInteger16(text); });
    hold(tooLarge ? whole > 32767 || whole < -32768 : small == whole,
         "16 bits hold the same integer or overflow");
}

void isAnAmount(const std::string& text, double number) {
    std::int64_t units = 0;
    const auto failure = failureOf([&] { units = convert::toCurrency(text); });
    hold(!failure || failure == Failure::Overflow, "a number can only be too large for an amount");
    if (failure) return hold(std::abs(number) > 922337203685476.0, "what fits into an amount is no overflow");
    const double amount = static_cast<double>(units) / 10000;
    hold(std::abs(amount - number) <= 0.0000501 + std::abs(number) * 1e-14,
         "an amount is the number to 4 places");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text = fuzz::Input(data, size).rest();
    double number = 0;
    const auto failure = failureOf([&] { number = convert::toDouble(text); });
    hold(convert::isNumeric(text) == !failure, "what is numeric can be converted, and nothing else");
    if (failure) {
        hold(failure == Failure::TypeMismatch, "what is no number is of the wrong type");
        hold(failureOf([&] { (void)convert::toLong(text); }) == Failure::TypeMismatch,
             "nor is it an integer");
        return 0;
    }
    hold(std::isfinite(number), "a number is finite");
    hold(convert::toDouble(convert::toText(number)) == number, "a number can be read back from its text");
    isTheNearestInteger(text, number);
    isAnAmount(text, number);
    return 0;
}
