#include "platform/data/Connection.h"

namespace quillmere::data {

// Here, so that the class has one home in whatever is linked together.
Connection::~Connection() = default;

} // namespace quillmere::data
