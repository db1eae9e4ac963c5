#include "component/server/windows/Registry.h"

#include "component/automation/Utf16.h"
#include "platform/Error.h"

namespace quillmere::component::registry {

namespace {

WideText placeOf(std::string_view key) { return toUtf16("Software\\Classes\\" + std::string(key)); }

void raiseOn(LSTATUS status, std::string_view key) {
    if (status == ERROR_SUCCESS) return;
    const auto failure = status == ERROR_ACCESS_DENIED ? Failure::PermissionDenied : Failure::PathAccess;
    throw Error(failure, "注册表项不能访问（" + std::to_string(status) + "）：" + std::string(key),
                "Quillmere");
}

} // namespace

void write(std::string_view key, std::string_view name, std::string_view value) {
    const WideText text = toUtf16(value);
    // The size counts bytes, and the zero behind the text.
    const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(OLECHAR));
    raiseOn(RegSetKeyValueW(HKEY_LOCAL_MACHINE, placeOf(key).c_str(), toUtf16(name).c_str(), REG_SZ,
                            text.c_str(), size),
            key);
}

std::string read(std::string_view key) {
    const WideText place = placeOf(key);
    DWORD size = 0;
    LSTATUS status =
        RegGetValueW(HKEY_LOCAL_MACHINE, place.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, nullptr, &size);
    if (status == ERROR_FILE_NOT_FOUND) return {};
    raiseOn(status, key);
    WideText text(size / sizeof(OLECHAR), L'\0');
    status =
        RegGetValueW(HKEY_LOCAL_MACHINE, place.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, text.data(), &size);
    raiseOn(status, key);
    return toUtf8(text.c_str());
}

void remove(std::string_view key) {
    const LSTATUS status = RegDeleteTreeW(HKEY_LOCAL_MACHINE, placeOf(key).c_str());
    if (status != ERROR_FILE_NOT_FOUND) raiseOn(status, key);
}

} // namespace quillmere::component::registry
