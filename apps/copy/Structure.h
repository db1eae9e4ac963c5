#pragma once

#include "copy/Store.h"

#include <string>
#include <vector>

namespace quillmere::copy {

/// A column of both registers. Values are of the kind that the new one has.
struct ColumnPair {
    std::string source;
    std::string target;
    Kind kind;
};

/// A table of both registers. The columns are sorted by name, so that a digest over them does not hang on how
/// an engine arranges them.
struct TablePair {
    Table source;
    Table target;
    std::vector<ColumnPair> columns;
};

/// Makes the tables of the new register: the delivered ones, and what the source has beyond them. Raises
/// Unspecified, with the names, for columns that have no counterpart on the other engine, and what the target
/// raises.
[[nodiscard]] std::vector<TablePair> makeTables(const std::vector<Table>& source, Store& target);

/// Makes the delivered indexes, and for each data table beyond them an index on its key.
void makeIndexes(const std::vector<TablePair>& tables, Store& target);

/// Delivered tables that the source has not; they are in the target, and empty.
[[nodiscard]] std::vector<std::string> missingTables(const std::vector<Table>& source, const Store& target);

} // namespace quillmere::copy
