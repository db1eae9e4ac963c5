#pragma once

#include "adapters/journal/JournalReader.h"
#include "journal/RegisterTable.h"
#include "journal/RowComparison.h"

#include <cstddef>
#include <iosfwd>
#include <map>
#include <string>
#include <vector>

namespace quillmere::recovery {

/// What is asked of a restoring beside the entries.
struct RestoreOptions {
    bool dryRun = false;
    bool anyway = false;
};

/// What became of the rows.
struct RestoreCount {
    std::size_t restored = 0;
    std::size_t present = 0;
    std::size_t refused = 0;
};

/// Writes the rows of entries back into a register, a statement for each row, and tells of each.
class Restorer {
public:
    Restorer(data::Connection& connection, RestoreOptions options, std::ostream& out);

    /// Looks whether an entry can be brought back at all. Why not; empty when it can.
    [[nodiscard]] std::string objection(const journal::KeptEntry& kept);

    /// Brings the rows of an entry to which there is no objection back.
    void restore(const journal::KeptEntry& kept);

    [[nodiscard]] const RestoreCount& count() const { return count_; }

private:
    /// A row of an entry on its way back.
    struct Row {
        const journal::Entry& entry;
        std::size_t index;
        const RegisterTable& table;
        const RowComparison& comparison;

        [[nodiscard]] const std::vector<std::string>& columns() const { return entry.rows.columns(); }
        [[nodiscard]] const data::Value& at(std::size_t column) const { return entry.rows.at(index, column); }
        /// Null for a column that the row has not.
        [[nodiscard]] data::Value value(std::string_view column) const;
        [[nodiscard]] std::string name() const;
    };

    [[nodiscard]] const RegisterTable& tableOf(const std::string& name);
    void restoreRow(const Row& row);
    void insertBack(const Row& row);
    void updateBack(const Row& row);
    void run(const std::string& sql);
    /// The rows of the register that may be this one: of its identity where the table has one.
    [[nodiscard]] data::RowSet candidates(const Row& row) const;
    [[nodiscard]] std::string condition(const Row& row, const std::vector<std::string>& columns) const;
    void tell(const Row& row, const std::string& words);
    void tellRestored(const Row& row, const std::string& words);
    void tellPresent(const Row& row, const std::string& words);
    void tellRefused(const Row& row, const std::string& words);

    data::Connection& connection_;
    RestoreOptions options_;
    std::ostream& out_;
    RestoreCount count_;
    std::map<std::string, RegisterTable> tables_;
};

} // namespace quillmere::recovery
