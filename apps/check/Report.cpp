#include "check/Report.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace quillmere::check {

void Report::add(const FindingKind& kind, std::string table, std::vector<Key> row, std::string detail) {
    findings_.push_back({&kind, std::move(table), std::move(row), std::move(detail)});
}

std::vector<Finding> Report::sorted() const {
    std::vector<Finding> findings = findings_;
    std::ranges::stable_sort(findings, [](const Finding& a, const Finding& b) {
        return std::tie(a.kind->level, a.table) < std::tie(b.kind->level, b.table);
    });
    return findings;
}

std::size_t Report::count(Level level) const {
    const auto found =
        std::ranges::count_if(findings_, [level](const Finding& each) { return each.kind->level == level; });
    return static_cast<std::size_t>(found);
}

} // namespace quillmere::check
