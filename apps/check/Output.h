#pragma once

#include "check/Report.h"

#include <iosfwd>
#include <string_view>

namespace quillmere::check {

/// A block of lines for each finding, and how many there are.
void writeText(std::ostream& out, const Report& report);
/// One JSON object; its keys never change. docs/check.md tells them.
void writeJson(std::ostream& out, std::string_view database, const Report& report);

/// All kinds of finding as a table of Markdown, each with a link to its page.
void writeKinds(std::ostream& out);
/// The same as an array of JSON.
void writeKindsAsJson(std::ostream& out);

} // namespace quillmere::check
