#include "check/CheckGroup.h"
#include "check/FieldPlace.h"
#include "check/RegisterView.h"
#include "check/RequiredColumns.h"

#include "metadata/cFieldItems.h"
#include "platform/Error.h"
#include "platform/convert/Convert.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <array>
#include <map>
#include <string>

namespace quillmere::check {

namespace {

constexpr FindingKind duplicate{
    .id = "field-duplicate",
    .title = "字段重复",
    .effect = "同一个信息集里登记了两个同名字段，装入字段时失败：点击它的菜单项，窗口关闭。",
    .remedy = "删去 s_infoitem 中多余的一行。",
    .failure = Failure::KeyAlreadyUsed};

constexpr FindingKind withoutColumn{
    .id = "field-without-column",
    .title = "字段没有对应的列",
    .effect = "读取已有的记录时找不到这一列；字段带说明时，多记录信息集的表格查询也失败。点击它的菜单项，窗口"
              "关闭。",
    .remedy = "给数据表补上这一列，或者删去 s_infoitem 中的这一行；ItemName 为空的行应当删去。",
    .failure = Failure::ItemNotFound};

constexpr FindingKind ofNoSet{.id = "field-of-no-set",
                              .level = Level::Note,
                              .title = "字段不属于任何信息集",
                              .effect = "s_infotable 中没有它的信息集，这一行永远不会被读到。",
                              .remedy = "改正 TblName，或者删去这一行。"};

constexpr FindingKind unreadable{
    .id = "field-unreadable",
    .title = "字段的列宽或必填标志读不出来",
    .effect = "FldWidth 不是 16 位整数，或者 IsNUll 不是真假值，装入字段时失败：点击它的菜单项，窗口关闭。",
    .remedy = "FldWidth 填 -32768 到 32767 之间的数，或者留空（按 2000 算）；IsNUll 填 true、false "
              "或者留空（可以不填）。"};

constexpr FindingKind typeUnknown{
    .id = "type-unknown",
    .title = "不认识的字段类型",
    .effect = "保存时跳过这个字段：录入的内容没有任何提示就丢掉了，“B”规则也不起作用。",
    .remedy = "FieldType 改成 varchar、int、datetime、ntext、bit 之一，大小写不限。"};

constexpr FindingKind lengthNotNumber{
    .id = "length-not-number",
    .title = "字段长度不是数字",
    .effect = "类型写成 Varchar 或 Ntext 的文本框，装入数据时失败，窗口关闭；带“B”规则的字段，检查时失败。",
    .remedy = "FieldLength 填数字；不限长度时留空。",
    .failure = Failure::TypeMismatch};

constexpr FindingKind orderNull{.id = "field-order-null",
                                .level = Level::Warning,
                                .title = "字段没有次序",
                                .effect = "这个字段在表格里排在最左还是最右，由数据库决定。",
                                .remedy = "在 FldOrder 中填写一个在本信息集里不重复的数。"};

constexpr FindingKind orderTie{.id = "field-order-tie",
                               .level = Level::Warning,
                               .title = "字段的次序相同",
                               .effect = "FldOrder 相同的字段，在表格里谁左谁右由数据库决定，可能随时改变。",
                               .remedy = "把 FldOrder 改成在本信息集里不重复的数。"};

constexpr const FindingKind* kinds[] = {&duplicate,   &withoutColumn,   &ofNoSet,   &unreadable,
                                        &typeUnknown, &lengthNotNumber, &orderNull, &orderTie};

constexpr std::array<std::string_view, 5> types{"varchar", "int", "datetime", "ntext", "bit"};

void checkDuplicates(const std::vector<const FieldEntry*>& fields, Report& report) {
    cFieldItems loaded;
    for (const FieldEntry* field : fields) {
        try {
            loaded.Add(std::make_shared<cFieldItem>(), field->table + "_" + field->name);
        } catch (const Error&) {
            report.add(duplicate, fieldCatalogue, keyOf(*field));
        }
    }
}

void checkOrders(const std::vector<const FieldEntry*>& fields, Report& report) {
    std::map<std::string, std::string> firstAt;
    for (const FieldEntry* field : fields) {
        if (field->order.isNull()) {
            report.add(orderNull, fieldCatalogue, keyOf(*field));
            continue;
        }
        const auto [place, isNew] = firstAt.try_emplace(field->order.toText(), field->name);
        // A field that is there twice is told of as such.
        if (!isNew && !text::equalsNoCase(place->second, field->name)) {
            report.add(orderTie, fieldCatalogue, keyOf(*field),
                       "FldOrder 和 " + place->second + " 一样是 " + place->first);
        }
    }
}

/// The structure checks tell of columns that the system itself needs.
bool isRequired(const SetEntry& set, const std::string& column) {
    if (text::equalsNoCase(column, "A00")) return true;
    if (set.isMultiple() && text::equalsNoCase(column, set.sequenceField())) return true;
    return std::ranges::any_of(dataColumns(), [&](const RequiredColumns& required) {
        return text::equalsNoCase(required.table, set.name) &&
               std::ranges::any_of(required.columns,
                                   [&](auto each) { return text::equalsNoCase(each, column); });
    });
}

bool isLength(const std::string& text) {
    try {
        if (!text.empty()) (void)convert::toLong(text);
        return true;
    } catch (const Error&) {
        return false;
    }
}

void checkField(const RegisterView& view, const SetEntry& set, const FieldEntry& field, Report& report) {
    if (view.hasTable(set.name) && !view.hasColumn(set.name, field.name) && !isRequired(set, field.name))
        report.add(withoutColumn, fieldCatalogue, keyOf(field));
    if (!field.item) {
        report.add(unreadable, fieldCatalogue, keyOf(field), field.failure);
        return;
    }
    const cFieldItem& item = *field.item;
    const bool isKnown = std::ranges::find(types, text::lower(item.FieldType)) != types.end();
    if (!isKnown && !field.isKey())
        report.add(typeUnknown, fieldCatalogue, keyOf(field), "FieldType 是“" + item.FieldType + "”");
    if (!isLength(item.FieldLength))
        report.add(lengthNotNumber, fieldCatalogue, keyOf(field), "FieldLength 是“" + item.FieldLength + "”");
}

void run(const RegisterView& view, Report& report) {
    for (const SetEntry& set : view.sets()) {
        const auto fields = view.fieldsOf(set.name);
        checkDuplicates(fields, report);
        checkOrders(fields, report);
        for (const FieldEntry* field : fields)
            checkField(view, set, *field, report);
    }
    for (const FieldEntry& field : view.fields())
        if (view.findSet(field.table) == nullptr) report.add(ofNoSet, fieldCatalogue, keyOf(field));
}

} // namespace

CheckGroup fieldChecks() { return {kinds, run}; }

} // namespace quillmere::check
