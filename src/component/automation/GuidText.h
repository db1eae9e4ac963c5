#pragma once

#include "component/automation/Automation.h"

#include <optional>
#include <string>
#include <string_view>

namespace quillmere::component {

/// "77281500-17B4-4D1E-8690-DFC6C9A3E54C".
[[nodiscard]] std::string guidText(REFGUID guid);
/// None for a text of any other form; digits in either case.
[[nodiscard]] std::optional<GUID> parseGuid(std::string_view text);

} // namespace quillmere::component
