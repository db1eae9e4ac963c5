#pragma once

#include <optional>
#include <string>

/// The type library that lies beside the server. It may be missing: callers by name need none.
namespace quillmere::component {

/// Makes it known to the platform. None without the file, otherwise its id, in braces. Raises Error.
std::optional<std::string> registerTypeLibrary();

/// Takes that back. Raises Error.
void unregisterTypeLibrary();

} // namespace quillmere::component
