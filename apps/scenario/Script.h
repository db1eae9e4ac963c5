#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::scenario {

/// A command and its arguments.
using Words = std::vector<std::string>;

/// Splits a command line at blanks. "..." holds an argument together, and in it `\"`, `\\`, `\n`, `\r`
/// and `\t` stand for themselves. Raises Stop for a quotation that does not end, or does not fill its
/// argument, and for any other escape.
[[nodiscard]] Words splitWords(std::string_view line);

/// The command lines of a scenario, one after the other. Empty lines and comment lines are no
/// commands.
class Script {
public:
    explicit Script(std::string_view text);

    struct Line {
        /// In the file, from 1.
        int number = 0;
        std::string text;
    };

    /// The next command line, none at the end.
    [[nodiscard]] std::optional<Line> next();
    /// Number of the line that `next` gave last, 0 before the first.
    [[nodiscard]] int lastNumber() const { return last_; }

private:
    std::vector<Line> lines_;
    std::size_t position_ = 0;
    int last_ = 0;
};

} // namespace quillmere::scenario
