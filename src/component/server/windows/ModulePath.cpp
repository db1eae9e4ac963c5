#include "component/server/ModulePath.h"

#include "component/automation/Utf16.h"
#include "platform/Error.h"

namespace quillmere::component {

namespace {

HMODULE ownModule() {
    HMODULE module = nullptr;
    // Any address inside will do; the module is not to be held by asking.
    constexpr DWORD flags =
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    if (GetModuleHandleExW(flags, reinterpret_cast<LPCWSTR>(&ownModulePath), &module) == 0)
        throw Error(Failure::PathNotFound);
    return module;
}

} // namespace

std::string ownModulePath() {
    const HMODULE module = ownModule();
    WideText path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
        if (length == 0) throw Error(Failure::PathNotFound);
        // A path that is cut fills all the room.
        if (length < path.size()) return toUtf8(WideView(path).substr(0, length));
        path.resize(path.size() * 2);
    }
}

} // namespace quillmere::component
