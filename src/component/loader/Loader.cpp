#include "component/loader/Loader.h"

#include "component/automation/Failures.h"
#include "component/automation/Utf16.h"
#include "component/loader/LoadedServer.h"
#include "component/registration/RegistrationFile.h"
#include "platform/Error.h"

#include <algorithm>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace quillmere::component {

namespace {

std::mutex loading;
std::vector<std::unique_ptr<LoadedServer>> servers;

LoadedServer& load(const std::string& path) {
    const auto found = std::ranges::find_if(servers, [&](const auto& each) { return each->path() == path; });
    if (found != servers.end()) return **found;
    servers.push_back(std::make_unique<LoadedServer>(path));
    return *servers.back();
}

ComPtr<IUnknown> create(const std::string& programId) {
    const auto registration = readRegistration();
    const RegisteredClass* row = registration ? registration->find(programId) : nullptr;
    if (row == nullptr) {
        throw Error(Failure::CannotCreateObject, "没有注册名为 " + programId + " 的组件。", "Quillmere");
    }
    const std::lock_guard lock(loading);
    return load(registration->server).create(row->classId);
}

} // namespace

} // namespace quillmere::component

using namespace quillmere::component;

extern "C" {

HRESULT QuillmereCreateObject(const OLECHAR* programId, REFIID iid, void** object) {
    if (object == nullptr || programId == nullptr) return E_POINTER;
    *object = nullptr;
    HRESULT code = S_OK;
    const HRESULT made =
        guarded([&] { code = create(toUtf8(WideView(programId)))->QueryInterface(iid, object); });
    return FAILED(made) ? made : code;
}

void QuillmereFreeUnusedServers() {
    const std::lock_guard lock(loading);
    std::erase_if(servers, [](const auto& server) { return server->canUnload(); });
}
}
