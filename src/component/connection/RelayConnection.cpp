#include "component/connection/RelayConnection.h"

#include "platform/Error.h"

namespace quillmere::component {

data::Connection& RelayConnection::engine() {
    if (!isOpen()) throw Error(Failure::InvalidConnection);
    return *engine_;
}

} // namespace quillmere::component
