#pragma once

#include "copy/Store.h"

#include <optional>
#include <string>

namespace quillmere::copy {

/// The text of a value that is the same on every engine: a number that is whole shows no point, a boolean is
/// "true" or "false" whatever stands for it. None for a null. Raises TypeMismatch for what is no boolean in
/// a column of booleans.
[[nodiscard]] std::optional<std::string> cellText(const data::Value& value, Kind kind);

/// That text as a literal of a statement.
[[nodiscard]] std::string cellLiteral(const data::Value& value, Kind kind,
                                      const std::optional<std::string>& text);

} // namespace quillmere::copy
