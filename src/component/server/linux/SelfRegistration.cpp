#include "component/server/SelfRegistration.h"

#include "component/registration/RegistrationFile.h"
#include "component/server/ModulePath.h"
#include "component/server/ServerClasses.h"

namespace quillmere::component {

void registerServer() {
    Registration registration{ownModulePath(), {}};
    for (const ServerClass& row : serverClasses())
        registration.classes.push_back({programIdOf(row), classIdOf(row)});
    writeRegistration(registration);
}

void unregisterServer() {
    const auto present = readRegistration();
    if (present && present->server == ownModulePath()) removeRegistration();
}

} // namespace quillmere::component
