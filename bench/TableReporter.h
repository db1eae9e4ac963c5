#pragma once

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace quillmere::bench {

/// Prints a line for each case: its counters, each under its name. Cases of one kind follow each other, and
/// have the head of the table once.
class TableReporter final : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;

private:
    void printHead(const benchmark::UserCounters& counters);

    std::string head_;
};

} // namespace quillmere::bench
