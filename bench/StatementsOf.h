#pragma once

#include "platform/data/ObservedConnections.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::bench {

/// The statements that `action` sends over `connection`.
[[nodiscard]] std::vector<std::string> statementsOf(data::RecordingConnection& connection,
                                                    const std::function<void()>& action);

/// How many of them begin so.
[[nodiscard]] std::size_t countStarting(const std::vector<std::string>& statements,
                                        std::string_view beginning);

} // namespace quillmere::bench
