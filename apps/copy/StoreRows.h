#pragma once

#include "copy/Store.h"

namespace quillmere::copy {

/// Tables from rows of tablename, columnname, typename, those of a table one behind the other.
[[nodiscard]] std::vector<Table>
tablesFrom(const data::RowSet& rows, const std::function<std::optional<Kind>(const std::string&)>& kindOf);

/// The first column of all rows.
[[nodiscard]] std::vector<std::string> textsOf(const data::RowSet& rows);

/// Names as a statement lists them, each as `quotedName` has it.
[[nodiscard]] std::string nameList(const std::vector<std::string>& names);

} // namespace quillmere::copy
