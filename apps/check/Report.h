#pragma once

#include "check/Finding.h"

#include <cstddef>
#include <vector>

namespace quillmere::check {

/// What has been found.
class Report {
public:
    void add(const FindingKind& kind, std::string table, std::vector<Key> row, std::string detail = {});

    /// The worst first, within a level by table; otherwise in the order of their being found.
    [[nodiscard]] std::vector<Finding> sorted() const;
    [[nodiscard]] std::size_t count(Level level) const;
    [[nodiscard]] bool empty() const { return findings_.empty(); }

private:
    std::vector<Finding> findings_;
};

} // namespace quillmere::check
