#pragma once

#include "adapters/journal/JournalReader.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::recovery {

/// The column that every data table has for the person, unit or project.
inline constexpr std::string_view identityColumn = "A00";

/// The column of a table for the number of a record within its identity, "A0299".
[[nodiscard]] std::string numberColumn(std::string_view table);

/// The identities of the rows, each once, or the one that an insert names.
[[nodiscard]] std::vector<std::string> identitiesOf(const journal::Entry& entry);

/// Whether an update sets the identity or the number of its rows, so that those cannot be told by it.
[[nodiscard]] bool renumbers(const journal::Entry& entry);

/// Whether it can be told which columns an update sets.
[[nodiscard]] bool tellsColumns(const journal::Entry& entry);

/// What an update sets a column to, as its statement spells it; nothing for a column that it leaves.
[[nodiscard]] std::optional<std::string> newValue(const journal::Entry& entry, std::string_view column);

/// A few characters in Chinese: what the statement does, and what became of it.
/// @{
[[nodiscard]] std::string_view deedOf(const journal::Entry& entry);
[[nodiscard]] std::string_view outcomeOf(const journal::KeptEntry& kept);
/// @}

/// A value as it is shown: texts in quotes, with signs in place of what a terminal would obey.
[[nodiscard]] std::string shown(const data::Value& value);
[[nodiscard]] std::string shownText(std::string_view text);

} // namespace quillmere::recovery
