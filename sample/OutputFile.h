#pragma once

#include "sample/SampleRegister.h"

#include <functional>
#include <string>
#include <string_view>

namespace quillmere::sample {

/// Makes the register in an SQLite file. The file appears, or is replaced, only when it is complete.
/// Raises PermissionDenied when the file is there and `replace` is false, PathAccess when it cannot be
/// put in place, and what building raises. `listen` hears each statement before it runs; what it throws ends
/// the building, and no file is left.
void buildFile(const std::string& path, const Options& options, bool replace,
               const std::function<void(std::string_view statement)>& listen = {});

} // namespace quillmere::sample
