#include "component/server/ToolkitModule.h"

#include "component/server/ModulePath.h"
#include "platform/Error.h"

#include <dlfcn.h>

#include <filesystem>
#include <string>

namespace quillmere::component {

namespace {

[[noreturn]] void raise() {
    const char* reason = dlerror();
    throw Error(Failure::CannotCreateObject,
                std::string("界面工具包不能加载：") + (reason == nullptr ? "" : reason), "Quillmere");
}

} // namespace

MakeDesktop loadToolkitModule() {
    const auto file = std::filesystem::path(ownModulePath()).replace_filename("quillmere-toolkit.so");
    std::error_code ignored;
    if (!std::filesystem::exists(file, ignored)) return nullptr;
    // A toolkit has threads and settings of its own in the process: it is never unloaded.
    void* module = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
    if (module == nullptr) raise();
    void* function = dlsym(module, makeDesktopName);
    if (function == nullptr) raise();
    return reinterpret_cast<MakeDesktop>(function);
}

} // namespace quillmere::component
