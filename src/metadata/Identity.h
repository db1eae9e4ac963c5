#pragma once

#include <string>
#include <string_view>

namespace quillmere {

/// A fresh identity of 36 characters, made by the database through its table S_GUID.
[[nodiscard]] std::string NewGuid();

/// Whether a person, or a unit, of that name is stored. Raise Overflow for a count above 32767.
[[nodiscard]] bool PersonNameExists(std::string_view name);
[[nodiscard]] bool UnitNameExists(std::string_view name);

} // namespace quillmere
