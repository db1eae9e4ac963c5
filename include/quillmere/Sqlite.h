#pragma once

#include <memory>
#include <string_view>

namespace quillmere {

namespace data {
class Connection;
}

/// Opens a register in an SQLite file that exists, for reading and writing. Raises
/// quillmere::Error with a Chinese description for a file that is missing or is no register.
[[nodiscard]] std::shared_ptr<data::Connection> openSqlite(std::string_view path);

} // namespace quillmere
