#pragma once

namespace quillmere::component {

/// Makes the classes of this server known to whoever creates objects by program id: this user's registration
/// takes the place of an earlier one, of whatever server. Raises Error.
void registerServer();

/// Takes back what registerServer wrote; the registration of another server stays. Raises Error.
void unregisterServer();

} // namespace quillmere::component
