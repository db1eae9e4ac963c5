#pragma once

#include <span>
#include <string_view>

namespace quillmere::postgresql {

/// The text of a file of the folder `schema`, which the library carries inside itself. The view holds for
/// the life of the program. Throws std::out_of_range when there is no such file.
[[nodiscard]] std::string_view embeddedFile(std::string_view name);

/// The names of all of them, sorted.
[[nodiscard]] std::span<const std::string_view> embeddedFileNames();

} // namespace quillmere::postgresql
