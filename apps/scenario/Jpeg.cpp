#include "scenario/Jpeg.h"

#include <algorithm>
#include <string_view>

namespace quillmere::scenario {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view startOfImage = "\xFF\xD8"sv;

/// A baseline frame of 8 by 8 points in one component, and Huffman tables with one code each: no
/// difference, end of block.
constexpr std::string_view frameAndTables = "\xFF\xC0\x00\x0B\x08\x00\x08\x00\x08\x01\x01\x11\x00"
                                            "\xFF\xC4\x00\x14\x00\x01\x00\x00\x00\x00\x00\x00\x00\x00\x00"
                                            "\x00\x00\x00\x00\x00\x00\x00"
                                            "\xFF\xC4\x00\x14\x10\x01\x00\x00\x00\x00\x00\x00\x00\x00\x00"
                                            "\x00\x00\x00\x00\x00\x00\x00"sv;

/// The scan: two codes of one bit, filled up with ones.
constexpr std::string_view scanAndEnd = "\xFF\xDA\x00\x08\x01\x01\x00\x00\x3F\x00\x3F\xFF\xD9"sv;

std::string quantisation() {
    constexpr std::size_t factors = 64;
    return std::string("\xFF\xDB\x00\x43\x00"sv) + std::string(factors, '\x01');
}

/// `size` bytes that a decoder passes over: comments, then fill bytes before the next marker.
std::string padding(std::size_t size) {
    constexpr std::size_t head = 4;
    constexpr std::size_t most = head + 0xFFFF - 2;
    std::string filled;
    while (size - filled.size() >= head) {
        const std::size_t length = std::min(size - filled.size(), most);
        const std::size_t counted = length - 2;
        filled += "\xFF\xFE"sv;
        filled += static_cast<char>(counted >> 8U);
        filled += static_cast<char>(counted & 0xFFU);
        filled.append(length - head, '.');
    }
    filled.append(size - filled.size(), '\xFF');
    return filled;
}

} // namespace

std::optional<std::string> makeJpeg(std::size_t size) {
    const std::string picture = quantisation().append(frameAndTables).append(scanAndEnd);
    const std::size_t least = startOfImage.size() + picture.size();
    if (size < least) return std::nullopt;
    return std::string(startOfImage) + padding(size - least) + picture;
}

} // namespace quillmere::scenario
