#pragma once

#include <span>
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
    /// What keeps the identities apart that several clerks take at once; none on an engine without sessions.
    std::span<const std::string_view> identityGuard;
    /// Whether a key can be checked at the end of a statement instead of row by row.
    bool deferrableKeys;
};

[[nodiscard]] const Dialect& dialectOf(Engine engine);

} // namespace quillmere::sample
