#pragma once

#include "copy/Copying.h"

#include <iosfwd>

namespace quillmere::copy {

/// A line for each table, with its rows and their digest, and what else is to be known.
void writeSummary(std::ostream& out, const Summary& summary);

} // namespace quillmere::copy
