#pragma once

#include "save/Complaints.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

class A1ctrlUser;

/// What the tables treat differently in the walk over a panel's widgets.
struct WalkRules {
    /// Single quotes of plain texts are doubled.
    bool doubleQuotes = false;
    /// A required field counts only when its widget is visible.
    bool requiredOnlyWhenVisible = false;
    /// The field whose text is the name to check for duplicates; empty for none.
    std::string_view nameField = {};
    /// The coded field that is held against the host's unit; empty for none.
    std::string_view unitField = {};
    std::string UnitCode = {};
};

/// A column with what to store: a text, or nothing for a date that was left empty.
struct ColumnValue {
    std::string column;
    std::optional<std::string> text;
};

struct WalkResult {
    std::vector<ColumnValue> values;
    Complaints complaints;
    /// Trimmed; empty when there is no name to check.
    std::string nameToCheck;
};

/// Walks the value widgets of a panel in their own order, checks each by its field and gathers what
/// is to be stored. Never stops early. Raises InvalidCall for a value widget without a field, and
/// what a conversion raises.
[[nodiscard]] WalkResult walkWidgets(A1ctrlUser& panel, const WalkRules& rules);

} // namespace quillmere
