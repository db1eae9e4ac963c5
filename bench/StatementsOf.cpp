#include "StatementsOf.h"

#include <algorithm>

namespace quillmere::bench {

std::vector<std::string> statementsOf(data::RecordingConnection& connection,
                                      const std::function<void()>& action) {
    connection.clear();
    connection.keepStatements(true);
    action();
    connection.keepStatements(false);
    return connection.statements();
}

std::size_t countStarting(const std::vector<std::string>& statements, std::string_view beginning) {
    return static_cast<std::size_t>(std::ranges::count_if(
        statements, [&](const std::string& sql) { return sql.starts_with(beginning); }));
}

} // namespace quillmere::bench
