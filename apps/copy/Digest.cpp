#include "copy/Digest.h"

#include <iomanip>
#include <sstream>

namespace quillmere::copy {

void Digest::mix(std::string_view bytes) {
    constexpr std::uint64_t prime = 0x100000001B3ULL;
    for (const char byte : bytes)
        row_ = (row_ ^ static_cast<unsigned char>(byte)) * prime;
}

void Digest::addCell(const std::optional<std::string>& text) {
    // The length in front keeps a text from running over into the next cell.
    mix(text ? std::to_string(text->size()) + ":" : "-");
    if (text) mix(*text);
}

void Digest::endRow() {
    // Spreads every bit over all, so that sums of rows that are much alike differ too.
    std::uint64_t spread = row_;
    spread = (spread ^ (spread >> 30U)) * 0xBF58476D1CE4E5B9ULL;
    spread = (spread ^ (spread >> 27U)) * 0x94D049BB133111EBULL;
    sum_ += spread ^ (spread >> 31U);
    row_ = start;
    ++rows_;
}

std::string Digest::shown() const {
    std::ostringstream digits;
    digits << std::hex << std::setfill('0') << std::setw(16) << sum_;
    return digits.str();
}

} // namespace quillmere::copy
