#include "metadata/CheckInput.h"

#include "metadata/InputRule.h"
#include "metadata/cFieldItem.h"
#include "platform/Error.h"
#include "platform/convert/Clock.h"
#include "platform/convert/Convert.h"
#include "platform/convert/Format.h"
#include "platform/text/Text.h"

#include <cstdint>
#include <vector>

namespace quillmere {

namespace {

using Arguments = std::vector<std::string>;

const std::string& argument(const Arguments& arguments, std::size_t index) {
    if (index >= arguments.size()) throw Error(Failure::SubscriptOutOfRange);
    return arguments[index];
}

std::int64_t number(const Arguments& arguments, std::size_t index) {
    return convert::toLong(argument(arguments, index));
}

std::int64_t lengthOf(std::string_view text) { return static_cast<std::int64_t>(text::length(text)); }

std::string fiveYearsOn(std::string_view picture) {
    return convert::format(convert::addYears(clock::now(), 5), picture);
}

/// A number of limited size. The digits behind the point are not counted on their own.
std::string checkNumber(const cFieldItem& item, const Arguments& arguments, std::string_view text) {
    if (text.empty()) return {};
    if (!convert::isNumeric(text)) return item.ItemDesc + "应该为数字！";
    const std::int64_t total = number(arguments, 0);
    // The words ask for less than the total while the total itself passes: meant so.
    if (lengthOf(text) > total) return item.ItemDesc + "数据长度应小于" + arguments[0] + "！";
    const std::int64_t wholeDigits = total - number(arguments, 1);
    const std::string_view wholePart = text.substr(0, text.find('.'));
    if (lengthOf(wholePart) > wholeDigits) {
        return item.ItemDesc + "整数位数最多为" + std::to_string(wholeDigits) + "位！";
    }
    return {};
}

std::string checkAtMost(const cFieldItem& item, const Arguments& arguments, std::string_view text) {
    if (lengthOf(text) <= number(arguments, 0)) return {};
    return item.ItemDesc + "最多可以录入" + arguments[0] + "个字符！";
}

/// One of several lengths. The empty text is no exception: it fails unless 0 is listed.
std::string checkLengths(const cFieldItem& item, const Arguments& arguments, std::string_view text) {
    for (std::size_t i = 0; i < arguments.size(); ++i)
        if (number(arguments, i) == lengthOf(text)) return {};
    return item.ItemDesc + "长度应该为" + text::join(arguments, "或") + "位。";
}

/// Bounds are compared as texts, character by character, not as numbers or dates: meant so.
std::string checkBetween(const cFieldItem& item, std::string_view value, const std::string& lower,
                         const std::string& upper) {
    if (value >= lower && value <= upper) return {};
    return item.ItemDesc + "应该在" + lower + "至" + upper + "之间。";
}

std::string checkDateBounds(const cFieldItem& item, const Arguments& arguments, std::string_view text) {
    if (arguments.size() != 2) return {};
    std::string upper = arguments[1];
    // The bound is written with hyphens also for a style with points: meant so.
    if (item.Style == "yyyy.MM" || item.Style == "yyyy-MM") upper = fiveYearsOn("yyyy-MM");
    if (item.Style == "yyyy.MM.dd" || item.Style == "yyyy-MM-dd") upper = fiveYearsOn("yyyy-MM-dd");
    return checkBetween(item, convert::format(text, item.Style), arguments[0], upper);
}

std::string checkTextBounds(const cFieldItem& item, const Arguments& arguments, std::string_view text) {
    constexpr double yearLength = 4;
    const bool isYear = convert::toDouble(item.FieldLength) == yearLength;
    const std::string& written = argument(arguments, 1);
    return checkBetween(item, text, arguments[0], isYear ? fiveYearsOn("yyyy") : written);
}

std::string checkBounds(const cFieldItem& item, const Arguments& arguments, std::string_view text) {
    const std::string type = text::lower(item.FieldType);
    if (type == "datetime") return checkDateBounds(item, arguments, text);
    if (type == "varchar") return checkTextBounds(item, arguments, text);
    return {};
}

} // namespace

std::string CheckInput(const cFieldItem& item, std::string_view text) {
    if (text.find('\'') != std::string_view::npos) {
        return item.ItemDesc + "输入存在非法字符 ” ' “，请您将其改为 “ ‘ ”，或者去掉。 ";
    }
    const InputRule rule = parseInputRule(item.Check);
    switch (rule.kind) {
    case RuleKind::Number:
        return checkNumber(item, rule.arguments, text);
    case RuleKind::AtMost:
        return checkAtMost(item, rule.arguments, text);
    case RuleKind::Lengths:
        return checkLengths(item, rule.arguments, text);
    case RuleKind::Between:
        return checkBounds(item, rule.arguments, text);
    case RuleKind::None:
        break;
    }
    return {};
}

} // namespace quillmere
