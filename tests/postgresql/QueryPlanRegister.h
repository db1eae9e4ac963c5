#pragma once

#include "TestServer.h"
#include "sample/Catalogue.h"

#include <memory>
#include <set>
#include <string>

namespace quillmere::postgresql {

/// A register whose data tables all have thousands of rows, so that an index pays. It is the published
/// connection for as long as it lives.
class LargeRegister {
public:
    static constexpr int rows = 5000;

    /// With `parts` above 0 the data tables are cut into so many by the hash of A00, as a distributed server
    /// cuts them: what reads one part stays on one node.
    explicit LargeRegister(int parts);
    ~LargeRegister();
    LargeRegister(const LargeRegister&) = delete;
    LargeRegister& operator=(const LargeRegister&) = delete;

    /// The tables, or parts of tables, that the plan of a statement touches; with a mark in front of the
    /// step alone those of such steps ("Seq Scan").
    [[nodiscard]] std::set<std::string> tablesOf(const std::string& statement,
                                                 const std::string& step = {}) const;
    [[nodiscard]] data::Connection& connection() const { return *connection_; }

private:
    void makeTable(const sample::SetRow& set, int parts) const;
    void fill(const sample::SetRow& set) const;

    FreshSchema schema_;
    std::shared_ptr<PostgreSqlConnection> connection_;
};

} // namespace quillmere::postgresql
