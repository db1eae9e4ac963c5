#pragma once

#include "adapters/journal/WritingStatement.h"
#include "platform/data/RowSet.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quillmere::journal {

/// What is kept of a statement before it runs.
struct Entry {
    /// "2026-11-21 09:30:00", the local time of the machine that wrote it.
    std::string time;
    std::string who;
    Kind kind = Kind::Other;
    /// As the statement spells it; empty when it names none that was understood.
    std::string table;
    std::string statement;
    /// Bytes of the statement that were cut off its end.
    std::uint64_t statementBytesLeftOut = 0;
    /// The rows as they were before.
    data::RowSet rows;
    std::uint64_t rowsLeftOut = 0;
    /// Why the rows are missing; empty when they are not.
    std::string trouble;
};

/// What became of a statement.
struct Outcome {
    /// The number of its entry.
    std::uint64_t entry = 0;
    /// What it failed of; nothing when it ran.
    std::optional<std::string> failure;
};

/// What stands in a record about each.
/// @{
[[nodiscard]] std::string textOf(const Entry& entry);
[[nodiscard]] std::string textOf(const Outcome& outcome);
/// @}

/// Reads what `textOf` made; nothing for anything else. Fields that are not known are passed over.
/// @{
[[nodiscard]] std::optional<Entry> readEntry(std::string_view text);
[[nodiscard]] std::optional<Outcome> readOutcome(std::string_view text);
/// @}

/// How many bytes a row takes in a record.
[[nodiscard]] std::size_t sizeOf(const std::vector<data::Value>& row);

} // namespace quillmere::journal
