#pragma once

#include "component/automation/ComPtr.h"

#include <string_view>

/// Creates objects by program id where the platform has no such service, from the registration of this user.
namespace quillmere::component {

/// An object of the class, by the interface for late-bound calls. The program id is without regard to case;
/// the server is loaded and stays until freeUnusedServers. Raises Error: CannotCreateObject for a class that
/// is not registered or a server that cannot be loaded, PermissionDenied for a registration that others can
/// write.
[[nodiscard]] ComPtr<IDispatch> createObject(std::string_view programId);

/// Unloads the servers of which no object is left.
void freeUnusedServers();

} // namespace quillmere::component
