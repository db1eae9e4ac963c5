#pragma once

#include "platform/convert/DateTime.h"

#include <string>
#include <string_view>

namespace quillmere::convert {

/// Formats a text by a picture. A picture with date symbols (`yyyy yy mm m dd d hh h nn n ss s`, in
/// either case, any literal text between; `m` is the month except straight after an hour) formats a
/// date; one with `0 # . ,` formats a number, halves away from zero. A value that the picture does
/// not fit, or an empty picture, comes back as it is.
[[nodiscard]] std::string format(std::string_view value, std::string_view picture);

/// A moment by a date picture.
[[nodiscard]] std::string format(const DateTime& moment, std::string_view picture);

} // namespace quillmere::convert
