#include "check/CheckGroup.h"
#include "check/RegisterView.h"

#include "platform/Error.h"

#include <map>
#include <string>

namespace quillmere::check {

namespace {

constexpr std::string_view catalogue = "s_infotable";

constexpr FindingKind propertyNull{
    .id = "set-property-null",
    .title = "Property 为空",
    .effect = "不知道这个信息集是单记录还是多记录，点击它的菜单项会失败，窗口随之关闭。",
    .remedy = "把 Property 填为 true（单记录）或 false（多记录）。",
    .failure = Failure::InvalidUseOfNull};

constexpr FindingKind orderNull{.id = "set-order-null",
                                .level = Level::Warning,
                                .title = "信息集没有菜单次序",
                                .effect = "这个信息集排在菜单的最前还是最后，由数据库决定。",
                                .remedy = "在 OtherProp 中填写一个不重复的数。"};

constexpr FindingKind orderTie{.id = "set-order-tie",
                               .level = Level::Warning,
                               .title = "信息集的菜单次序相同",
                               .effect =
                                   "OtherProp 相同的信息集，在菜单中谁先谁后由数据库决定，可能随时改变。",
                               .remedy = "把 OtherProp 改成不重复的数。"};

constexpr FindingKind withoutCaption{.id = "set-without-caption",
                                     .level = Level::Warning,
                                     .title = "信息集没有名称",
                                     .effect = "菜单中出现一个没有文字的项目。",
                                     .remedy = "在 tbldesc 中填写信息集的名称。"};

constexpr FindingKind withoutFields{
    .id = "set-without-fields",
    .title = "信息集没有一个字段",
    .effect = "s_infoitem 中没有它的行：面板上的输入框都找不到字段，点击它的菜单项会失败，窗口随之关闭。",
    .remedy = "在 s_infoitem 中登记它的字段。"};

constexpr FindingKind limitOverflow{.id = "set-limit-overflow",
                                    .title = "记录数上限超出 16 位整数",
                                    .effect = "按“增加”时读取上限失败，窗口关闭。",
                                    .remedy = "maxnumber 最多填 32767；不限时留空或填 0。",
                                    .failure = Failure::Overflow};

constexpr FindingKind orderFieldInvalid{
    .id = "orderfield-invalid",
    .title = "记录的排序表达式不能执行",
    .effect = "表格的查询失败，信息集打不开；保存后重新编号也会失败，记录的序号停留在加过 200 的值上。",
    .remedy = "orderfield 只写本表的列名，用逗号隔开；留空时按 <表名>99 排序。",
    .failure = Failure::StatementFailed};

constexpr FindingKind sequenceUndescribed{
    .id = "sequence-undescribed",
    .title = "多记录信息集的序号字段没有说明",
    .effect = "表格的行和记录联系不起来：无论点到哪一行，输入框里都是空的，已有的记录不能修改。",
    .remedy = "在 s_infoitem 中登记 <表名>99，并填写 ItemDesc，例如“序号”。"};

constexpr const FindingKind* kinds[] = {&propertyNull,      &orderNull,          &orderTie,
                                        &withoutCaption,    &withoutFields,      &limitOverflow,
                                        &orderFieldInvalid, &sequenceUndescribed};

std::vector<Key> keyOf(const SetEntry& set) { return {{"tblname", set.name}}; }

void add(Report& report, const FindingKind& kind, const SetEntry& set, std::string detail = {}) {
    report.add(kind, std::string(catalogue), keyOf(set), std::move(detail));
}

void checkOrders(const RegisterView& view, Report& report) {
    std::map<std::string, std::string> firstAt;
    for (const SetEntry& set : view.sets()) {
        if (set.order.isNull()) {
            add(report, orderNull, set);
            continue;
        }
        const auto [place, isNew] = firstAt.try_emplace(set.order.toText(), set.name);
        if (!isNew) add(report, orderTie, set, "OtherProp 和 " + place->second + " 一样是 " + place->first);
    }
}

bool overflows(const data::Value& limit) {
    try {
        if (!limit.isNull()) (void)limit.toInteger16();
        return false;
    } catch (const Error&) {
        return true;
    }
}

bool canOrderBy(const RegisterView& view, const SetEntry& set) {
    try {
        (void)view.connection().query("select * from " + set.name + " where 1=0 order by " + set.orderField);
        return true;
    } catch (const Error&) {
        return false;
    }
}

void checkSequence(const RegisterView& view, const SetEntry& set, Report& report) {
    const FieldEntry* sequence = view.findField(set.name, set.sequenceField());
    const bool described = sequence != nullptr && sequence->item && !sequence->item->ItemDesc.empty();
    if (!described) add(report, sequenceUndescribed, set);
}

void checkSet(const RegisterView& view, const SetEntry& set, Report& report) {
    if (!set.isSingle) add(report, propertyNull, set);
    if (set.caption.empty()) add(report, withoutCaption, set);
    const bool hasFields = !view.fieldsOf(set.name).empty();
    if (ownPanel(set) != nullptr && !hasFields) add(report, withoutFields, set);
    if (!set.isMultiple()) return;
    if (overflows(set.limit)) add(report, limitOverflow, set, "maxnumber 是 " + set.limit.toText());
    if (!set.orderField.empty() && view.hasTable(set.name) && !canOrderBy(view, set))
        add(report, orderFieldInvalid, set, "orderfield 是“" + set.orderField + "”");
    if (showsGrid(set) && hasFields) checkSequence(view, set, report);
}

void run(const RegisterView& view, Report& report) {
    checkOrders(view, report);
    for (const SetEntry& set : view.sets())
        checkSet(view, set, report);
}

} // namespace

CheckGroup setChecks() { return {kinds, run}; }

} // namespace quillmere::check
