#pragma once

#include "copy/Copying.h"

#include <string>

namespace quillmere {
struct RegisterAddress;
}

namespace quillmere::copy {

/// Copies a register to where none is; it stands there only when it is complete and has been compared. Raises
/// PermissionDenied where the target is not empty or is the source itself, and what opening the target and
/// copying raise.
[[nodiscard]] Summary copyTo(const RegisterAddress& target, Store& source, Progress& progress);

/// The file must not be there. Until the end its name has ".unfinished" behind it.
[[nodiscard]] Summary copyToFile(const std::string& path, Store& source, Progress& progress);

} // namespace quillmere::copy
