#include "check/CheckGroup.h"
#include "check/FieldPlace.h"
#include "check/RegisterView.h"

#include "metadata/CheckInput.h"
#include "metadata/InputRule.h"
#include "platform/Error.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <string>

namespace quillmere::check {

namespace {

constexpr FindingKind withoutField{
    .id = "widget-without-field",
    .title = "输入框没有字段",
    .effect = "面板上有这个输入框，s_infoitem 中却没有它的字段，装入数据时失败：点击菜单项，窗口关闭。",
    .remedy = "在 s_infoitem 中登记这个字段，数据表中要有同名的列。",
    .failure = Failure::InvalidCall};

constexpr FindingKind withoutDescription{
    .id = "desc-empty",
    .level = Level::Warning,
    .title = "输入框的字段没有说明",
    .effect = "这个字段不出现在表格里；关于它的提示信息开头没有字段名，录入人员不知道说的是哪一项。",
    .remedy = "填写 ItemDesc。"};

constexpr FindingKind maskNotStored{.id = "mask-not-stored",
                                    .title = "掩码框里的内容不会保存",
                                    .effect = "面板上是年份或日期的掩码框，字段类型却是 int、ntext 或 "
                                              "bit：录入的内容没有任何提示就丢掉了，必填的检查照样通过。",
                                    .remedy = "年份字段用 varchar，长度 4；年月和日期字段用 datetime。"};

constexpr FindingKind dateOnYear{
    .id = "date-on-year-mask",
    .title = "日期字段放在年份框里",
    .effect = "四位年份不是完整的日期，无论录入什么都提示“录入数据不规范！”，不能保存。",
    .remedy = "把 FieldType 改成 varchar，长度 4。"};

constexpr FindingKind codedUnfit{
    .id = "coded-unfit",
    .title = "代码字段的类型或输入框不合适",
    .effect = "只有文本框上的 varchar 字段才保存代码：在这里保存的是代码的名称，或者根本选不了代码。",
    .remedy = "把 FieldType 改成 varchar；输入框不是文本框时，去掉 CodeTable。"};

constexpr FindingKind requiredOnCheckBox{.id = "required-on-checkbox",
                                         .level = Level::Warning,
                                         .title = "复选框的字段设为必填",
                                         .effect = "标题显示为粗体，但复选框总有值，必填从来不检查。",
                                         .remedy = "把 IsNUll 改为 true。"};

constexpr FindingKind requiredWithoutWidget{
    .id = "required-without-widget",
    .level = Level::Warning,
    .title = "必填字段没有输入框",
    .effect = "没有一个面板有它的输入框，录入人员填不了，系统也不检查；数据表要求非空时保存会失败。",
    .remedy = "把 IsNUll 改为 true，或者不再使用这个字段。"};

constexpr FindingKind ruleRequires{
    .id = "rule-requires",
    .level = Level::Note,
    .title = "检查规则使可空的字段变成必填",
    .effect = "字段允许为空，标题也不是粗体，但它的规则不接受空的内容：不填就存不进去。",
    .remedy = "“L”规则中加上长度 0，或者把 IsNUll 改为 false，让标题显示为粗体。"};

constexpr const FindingKind* kinds[] = {
    &withoutField, &withoutDescription, &maskNotStored,         &dateOnYear,
    &codedUnfit,   &requiredOnCheckBox, &requiredWithoutWidget, &ruleRequires};

/// What the system itself writes; no panel has to.
constexpr std::array<std::string_view, 8> writtenBySystem{"A0136", "A0137", "A0199", "B0124",
                                                          "B0199", "P0111", "P0120", "P0123"};

bool isMask(ValueWidget widget) {
    return widget == ValueWidget::Month || widget == ValueWidget::Day || widget == ValueWidget::Number;
}

bool isTextBox(ValueWidget widget) { return widget == ValueWidget::Text || widget == ValueWidget::LongText; }

bool isFaultless(const cFieldItem& item, std::string_view text) {
    try {
        return CheckInput(item, text).empty();
    } catch (const Error&) {
        // The rule checks tell of it.
        return true;
    }
}

void checkWidget(const FieldEntry& field, ValueWidget widget, Report& report) {
    const cFieldItem& item = *field.item;
    const std::string type = text::lower(item.FieldType);
    const auto add = [&](const FindingKind& kind) { report.add(kind, fieldCatalogue, keyOf(field)); };
    if (item.ItemDesc.empty()) add(withoutDescription);
    if (!item.CodeTable.empty()) {
        if (!isTextBox(widget) || type != "varchar") add(codedUnfit);
    } else if (isMask(widget) && (type == "int" || type == "ntext" || type == "bit")) {
        add(maskNotStored);
    } else if (widget == ValueWidget::Number && type == "datetime") {
        add(dateOnYear);
    }
    if (widget == ValueWidget::Check && !item.IsNUll) add(requiredOnCheckBox);
    if (isTextBox(widget) && item.IsNUll && !isFaultless(item, "")) add(ruleRequires);
}

/// The checks of one walk over the panels: a field that several panels show is looked at once for each
/// kind of widget.
class Walk {
public:
    Walk(const RegisterView& view, Report& report) : view_(view), report_(report) {}

    void visit(const PanelRow& panel) {
        if (view_.findSet(panel.widgetTable) == nullptr || view_.fieldsOf(panel.widgetTable).empty()) return;
        for (const FieldRow& row : panel.fields)
            visit(panel, row);
    }

    /// Fields that no widget shows, of the sets whose panels have been visited.
    void checkUnseen() {
        for (const FieldEntry& field : view_.fields()) {
            const std::string table = text::lower(field.table);
            if (!field.item || field.item->IsNUll || field.isKey() || !tables_.contains(table)) continue;
            const bool isWritten = std::ranges::find(writtenBySystem, field.name) != writtenBySystem.end();
            if (!isWritten && !shown_.contains(table + "_" + text::lower(field.name)))
                report_.add(requiredWithoutWidget, fieldCatalogue, keyOf(field));
        }
    }

private:
    void visit(const PanelRow& panel, const FieldRow& row) {
        const std::string table = text::lower(panel.widgetTable);
        const std::string key = table + "_" + text::lower(row.code);
        tables_.insert(table);
        shown_.insert(key);
        if (!seen_[key].insert(row.widget).second) return;
        const FieldEntry* field = view_.findField(panel.widgetTable, row.code);
        if (field == nullptr) {
            report_.add(withoutField, fieldCatalogue,
                        {{"TblName", std::string(panel.widgetTable)}, {"ItemName", std::string(row.code)}},
                        "面板 " + std::string(panel.className) + " 上的“" + std::string(row.caption) + "”");
        } else if (field->item) {
            checkWidget(*field, row.widget, report_);
        }
    }

    const RegisterView& view_;
    Report& report_;
    std::set<std::string> tables_;
    std::set<std::string> shown_;
    std::map<std::string, std::set<ValueWidget>> seen_;
};

void run(const RegisterView& view, Report& report) {
    Walk walk(view, report);
    for (const PanelRow& panel : panelCatalogue())
        walk.visit(panel);
    walk.checkUnseen();
}

} // namespace

CheckGroup widgetChecks() { return {kinds, run}; }

} // namespace quillmere::check
