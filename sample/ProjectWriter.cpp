#include "sample/RowWriters.h"

namespace quillmere::sample {

ProjectWriter::ProjectWriter(data::Connection& connection)
    : project_(
          connection, "P01",
          "A00,P0109,P0106,P0107,P0112,P0103,P0102,P0104,P0125,P0126,P0128,P0129,P0122,P0127,P0120,P0135,"
          "P0130,P0131,P0124,P0108,P0105,P0111,P0123")
    , plan_(connection, "Plan1", "A00,Plan199,Plan101,Plan102,Plan103,Plan104") {}

void ProjectWriter::write(const Project& project, const Pools& pools, Random& random) {
    const bool approved = project.stage != "01";
    const bool closed = project.stage == "03";
    const std::string year = std::to_string(project.year);
    const std::string nothing = quoted("");
    const auto ifApproved = [&](const std::string& value) { return approved ? quoted(value) : nothing; };
    const auto dateIfApproved = [&](const std::string& value) { return quotedOrNull(approved ? value : ""); };
    project_.add({quoted(project.key),
                  quoted(project.title),
                  quoted(project.from),
                  quoted(project.to),
                  quoted(project.group),
                  quoted(project.total),
                  quoted(project.sponsored),
                  quoted("由所在单位自筹解决"),
                  ifApproved(year),
                  ifApproved(project.sponsored),
                  dateIfApproved(project.from),
                  dateIfApproved(project.to),
                  dateIfApproved(project.to),
                  ifApproved(project.matching),
                  quoted(project.number),
                  quotedOrNull(project.goingAbroad),
                  quoted(project.closingForm),
                  quoted(project.acceptedBy),
                  quotedOrNull(project.closed),
                  closed ? quoted(project.closed.substr(0, 4)) : nothing,
                  quoted("研究报告和论文"),
                  quotedOrNull(project.department),
                  quoted(project.stage)});
    if (!approved) return;
    const auto& tasks = pools.words("planTask");
    const auto& targets = pools.words("planTarget");
    const std::size_t first = random.below(tasks.size());
    for (int half = 0; half < 2; ++half) {
        const std::string from = year + (half == 0 ? "-01" : "-07");
        const std::string to = year + (half == 0 ? "-06" : "-12");
        const std::size_t task = first + static_cast<std::size_t>(half);
        plan_.add({quoted(project.key), std::to_string(half + 1), quoted(from), quoted(to),
                   quoted(tasks[task % tasks.size()]), quoted(targets[task % targets.size()])});
    }
}

void ProjectWriter::flush() {
    project_.flush();
    plan_.flush();
}

} // namespace quillmere::sample
