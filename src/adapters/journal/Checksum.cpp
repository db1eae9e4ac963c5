#include "adapters/journal/Checksum.h"

#include <array>

namespace quillmere::journal {

namespace {

constexpr std::uint32_t polynomial = 0xEDB88320U;

constexpr std::array<std::uint32_t, 256> makeTable() {
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t byte = 0; byte < table.size(); ++byte) {
        std::uint32_t value = byte;
        for (int bit = 0; bit < 8; ++bit)
            value = (value >> 1U) ^ ((value & 1U) != 0 ? polynomial : 0U);
        table[byte] = value;
    }
    return table;
}

constexpr auto table = makeTable();

} // namespace

std::uint32_t checksum(std::string_view text, std::uint32_t before) {
    std::uint32_t value = ~before;
    for (const char letter : text)
        value = (value >> 8U) ^ table[(value ^ static_cast<unsigned char>(letter)) & 0xFFU];
    return ~value;
}

} // namespace quillmere::journal
