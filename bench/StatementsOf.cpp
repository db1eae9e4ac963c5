#include "StatementsOf.h"

namespace quillmere::bench {

std::vector<std::string> statementsOf(data::RecordingConnection& connection,
                                      const std::function<void()>& action) {
    connection.clear();
    connection.keepStatements(true);
    action();
    connection.keepStatements(false);
    return connection.statements();
}

} // namespace quillmere::bench
