#pragma once

#include "sample/SampleRegister.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace quillmere::sample {

using FillConnection = std::function<void(const std::shared_ptr<data::Connection>&)>;

/// Makes an SQLite file and lets `fill` work in it, on a connection without journal: nothing can be taken
/// back. The file appears, or is replaced, only when that has returned. Raises PermissionDenied when the file
/// is there and `replace` is false, PathAccess when it cannot be put in place, and what `fill` raises.
void fillFile(const std::string& path, bool replace, const FillConnection& fill);

/// Makes the register in an SQLite file. The file appears, or is replaced, only when it is complete.
/// Raises PermissionDenied when the file is there and `replace` is false, PathAccess when it cannot be
/// put in place, and what building raises. `listen` hears each statement before it runs; what it throws ends
/// the building, and no file is left.
void buildFile(const std::string& path, const Options& options, bool replace,
               const std::function<void(std::string_view statement)>& listen = {});

} // namespace quillmere::sample
