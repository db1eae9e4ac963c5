#include "component/automation/Utf16.h"

#include "platform/text/Text.h"

#include <cstdint>
#include <new>

namespace quillmere::component {

namespace {

constexpr char32_t replacement = 0xFFFD;
constexpr char32_t firstSupplement = 0x10000;

constexpr bool isHighSurrogate(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
constexpr bool isLowSurrogate(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

} // namespace

std::string toUtf8(WideView text) {
    std::u32string characters;
    characters.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        const auto unit = static_cast<char32_t>(static_cast<std::uint16_t>(text[at]));
        if (isHighSurrogate(unit) && at + 1 < text.size()) {
            const auto low = static_cast<char32_t>(static_cast<std::uint16_t>(text[at + 1]));
            if (isLowSurrogate(low)) {
                characters +=
                    static_cast<char32_t>(firstSupplement + ((unit - 0xD800) << 10U) + (low - 0xDC00));
                ++at;
                continue;
            }
        }
        characters += isHighSurrogate(unit) || isLowSurrogate(unit) ? replacement : unit;
    }
    return text::encode(characters);
}

WideText toUtf16(std::string_view utf8) {
    WideText units;
    units.reserve(utf8.size());
    for (const char32_t character : text::decode(utf8)) {
        if (character < firstSupplement) {
            units += static_cast<OLECHAR>(character);
            continue;
        }
        const char32_t rest = character - firstSupplement;
        units += static_cast<OLECHAR>(0xD800 + (rest >> 10U));
        units += static_cast<OLECHAR>(0xDC00 + (rest & 0x3FFU));
    }
    return units;
}

WideView viewOf(BSTR text) { return text == nullptr ? WideView() : WideView(text, SysStringLen(text)); }

BSTR newText(std::string_view text) {
    const WideText units = toUtf16(text);
    BSTR result = SysAllocStringLen(units.data(), static_cast<UINT>(units.size()));
    if (result == nullptr) throw std::bad_alloc();
    return result;
}

} // namespace quillmere::component
