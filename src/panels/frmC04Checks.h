#pragma once

#include "panels/frmC04Frames.h"

#include <string>

namespace quillmere {

/// Whether a check refuses that text. Raises TypeMismatch for an amount that is no number, such as
/// one with two points, and Overflow for one that is too large for an amount altogether.
[[nodiscard]] bool hasFault(const std::string& text, RowFault fault);

} // namespace quillmere
