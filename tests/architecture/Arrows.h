#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillmere::architecture {

/// An include that points against the arrows, or at a product that its folder may not know.
struct Breach {
    std::string file;
    int line = 0;
    std::string reason;
};

/// Reads the text of one file. `path` is relative to the root of the project, as "src/save/Walk.cpp" or
/// "include/quillmere/Qt.h"; it tells which layer the file belongs to.
[[nodiscard]] std::vector<Breach> breachesIn(std::string_view path, std::string_view text);

/// The layer of a path relative to src/ ("save/Walk.h" gives "save", "adapters/qt/Guard.h" gives
/// "adapters/qt", "quillmere/Qt.h" gives "quillmere"); empty when there is no such layer.
[[nodiscard]] std::string_view layerOf(std::string_view path);

} // namespace quillmere::architecture
