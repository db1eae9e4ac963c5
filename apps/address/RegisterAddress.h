#pragma once

#include <string>
#include <string_view>

namespace quillmere {

/// Where a register is, as a command line names it.
struct RegisterAddress {
    /// On a PostgreSQL server; a file of SQLite otherwise.
    bool onServer = false;
    /// The path of the file, or what the server's adapter takes for an address.
    std::string way;
};

/// Reads the name of a register: "postgresql:" with the way to a database behind it, or else a file.
[[nodiscard]] RegisterAddress readAddress(std::string_view name);

/// The name as it may be shown: the way to a server can hold a password.
[[nodiscard]] std::string shownAddress(std::string_view name);

} // namespace quillmere
