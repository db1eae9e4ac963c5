#pragma once

#include "adapters/journal/JournalReader.h"
#include "journal/Arguments.h"

#include <iosfwd>

namespace quillmere::recovery {

/// Writes a line for each entry that the arguments let through.
void writeList(std::ostream& out, const journal::Journal& journal, const Arguments& limits);

/// Writes all that is kept in an entry: its statement, and its rows with the names of their columns.
void writeEntry(std::ostream& out, const journal::KeptEntry& kept);

} // namespace quillmere::recovery
