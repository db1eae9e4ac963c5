#pragma once

#include "platform/data/ObservedConnections.h"

#include <functional>
#include <string>
#include <vector>

namespace quillmere::bench {

/// The statements that `action` sends over `connection`.
[[nodiscard]] std::vector<std::string> statementsOf(data::RecordingConnection& connection,
                                                    const std::function<void()>& action);

} // namespace quillmere::bench
