#pragma once

#include "platform/data/Connection.h"

#include <memory>
#include <string_view>

namespace quillmere::component {

/// Opens a database by a connection string: "postgresql:..." (or "postgres:...", both in the form of the
/// engine's own tools) where the server has that engine, anything else is the path of an SQLite register that
/// exists. Raises Error with a Chinese description.
[[nodiscard]] std::shared_ptr<data::Connection> openEngine(std::string_view connectionString);

} // namespace quillmere::component
