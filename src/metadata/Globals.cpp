#include "metadata/Globals.h"

#include "platform/data/UnopenedConnection.h"

#include <utility>

namespace quillmere {

namespace {

std::shared_ptr<data::Connection> sharedConnection;

} // namespace

std::int32_t gZZType = 0;
std::string gZZYear;

data::Connection& gConn() {
    if (!sharedConnection) sharedConnection = std::make_shared<data::UnopenedConnection>();
    return *sharedConnection;
}

void publishConnection(std::shared_ptr<data::Connection> connection) {
    sharedConnection = std::move(connection);
}

} // namespace quillmere
