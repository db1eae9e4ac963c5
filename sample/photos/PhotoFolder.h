#pragma once

#include "platform/data/Connection.h"

#include <string>

namespace quillmere::sample {

/// Gives about one person in three of the register a portrait, as the file `<A00>.jpg` in the folder, which
/// is made when it is not there. Portraits that are there are replaced, and other files stay. Returns how
/// many were written. Raises PathAccess when the folder or a file cannot be written.
int writePhotos(data::Connection& connection, const std::string& folder);

} // namespace quillmere::sample
