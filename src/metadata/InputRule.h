#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

/// What a rule asks of a text.
enum class RuleKind {
    None,    ///< nothing: no rule, or a letter that stands for none
    Between, ///< B: between two bounds
    Lengths, ///< L: one of several lengths
    Number,  ///< N: a number of limited size
    AtMost,  ///< A: at most so many characters
};

/// An input rule as it is read: "N 10,2" is the kind Number with the arguments "10" and "2".
struct InputRule {
    RuleKind kind = RuleKind::None;
    std::vector<std::string> arguments;
    /// What stands behind a second blank. Nothing reads it.
    std::vector<std::string> ignored;
};

/// Reads a rule: a letter in either case, one blank, arguments separated by ",".
[[nodiscard]] InputRule parseInputRule(std::string_view text);

} // namespace quillmere
