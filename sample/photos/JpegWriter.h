#pragma once

#include "sample/photos/Picture.h"

#include <string>

namespace quillmere::sample {

/// The picture as the bytes of a JPEG file, at a quality from 1 to 100. Raises Unspecified when there is no
/// room for it.
[[nodiscard]] std::string jpegOf(const Picture& picture, int quality);

} // namespace quillmere::sample
