#pragma once

#include <string>
#include <string_view>

/// The classes of the machine: keys and texts below HKEY_LOCAL_MACHINE\Software\Classes, in UTF-8. A key is
/// named relative to that, as "CLSID\{...}\ProgID". All raise Error: PermissionDenied where the user may not
/// write, otherwise PathAccess.
namespace quillmere::component::registry {

/// Writes the value `name` of the key, the key's own for an empty name; makes the key when it is not there.
void write(std::string_view key, std::string_view name, std::string_view value);

/// The key's own value; empty when there is none.
[[nodiscard]] std::string read(std::string_view key);

/// Removes the key with all that is in it. A key that is not there is no failure.
void remove(std::string_view key);

} // namespace quillmere::component::registry
