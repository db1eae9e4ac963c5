#pragma once

namespace quillmere::qt {

/// The text of skins/light.qss.
extern const char* const lightSkin;

} // namespace quillmere::qt
