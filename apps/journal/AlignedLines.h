#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace quillmere::recovery {

/// Lines of cells that are written below each other. A Chinese character takes the room of two letters.
class AlignedLines {
public:
    void add(std::vector<std::string> cells) { lines_.push_back(std::move(cells)); }
    /// The last cell of a line gets no room.
    void write(std::ostream& out) const;

private:
    std::vector<std::vector<std::string>> lines_;
};

} // namespace quillmere::recovery
