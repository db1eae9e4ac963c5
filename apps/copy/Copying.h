#pragma once

#include "copy/Digest.h"
#include "copy/Structure.h"

#include <string>
#include <vector>

namespace quillmere::copy {

class Progress;

struct CopiedTable {
    std::string name;
    /// The same in both registers.
    Digest digest;
};

/// What a copy came to.
struct Summary {
    std::vector<CopiedTable> tables;
    /// Delivered tables that were not in the source; they are there now, and empty.
    std::vector<std::string> added;
    /// What the source has beside tables, with its kind.
    std::vector<std::string> leftBehind;
};

/// Fills an empty database with the register of `source`, reads it back, and compares. The source is read in
/// one transaction. Raises Unspecified where the two differ and for a delivered table that is a view in the
/// source, and what either engine raises, with the table in front; what the target then holds has to be
/// thrown away.
[[nodiscard]] Summary copyRegister(Store& source, Store& target, Progress& progress);

/// Raises Unspecified, with the name, for a table of the target that has not the rows whose digest is given.
void compareTable(const TablePair& table, const Digest& expected, Store& target, Progress& progress);

} // namespace quillmere::copy
