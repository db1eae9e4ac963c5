#include "component/server/ModulePath.h"

#include "platform/Error.h"

#include <dlfcn.h>

#include <filesystem>

namespace quillmere::component {

std::string ownModulePath() {
    Dl_info info{};
    if (dladdr(reinterpret_cast<const void*>(&ownModulePath), &info) == 0 || info.dli_fname == nullptr) {
        throw Error(Failure::PathNotFound);
    }
    return std::filesystem::absolute(info.dli_fname).lexically_normal().string();
}

} // namespace quillmere::component
