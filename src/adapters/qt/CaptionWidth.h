#pragma once

class QLabel;

/// How wide a caption is in its bold form, so that nothing moves when it turns bold. In pixels.
namespace quillmere::qt {

/// A caption that is wider may be broken into lines.
inline constexpr int widestCaption = 150;

/// On one line.
[[nodiscard]] int boldWidth(const QLabel& caption);
/// Broken into lines of like length, not into a full one and a last character.
[[nodiscard]] int balancedWidth(const QLabel& caption);

} // namespace quillmere::qt
