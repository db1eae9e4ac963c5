#include "check/CheckGroup.h"
#include "check/FieldPlace.h"
#include "check/RegisterView.h"

#include "metadata/CheckInput.h"
#include "metadata/InputRule.h"
#include "platform/Error.h"
#include "platform/convert/Clock.h"
#include "platform/convert/Convert.h"
#include "platform/convert/Format.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <string>

namespace quillmere::check {

namespace {

constexpr FindingKind unreadable{
    .id = "rule-unreadable",
    .level = Level::Warning,
    .title = "看不懂的检查规则",
    .effect = "规则没有空格，或者字母不是 A、B、L、N，系统当作没有规则：什么内容都能录入。",
    .remedy = "按“字母 空格 参数”写，例如“N 10,2”“A 100”“L 15,18”“B 1900,2100”；不要规则时留空。"};

constexpr FindingKind ignoredPart{.id = "rule-ignored-part",
                                  .level = Level::Warning,
                                  .title = "检查规则的后半部分不起作用",
                                  .effect = "规则只读到第二个空格为止，后面的参数没有任何提示就不算数。",
                                  .remedy = "参数之间只用逗号，不要加空格。"};

constexpr FindingKind raises{
    .id = "rule-raises",
    .title = "检查规则会出错",
    .effect = "规则缺少参数，或者长度不是数字：离开输入框时窗口关闭，保存时弹出“信息保存”的出错信息，记录存不"
              "进去。",
    .remedy = "补全参数，长度一律用数字；“B”规则用在 varchar 字段上时，FieldLength 也要是数字。"};

constexpr FindingKind notApplied{
    .id = "rule-not-applied",
    .level = Level::Warning,
    .title = "检查规则不起作用",
    .effect = "“B”规则只检查 varchar 字段和参数正好两个的 datetime 字段，这里什么也不检查。",
    .remedy = "改用“N”规则限制数字的长度，或者给日期字段写全上下限。"};

constexpr FindingKind neverPasses{
    .id = "rule-never-passes",
    .title = "什么内容都通不过检查规则",
    .effect = "上下限颠倒，或者允许的长度容不下一位整数：无论录入什么都会被拒绝，这个字段填不进去。",
    .remedy = "改正上下限或者长度。日期和四位年份的上限按今天之后五年算，下限不能比它还大。"};

constexpr const FindingKind* kinds[] = {&unreadable, &ignoredPart, &raises, &notApplied, &neverPasses};

/// Texts that between them lead to every argument of a rule.
std::vector<std::string> probes() {
    constexpr std::size_t longerThanAnyField = 200;
    return {"", "1", std::string(longerThanAnyField, '1')};
}

/// How the rule fails on one of the probes; empty when it does not.
std::string failureOf(const cFieldItem& item) {
    try {
        for (const std::string& probe : probes())
            (void)CheckInput(item, probe);
        return {};
    } catch (const Error& failure) {
        return failure.description();
    }
}

bool isApplied(const cFieldItem& item, const InputRule& rule) {
    constexpr std::size_t bounds = 2;
    if (rule.kind != RuleKind::Between) return true;
    const std::string type = text::lower(item.FieldType);
    return type == "varchar" || (type == "datetime" && rule.arguments.size() == bounds);
}

/// Texts of which a rule that lets anything pass lets one pass; none where nothing can be said.
std::vector<std::string> likelyTexts(const InputRule& rule) {
    switch (rule.kind) {
    case RuleKind::Between:
        return {rule.arguments[0], convert::format(clock::now(), "yyyy"),
                convert::format(clock::now(), "yyyy-mm-dd")};
    case RuleKind::Number:
    case RuleKind::AtMost:
        return {"1"};
    case RuleKind::Lengths:
    case RuleKind::None:
        break;
    }
    return {};
}

bool passesNothing(const cFieldItem& item, const InputRule& rule) {
    const auto texts = likelyTexts(rule);
    return !texts.empty() &&
           std::ranges::none_of(texts, [&](const auto& text) { return CheckInput(item, text).empty(); });
}

const FindingKind* faultOf(const cFieldItem& item) {
    const InputRule rule = parseInputRule(item.Check);
    if (rule.kind == RuleKind::None) return &unreadable;
    if (!isApplied(item, rule)) return &notApplied;
    if (!failureOf(item).empty()) return &raises;
    if (passesNothing(item, rule)) return &neverPasses;
    if (!rule.ignored.empty()) return &ignoredPart;
    return nullptr;
}

void run(const RegisterView& view, Report& report) {
    for (const FieldEntry& field : view.fields()) {
        if (!field.item || field.item->Check.empty()) continue;
        const cFieldItem& item = *field.item;
        // A length that is no number is told of as such.
        if (!item.FieldLength.empty() && !convert::isNumeric(item.FieldLength)) continue;
        const FindingKind* fault = faultOf(item);
        if (fault == nullptr) continue;
        const std::string failure = fault == &raises ? "，失败：" + failureOf(item) : std::string();
        report.add(*fault, fieldCatalogue, keyOf(field), "Check 是“" + item.Check + "”" + failure);
    }
}

} // namespace

CheckGroup ruleChecks() { return {kinds, run}; }

} // namespace quillmere::check
