// CheckInput: any rule over any text.

#include "support/Fuzzing.h"

#include "metadata/CheckInput.h"
#include "metadata/InputRule.h"
#include "metadata/cFieldItem.h"
#include "platform/convert/Clock.h"
#include "platform/convert/Convert.h"
#include "platform/text/Text.h"

#include <algorithm>

namespace {

using namespace quillmere;
using fuzz::hold;

int lengthOf(const std::string& text) { return static_cast<int>(text::length(text)); }

/// What a text that passes has, whatever stands in the rest of the rule.
void passesRightly(const InputRule& rule, const cFieldItem& field, const std::string& text) {
    const auto& arguments = rule.arguments;
    if (rule.kind == RuleKind::AtMost)
        hold(lengthOf(text) <= convert::toLong(arguments.at(0)), "no text is longer than rule A lets it be");
    if (rule.kind == RuleKind::Lengths)
        hold(
            std::ranges::any_of(arguments, [&](auto& one) { return convert::toLong(one) == lengthOf(text); }),
            "a text has one of the lengths of rule L");
    if (rule.kind == RuleKind::Number && !text.empty()) {
        hold(convert::isNumeric(text), "what passes rule N is a number");
        hold(lengthOf(text) <= convert::toLong(arguments.at(0)), "and no longer than the rule lets it be");
    }
    const bool isText = text::lower(field.FieldType) == "varchar";
    if (rule.kind == RuleKind::Between && isText) {
        hold(text >= arguments.at(0), "what passes rule B is not below the lower bound");
        // A year has five years from now for its upper bound.
        const bool isYear = convert::toDouble(field.FieldLength) == 4;
        hold(text <= arguments.at(1) || isYear, "nor above the upper one");
    }
}

} // namespace

/// A line each with the rule, the type, length and style of the field, and the text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    clock::fix(convert::DateTime{2026, 11, 21, 8, 0, 0});
    fuzz::Input input(data, size);
    cFieldItem field;
    field.ItemDesc = "学校";
    field.Check = input.line();
    field.FieldType = input.line();
    field.FieldLength = input.line();
    field.Style = input.line();
    const std::string text = input.rest();

    std::string complaint;
    const auto failure = fuzz::failureOf([&] { complaint = CheckInput(field, text); });
    const bool quoted = text.find('\'') != std::string::npos;
    if (failure) {
        hold(!quoted, "a quote is refused whatever the rule says");
        hold(failure == Failure::SubscriptOutOfRange || failure == Failure::TypeMismatch ||
                 failure == Failure::Overflow,
             "a rule fails by a missing argument, or by one that is no number");
        return 0;
    }
    hold(CheckInput(field, text) == complaint, "the same text by the same rule has the same complaint");
    hold(!quoted || !complaint.empty(), "a quote is refused whatever the rule says");
    hold(complaint.empty() || complaint.starts_with(field.ItemDesc), "a complaint names its field");
    if (complaint.empty()) passesRightly(parseInputRule(field.Check), field, text);
    return 0;
}
