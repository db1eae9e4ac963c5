#pragma once

#include <span>
#include <string_view>

namespace quillmere::sample {

/// The bytes of a file of sample/data, which every program of the sample carries inside itself. `name`
/// is the path below that folder, as "DM_MZ.csv". The view holds for the life of the program. Throws
/// std::out_of_range when there is no such file.
[[nodiscard]] std::string_view embeddedFile(std::string_view name);

/// The names of all embedded files, sorted.
[[nodiscard]] std::span<const std::string_view> embeddedFileNames();

} // namespace quillmere::sample
