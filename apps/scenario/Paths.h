#pragma once

#include <string>

namespace quillmere::scenario {

struct Scene;

/// The value at a path: a property of a widget of the form in front or of its panel, or one of the
/// paths of the window, the globals, the panel's context and fields. Raises Stop for a path that leads
/// nowhere now.
[[nodiscard]] std::string readPath(const Scene& scene, const std::string& path);

} // namespace quillmere::scenario
