#pragma once

#include <string_view>

namespace quillmere::sample {

enum class Engine { Sqlite, PostgreSql };

/// What an engine's table definitions say differently. Text compares without regard to case.
struct Dialect {
    std::string_view text;
    std::string_view boolean;
    std::string_view integer;
    /// A count that keeps a fraction typed by a person; shows a whole number without a point.
    std::string_view number;
    /// The default that makes a globally unique identifier of 38 characters, braces included.
    std::string_view guidDefault;
};

[[nodiscard]] const Dialect& dialectOf(Engine engine);

} // namespace quillmere::sample
