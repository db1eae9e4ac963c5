#include "component/loader/LoadedServer.h"

#include "component/automation/ErrorText.h"
#include "platform/Error.h"

#include <dlfcn.h>

#include <array>
#include <cstdio>
#include <utility>

namespace quillmere::component {

namespace {

using GetClassObject = HRESULT (*)(REFCLSID classId, REFIID iid, void** object);
using NoArguments = HRESULT (*)();

[[noreturn]] void raiseLoadFailure(const std::string& path) {
    const char* reason = dlerror();
    throw Error(Failure::CannotCreateObject,
                "组件 " + path + " 不能加载：" + (reason == nullptr ? "" : reason), "Quillmere");
}

void require(HRESULT code, const std::string& what) {
    if (SUCCEEDED(code)) return;
    std::array<char, 16> hex{};
    std::snprintf(hex.data(), hex.size(), "%08X", static_cast<unsigned>(code));
    throw Error(Failure::CannotCreateObject, what + "（" + hex.data() + "）" + takeErrorText().description,
                "Quillmere");
}

} // namespace

LoadedServer::LoadedServer(std::string path)
    : path_(std::move(path)), handle_(dlopen(path_.c_str(), RTLD_NOW | RTLD_LOCAL)) {
    if (handle_ == nullptr) raiseLoadFailure(path_);
}

LoadedServer::~LoadedServer() { dlclose(handle_); }

void* LoadedServer::function(const char* name) const {
    void* address = dlsym(handle_, name);
    if (address == nullptr) raiseLoadFailure(path_);
    return address;
}

ComPtr<IUnknown> LoadedServer::create(REFCLSID classId) const {
    const auto getClassObject = reinterpret_cast<GetClassObject>(function("DllGetClassObject"));
    ComPtr<IClassFactory> factory;
    require(getClassObject(classId, IID_IClassFactory, factory.putVoid()), "组件没有这个类");
    ComPtr<IUnknown> object;
    require(factory->CreateInstance(nullptr, IID_IUnknown, object.putVoid()), "组件不能创建对象");
    return object;
}

bool LoadedServer::canUnload() const {
    return reinterpret_cast<NoArguments>(function("DllCanUnloadNow"))() == S_OK;
}

void LoadedServer::registerServer() const { callRegistration("DllRegisterServer"); }
void LoadedServer::unregisterServer() const { callRegistration("DllUnregisterServer"); }

void LoadedServer::callRegistration(const char* name) const {
    require(reinterpret_cast<NoArguments>(function(name))(), std::string(name) + " 失败");
}

} // namespace quillmere::component
