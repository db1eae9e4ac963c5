#include "scenario/Numbers.h"

#include "scenario/Stop.h"

#include <charconv>
#include <limits>

namespace quillmere::scenario {

int parseNumber(std::string_view text, int least, int most) {
    int number = 0;
    const char* end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stopped != end) throw Stop{std::string(text) + " is no number"};
    if (number < least || number > most) {
        throw Stop{std::string(text) + " is not from " + std::to_string(least) + " to " +
                   std::to_string(most)};
    }
    return number;
}

int parseCount(std::string_view text) { return parseNumber(text, 1, std::numeric_limits<int>::max()); }

} // namespace quillmere::scenario
