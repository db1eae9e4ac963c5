#pragma once

#include <string_view>

namespace quillmere::ui {

/// Whether the bytes have the structure of a JPEG file: the start marker, a frame header, and then the
/// start of a scan. A file that breaks off within its scan passes, as decoders show what there is.
[[nodiscard]] bool isJpeg(std::string_view content);

} // namespace quillmere::ui
