#include "TableReporter.h"

#include <algorithm>
#include <iomanip>
#include <string>

namespace quillmere::bench {

namespace {

constexpr int nameWidth = 58;
constexpr int columnWidth = 13;

std::string headOf(const benchmark::UserCounters& counters) {
    std::string head;
    for (const auto& [name, counter] : counters)
        head += std::string(columnWidth - std::min<std::size_t>(columnWidth, name.size()), ' ') + name;
    return head;
}

} // namespace

bool TableReporter::ReportContext(const Context& /*context*/) {
    GetOutputStream() << "medians; times in microseconds, memory in KiB\n";
    return true;
}

void TableReporter::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        // Of repetitions each is shown; what sums them up has other counters.
        if (run.run_type == Run::RT_Aggregate) continue;
        printHead(run.counters);
        auto& out = GetOutputStream();
        out << std::left << std::setw(nameWidth) << run.run_name.function_name << std::right << std::fixed;
        for (const auto& [name, counter] : run.counters)
            out << std::setw(columnWidth)
                << std::setprecision(name == "ratio"       ? 2
                                     : counter.value < 100 ? 1
                                                           : 0)
                << counter.value;
        out << std::endl;
    }
}

void TableReporter::printHead(const benchmark::UserCounters& counters) {
    const std::string head = headOf(counters);
    if (head == head_) return;
    head_ = head;
    GetOutputStream() << '\n' << std::string(nameWidth, ' ') << head << '\n';
}

} // namespace quillmere::bench
