#include "journal/AlignedLines.h"

#include "platform/text/Text.h"

#include <algorithm>
#include <cstddef>
#include <ostream>

namespace quillmere::recovery {

namespace {

std::size_t widthOf(const std::string& cell) {
    // Everything from the Hangul letters on is taken for wide; that is where the Chinese characters are.
    constexpr char32_t firstWide = 0x1100;
    std::size_t width = 0;
    for (const char32_t each : text::decode(cell))
        width += each >= firstWide ? 2 : 1;
    return width;
}

} // namespace

void AlignedLines::write(std::ostream& out) const {
    std::vector<std::size_t> widths;
    for (const auto& line : lines_) {
        widths.resize(std::max(widths.size(), line.size()));
        for (std::size_t i = 0; i < line.size(); ++i)
            widths[i] = std::max(widths[i], widthOf(line[i]));
    }
    for (const auto& line : lines_) {
        for (std::size_t i = 0; i < line.size(); ++i) {
            out << line[i];
            if (i + 1 < line.size()) out << std::string(widths[i] - widthOf(line[i]) + 2, ' ');
        }
        out << '\n';
    }
}

} // namespace quillmere::recovery
