#pragma once

#include "platform/data/Connection.h"

#include <optional>
#include <string>
#include <vector>

namespace quillmere::recovery {

/// How the rows of a table are told apart.
enum class RowKey {
    Identity, ///< by A00: a set with one record for each person, unit or project
    Numbered, ///< by A00 and the number, A0299: a set with several
    Unknown,  ///< by nothing that a catalogue or a name tells
};

/// A table of the register that rows go back to.
struct RegisterTable {
    /// As the journal spells it.
    std::string name;
    /// As the register spells them.
    std::vector<std::string> columns;
    RowKey key = RowKey::Unknown;

    /// A column of the register as it stands in statements, by its name without regard to case; nothing when
    /// the register has none of that name.
    [[nodiscard]] std::optional<std::string> column(std::string_view name) const;
};

/// Reads what the register tells of a table. Raises what the connection raises, for one that is missing too.
[[nodiscard]] RegisterTable readTable(data::Connection& connection, const std::string& name);

/// A value as a statement has it. Raises an Error for a number without end, which no statement can spell.
[[nodiscard]] std::string literal(const data::Value& value);

/// Whether both are null, or have the same text: engines keep numbers differently.
[[nodiscard]] bool isSameValue(const data::Value& one, const data::Value& other);

} // namespace quillmere::recovery
