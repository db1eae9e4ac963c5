#include "check/Finding.h"

#include <array>
#include <cstddef>

namespace quillmere::check {

namespace {

struct LevelRow {
    std::string_view caption;
    std::string_view name;
};

// In the order of the enumeration.
constexpr std::array levels{LevelRow{"错误", "error"}, LevelRow{"警告", "warning"}, LevelRow{"提示", "note"}};

const LevelRow& rowOf(Level level) { return levels.at(static_cast<std::size_t>(level)); }

} // namespace

std::string_view captionOf(Level level) { return rowOf(level).caption; }

std::string_view nameOf(Level level) { return rowOf(level).name; }

std::string effectOf(const FindingKind& kind) {
    std::string text(kind.effect);
    if (!kind.failure) return text;
    const std::string number = std::to_string(static_cast<int>(*kind.failure));
    return text + "（失败 " + number + "：" + std::string(descriptionOf(*kind.failure)) + "）";
}

std::string pageOf(const FindingKind& kind) { return "docs/check/" + std::string(kind.id) + ".md"; }

} // namespace quillmere::check
