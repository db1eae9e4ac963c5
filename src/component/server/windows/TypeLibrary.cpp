#include "component/server/windows/TypeLibrary.h"

#include "component/automation/ComPtr.h"
#include "component/automation/GuidText.h"
#include "component/automation/Utf16.h"
#include "component/server/ModulePath.h"
#include "platform/Error.h"

#include <filesystem>

namespace quillmere::component {

namespace {

using Path = std::filesystem::path;

Path typeLibraryPath() { return Path(toUtf16(ownModulePath())).replace_filename(L"Quillmere.tlb"); }

void raiseOn(HRESULT code, const Path& path) {
    if (SUCCEEDED(code)) return;
    throw Error(static_cast<Failure>(code), "类型库不能注册：" + toUtf8(path.native()), "Quillmere");
}

/// Null when there is no such file.
ComPtr<ITypeLib> loadTypeLibrary(const Path& path) {
    std::error_code ignored;
    ComPtr<ITypeLib> library;
    if (!std::filesystem::exists(path, ignored)) return library;
    raiseOn(LoadTypeLibEx(path.c_str(), REGKIND_NONE, library.put()), path);
    return library;
}

TLIBATTR attributesOf(ITypeLib& library, const Path& path) {
    TLIBATTR* attributes = nullptr;
    raiseOn(library.GetLibAttr(&attributes), path);
    const TLIBATTR copy = *attributes;
    library.ReleaseTLibAttr(attributes);
    return copy;
}

} // namespace

std::optional<std::string> registerTypeLibrary() {
    const Path path = typeLibraryPath();
    const auto library = loadTypeLibrary(path);
    if (!library) return std::nullopt;
    WideText name = path.native();
    raiseOn(RegisterTypeLib(library.get(), name.data(), nullptr), path);
    return "{" + guidText(attributesOf(*library.get(), path).guid) + "}";
}

void unregisterTypeLibrary() {
    const Path path = typeLibraryPath();
    const auto library = loadTypeLibrary(path);
    if (!library) return;
    const TLIBATTR is = attributesOf(*library.get(), path);
    const HRESULT code = UnRegisterTypeLib(is.guid, is.wMajorVerNum, is.wMinorVerNum, is.lcid, is.syskind);
    if (code != TYPE_E_REGISTRYACCESS) raiseOn(code, path);
}

} // namespace quillmere::component
