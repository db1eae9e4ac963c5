#pragma once

namespace quillmere {

namespace ui {
class Frame;
}

/// Of several frames that share a place, those out of use stand off the screen.
inline constexpr int offScreen = -10000;

/// Moves a frame to that Left, in twips.
void moveFrame(ui::Frame& frame, int left);

} // namespace quillmere
