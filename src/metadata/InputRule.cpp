#include "metadata/InputRule.h"

#include "platform/text/Text.h"

#include <array>
#include <cstddef>

namespace quillmere {

namespace {

struct LetterRow {
    std::string_view letter;
    RuleKind kind;
};

constexpr std::array letters{
    LetterRow{"B", RuleKind::Between},
    LetterRow{"L", RuleKind::Lengths},
    LetterRow{"N", RuleKind::Number},
    LetterRow{"A", RuleKind::AtMost},
};

} // namespace

InputRule parseInputRule(std::string_view text) {
    constexpr std::ptrdiff_t usedPieces = 2;
    const std::vector<std::string> pieces = text::split(text, " ");
    InputRule rule;
    if (pieces.size() < usedPieces) return rule;
    const std::string letter = text::upper(pieces[0]);
    for (const LetterRow& row : letters)
        if (row.letter == letter) rule.kind = row.kind;
    rule.arguments = text::split(pieces[1], ",");
    rule.ignored.assign(pieces.begin() + usedPieces, pieces.end());
    return rule;
}

} // namespace quillmere
