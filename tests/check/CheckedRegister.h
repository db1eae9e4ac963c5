#pragma once

#include "adapters/sqlite/SqliteConnection.h"
#include "check/CheckRun.h"
#include "check/SqliteIndexes.h"
#include "platform/data/ObservedConnections.h"
#include "sample/SampleRegister.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::check::test {

/// A fresh sample register in memory.
[[nodiscard]] inline std::shared_ptr<data::Connection> makeRegister(int persons = 200) {
    auto connection = sqlite::openInMemory();
    sample::Options options;
    options.persons = persons;
    sample::build(*connection, options);
    return connection;
}

[[nodiscard]] inline Report check(const std::shared_ptr<data::Connection>& connection) {
    return checkRegister(connection, SqliteIndexes());
}

/// A finding in one line: what, and where.
[[nodiscard]] inline std::string lineOf(const Finding& finding) {
    std::string line = std::string(finding.kind->id) + " " + finding.table;
    for (const Key& key : finding.row)
        line += " " + key.column + "=" + key.value;
    return line;
}

[[nodiscard]] inline std::vector<std::string> linesOf(const Report& report) {
    std::vector<std::string> lines;
    for (const Finding& finding : report.sorted())
        lines.push_back(lineOf(finding));
    return lines;
}

} // namespace quillmere::check::test
