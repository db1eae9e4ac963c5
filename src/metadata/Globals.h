#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace quillmere {

namespace data {
class Connection;
}

// The module globals: one copy for the whole component, touched on the user-interface thread only.

/// The one route to the database. When none was published, a new, unopened connection is created on
/// the spot and kept, so that the first statement fails with a clear description.
[[nodiscard]] data::Connection& gConn();
/// Publishes the host's connection; the host still owns and closes it.
void publishConnection(std::shared_ptr<data::Connection> connection);

/// The sponsorship type, 1 to 7 when the data are good.
extern std::int32_t gZZType;
/// The sponsorship year.
extern std::string gZZYear;

} // namespace quillmere
