#include "component/automation/GuidText.h"

#include <array>
#include <cstdint>

namespace quillmere::component {

namespace {

constexpr std::size_t guidBytes = 16;
/// A dash stands before these bytes.
constexpr bool dashBefore(std::size_t byte) { return byte == 4 || byte == 6 || byte == 8 || byte == 10; }

int digit(char character) {
    if (character >= '0' && character <= '9') return character - '0';
    if (character >= 'A' && character <= 'F') return character - 'A' + 10;
    if (character >= 'a' && character <= 'f') return character - 'a' + 10;
    return -1;
}

/// The bytes in the order in which they are written, the most significant of a number first.
using Bytes = std::array<std::uint8_t, guidBytes>;

Bytes bytesOf(REFGUID guid) {
    Bytes bytes{};
    for (unsigned at = 0; at < 4; ++at)
        bytes[at] = static_cast<std::uint8_t>(guid.Data1 >> (8 * (3 - at)));
    for (unsigned at = 0; at < 2; ++at) {
        bytes[4 + at] = static_cast<std::uint8_t>(guid.Data2 >> (8 * (1 - at)));
        bytes[6 + at] = static_cast<std::uint8_t>(guid.Data3 >> (8 * (1 - at)));
    }
    for (unsigned at = 0; at < 8; ++at)
        bytes[8 + at] = guid.Data4[at];
    return bytes;
}

GUID guidOf(const Bytes& bytes) {
    GUID guid{};
    for (unsigned at = 0; at < 4; ++at)
        guid.Data1 = guid.Data1 << 8U | bytes[at];
    for (unsigned at = 0; at < 2; ++at) {
        guid.Data2 = static_cast<std::uint16_t>(guid.Data2 << 8U | bytes[4 + at]);
        guid.Data3 = static_cast<std::uint16_t>(guid.Data3 << 8U | bytes[6 + at]);
    }
    for (unsigned at = 0; at < 8; ++at)
        guid.Data4[at] = bytes[8 + at];
    return guid;
}

} // namespace

std::string guidText(REFGUID guid) {
    const Bytes bytes = bytesOf(guid);
    std::string text;
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        if (dashBefore(at)) text += '-';
        text += "0123456789ABCDEF"[bytes[at] >> 4U];
        text += "0123456789ABCDEF"[bytes[at] & 0xFU];
    }
    return text;
}

std::optional<GUID> parseGuid(std::string_view text) {
    constexpr std::size_t textLength = 36;
    if (text.size() != textLength) return std::nullopt;
    Bytes bytes{};
    std::size_t from = 0;
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        if (dashBefore(at) && text[from++] != '-') return std::nullopt;
        const int high = digit(text[from++]);
        const int low = digit(text[from++]);
        if (high < 0 || low < 0) return std::nullopt;
        bytes[at] = static_cast<std::uint8_t>(high * 16 + low);
    }
    return guidOf(bytes);
}

} // namespace quillmere::component
