#include "platform/data/UnopenedConnection.h"

#include "platform/Error.h"

namespace quillmere::data {

RowSet UnopenedConnection::query(std::string_view) { throw Error(Failure::InvalidConnection); }

void UnopenedConnection::execute(std::string_view) { throw Error(Failure::InvalidConnection); }

void UnopenedConnection::close() {
    // Closed already: closing is harmless, as with every connection.
}

} // namespace quillmere::data
