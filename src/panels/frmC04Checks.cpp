#include "panels/frmC04Checks.h"

#include "platform/convert/Convert.h"
#include "platform/convert/DateTime.h"
#include "platform/text/Text.h"

#include <cstdint>

namespace quillmere {

namespace {

constexpr std::int64_t currencyUnits = 10000;
/// In 万元. The messages speak of eight integer digits, which 99999999.01 has too.
constexpr std::int64_t largestAmount = 99999999 * currencyUnits;

bool isBlank(const std::string& text) { return text::trim(text).empty(); }

bool isTooLarge(const std::string& text) { return convert::toCurrency(text) > largestAmount; }

} // namespace

bool hasFault(const std::string& text, RowFault fault) {
    switch (fault) {
    case RowFault::NoDate:
        return !convert::isDate(text);
    case RowFault::NoYear:
        return !convert::isDate(text + "-01");
    case RowFault::Empty:
        return isBlank(text);
    case RowFault::TooLarge:
        return isTooLarge(text);
    case RowFault::TooLargeIfFilled:
        return !isBlank(text) && isTooLarge(text);
    }
    return false;
}

} // namespace quillmere
