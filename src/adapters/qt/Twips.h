#pragma once

namespace quillmere::qt {

/// Positions and sizes of the model are in twips.
inline constexpr int twipsPerPixel = 15;

} // namespace quillmere::qt
