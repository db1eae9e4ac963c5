#pragma once

#include <quillmere/Error.h>

#include <string_view>

namespace quillmere {

/// The fixed Chinese description of a failure; the user reads it in message boxes.
[[nodiscard]] std::string_view descriptionOf(Failure failure);

} // namespace quillmere
