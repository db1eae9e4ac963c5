#include "component/automation/linux/Functions.h"

#include <cstdlib>
#include <string>

namespace {

constexpr std::size_t prefixSize = sizeof(std::uint32_t);

char* blockOf(BSTR text) { return reinterpret_cast<char*>(text) - prefixSize; }

} // namespace

extern "C" {

BSTR SysAllocStringLen(const OLECHAR* text, UINT length) {
    if (length > (UINT32_MAX - prefixSize) / sizeof(OLECHAR) - 1) return nullptr;
    const auto bytes = static_cast<std::uint32_t>(length * sizeof(OLECHAR));
    auto* block = static_cast<char*>(std::malloc(prefixSize + bytes + sizeof(OLECHAR)));
    if (block == nullptr) return nullptr;
    std::memcpy(block, &bytes, prefixSize);
    auto* units = reinterpret_cast<OLECHAR*>(block + prefixSize);
    if (text != nullptr) std::memcpy(units, text, bytes);
    units[length] = 0;
    return units;
}

BSTR SysAllocString(const OLECHAR* text) {
    if (text == nullptr) return nullptr;
    return SysAllocStringLen(text, static_cast<UINT>(std::char_traits<OLECHAR>::length(text)));
}

void SysFreeString(BSTR text) {
    if (text != nullptr) std::free(blockOf(text));
}

UINT SysStringByteLen(BSTR text) {
    std::uint32_t bytes = 0;
    if (text != nullptr) std::memcpy(&bytes, blockOf(text), prefixSize);
    return bytes;
}

UINT SysStringLen(BSTR text) { return SysStringByteLen(text) / static_cast<UINT>(sizeof(OLECHAR)); }
}
