#pragma once

#include "sample/SampleRegister.h"

#include <string>

namespace quillmere::sample {

/// Makes the register in an SQLite file. The file appears, or is replaced, only when it is complete.
/// Raises PermissionDenied when the file is there and `replace` is false, PathAccess when it cannot be
/// put in place, and what building raises.
void buildFile(const std::string& path, const Options& options, bool replace);

} // namespace quillmere::sample
