#pragma once

#include "copy/Copying.h"

#include <string>

namespace quillmere::copy {

/// Copies a register into the schema `data` of a database on a server, which holds nothing yet. Until the end
/// the tables stand in another schema. Raises PermissionDenied where there is something, or where the
/// database is that of the source.
[[nodiscard]] Summary copyToServer(const std::string& address, Store& source, Progress& progress);

} // namespace quillmere::copy
