#include "component/server/SelfRegistration.h"

#include "component/automation/GuidText.h"
#include "component/server/ModulePath.h"
#include "component/server/ServerClasses.h"
#include "component/server/windows/Registry.h"
#include "component/server/windows/TypeLibrary.h"

namespace quillmere::component {

namespace {

std::string bracedId(const ServerClass& row) { return "{" + guidText(classIdOf(row)) + "}"; }
std::string classKey(const ServerClass& row) { return "CLSID\\" + bracedId(row); }
std::string serverKey(const ServerClass& row) { return classKey(row) + "\\InprocServer32"; }

void registerClass(const ServerClass& row, const std::string& server,
                   const std::optional<std::string>& typeLibrary) {
    const std::string name = programIdOf(row);
    registry::write(classKey(row), "", name);
    registry::write(classKey(row) + "\\ProgID", "", name);
    if (typeLibrary) registry::write(classKey(row) + "\\TypeLib", "", *typeLibrary);
    registry::write(serverKey(row), "", server);
    // All calls belong on the thread of the user interface.
    registry::write(serverKey(row), "ThreadingModel", "Apartment");
    registry::write(name, "", name);
    registry::write(name + "\\CLSID", "", bracedId(row));
}

} // namespace

void registerServer() {
    const std::string server = ownModulePath();
    const auto typeLibrary = registerTypeLibrary();
    for (const ServerClass& row : serverClasses())
        registerClass(row, server, typeLibrary);
}

void unregisterServer() {
    const std::string server = ownModulePath();
    bool hadOwn = false;
    for (const ServerClass& row : serverClasses()) {
        if (registry::read(serverKey(row)) != server) continue;
        registry::remove(classKey(row));
        registry::remove(programIdOf(row));
        hadOwn = true;
    }
    if (hadOwn) unregisterTypeLibrary();
}

} // namespace quillmere::component
