// format(value, picture): any picture over any value.

#include "support/Fuzzing.h"

#include "platform/convert/Convert.h"
#include "platform/convert/DateTime.h"
#include "platform/convert/Format.h"

#include <algorithm>
#include <cmath>

namespace {

using namespace quillmere;
using fuzz::hold;

/// "0", "000", "0.00" and their like.
bool isPlain(std::string_view picture) {
    const std::size_t point = std::min(picture.find('.'), picture.size());
    return point > 0 && picture.substr(0, point).find_first_not_of('0') == std::string_view::npos &&
           (point == picture.size() ||
            picture.substr(point + 1).find_first_not_of('0') == std::string_view::npos);
}

void isRounded(const std::string& value, const std::string& picture, const std::string& shown) {
    hold(convert::isNumeric(shown), "a number by a plain picture is a number");
    const std::size_t point = picture.find('.');
    const std::size_t decimals = point == std::string::npos ? 0 : picture.size() - point - 1;
    const std::size_t shownPoint = std::min(shown.find('.'), shown.size() - 1);
    hold(point == std::string::npos || shown.size() - shownPoint - 1 == decimals,
         "a picture with noughts behind the point shows so many places");
    const double number = convert::toDouble(value);
    const double most = 0.5 * std::pow(10.0, -static_cast<double>(decimals));
    hold(std::abs(convert::toDouble(shown) - number) <= most * 1.000001 + std::abs(number) * 1e-15,
         "what is shown is the number, rounded");
}

} // namespace

/// A line with the picture, and the value.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Input input(data, size);
    const std::string picture = input.line();
    const std::string value = input.rest();
    const std::string shown = convert::format(value, picture);
    hold(shown == convert::format(value, picture), "the same value by the same picture looks the same");
    if (fuzz::isUtf8(picture) && fuzz::isUtf8(value)) hold(fuzz::isUtf8(shown), "texts stay UTF-8");
    const bool fits = convert::isNumeric(value) || convert::isDate(value);
    hold(fits || shown == value, "a value that is neither number nor date is left as it is");
    // A digit and its separator for each place of the largest number.
    constexpr std::size_t longestNumber = 500;
    hold(shown.size() <= longestNumber + value.size() + 2 * picture.size(),
         "a picture does not grow without bound");
    if (isPlain(picture) && convert::isNumeric(value)) isRounded(value, picture, shown);
    return 0;
}
