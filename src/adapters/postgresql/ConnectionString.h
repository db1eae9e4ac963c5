#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillmere::postgresql {

/// Options of libpq, by their names.
using ConnectionOptions = std::vector<std::pair<std::string, std::string>>;

/// The options that an address gives, a URI ("postgresql://role@server:5432/database?sslmode=verify-full")
/// or words ("host=server dbname=database"), with what every connection of a register has beside them: the
/// encoding, the search path `schema`,jet,pg_catalog,public, and bounds on how long a dead network holds a
/// clerk up, unless the address sets its own. What it leaves open libpq takes from its usual places: PGHOST
/// and its kin, the service file, and the password from PGPASSWORD or the password file.
///
/// Raises BadArguments for an address that cannot be read. The description does not repeat any of it, since
/// a password may stand in it.
[[nodiscard]] ConnectionOptions connectionOptions(std::string_view address, std::string_view schema);

} // namespace quillmere::postgresql
