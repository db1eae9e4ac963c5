#pragma once

#include <string>

namespace quillmere::component {

/// The absolute path of the server's own file, in UTF-8. Raises Error.
[[nodiscard]] std::string ownModulePath();

} // namespace quillmere::component
