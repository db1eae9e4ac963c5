#pragma once

#include "platform/Error.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::check {

enum class Level {
    Error,   ///< something fails, or what a clerk enters is lost
    Warning, ///< something misbehaves without a word
    Note,    ///< worth knowing; nothing goes wrong by itself
};

/// One thing that can be wrong with a register. What is said of it is Chinese, since the administrator of a
/// register reads it; the id never changes, so that programs can go by it.
struct FindingKind {
    std::string_view id;
    Level level = Level::Error;
    std::string_view title;
    /// What happens at run time, in the words of who sees it.
    std::string_view effect;
    std::string_view remedy;
    /// The failure that the system raises then, where it raises one.
    std::optional<Failure> failure = {};
};

/// A column and its value: what finds a row.
struct Key {
    std::string column;
    std::string value;
};

/// One thing that is wrong, and where.
struct Finding {
    const FindingKind* kind = nullptr;
    std::string table;
    std::vector<Key> row;
    /// What stands there; empty where the place says all.
    std::string detail;
};

/// "错误", "警告", "提示".
[[nodiscard]] std::string_view captionOf(Level level);
/// "error", "warning", "note".
[[nodiscard]] std::string_view nameOf(Level level);
/// The effect, and behind it the failure as the system words it.
[[nodiscard]] std::string effectOf(const FindingKind& kind);
/// The document on a kind, relative to the root of the source tree.
[[nodiscard]] std::string pageOf(const FindingKind& kind);

} // namespace quillmere::check
