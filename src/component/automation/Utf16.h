#pragma once

#include "component/automation/Automation.h"

#include <string>
#include <string_view>

/// Text is UTF-8 inside and UTF-16 at the boundary. What is ill-formed becomes U+FFFD.
namespace quillmere::component {

using WideText = std::basic_string<OLECHAR>;
using WideView = std::basic_string_view<OLECHAR>;

[[nodiscard]] std::string toUtf8(WideView text);
[[nodiscard]] WideText toUtf16(std::string_view text);

/// The units of a text, zeros included; a null text is the empty one.
[[nodiscard]] WideView viewOf(BSTR text);
/// A new text, to be freed by whoever gets it. Raises std::bad_alloc.
[[nodiscard]] BSTR newText(std::string_view text);

} // namespace quillmere::component
