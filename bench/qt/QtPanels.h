#pragma once

#include <string>

namespace quillmere::bench {

/// Builds and switches panels, fills lists of two lengths and opens trees of two sizes in real windows
/// of that platform plug-in, and prints what each took. Throws when something is missing afterwards.
void measureQtPanels(const std::string& platform);

} // namespace quillmere::bench
