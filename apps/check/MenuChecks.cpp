#include "check/CheckGroup.h"
#include "check/RegisterView.h"

#include "platform/text/Text.h"
#include "shell/MenuComposition.h"

#include <algorithm>
#include <array>
#include <map>
#include <string>

namespace quillmere::check {

namespace {

constexpr FindingKind rowMissing{
    .id = "menu-row-missing",
    .title = "资助类型没有菜单",
    .effect = "TS_SetCustomize "
              "中没有这个资助类型的一行：这个类型的窗口打不开。缺少的是计划菜单读取的行（01、02、06）时，"
              "还会在计划组里重复出现项目组的项目。",
    .remedy = "给 01 到 07 各登记一行。",
    .failure = Failure::StatementFailed};

constexpr FindingKind listEmpty{
    .id = "menu-list-empty",
    .title = "菜单列表为空",
    .effect = "空的列表使菜单的查询失败，空值（Null）读取时就失败：这个资助类型的窗口打不开。",
    .remedy = "在列表中至少写一个信息集。"};

constexpr FindingKind listBlank{
    .id = "menu-list-blank",
    .level = Level::Warning,
    .title = "菜单列表里有空格",
    .effect = "带空格的名称和 s_infotable 中的任何一行都对不上，这个信息集没有任何提示就不出现在菜单里。",
    .remedy = "逗号前后不要加空格。"};

constexpr FindingKind listUnknown{.id = "menu-list-unknown",
                                  .level = Level::Warning,
                                  .title = "菜单列表里有不存在的信息集",
                                  .effect = "s_infotable 中没有这个名称，菜单里没有任何提示就少了这一项。",
                                  .remedy = "改正名称，或者在 s_infotable 中登记这个信息集。"};

constexpr FindingKind settingMissing{
    .id = "setting-missing",
    .level = Level::Warning,
    .title = "没有设定资助类型和年度",
    .effect = "ZZStyle 中没有行，或者年度为空：新建人员或单位时没有任何提示就按类型 1 "
              "办理，年度沿用上一次的，或者为空。",
    .remedy = "在 ZZStyle 中登记一行，写明 ZZType 和 ZZYear。"};

constexpr FindingKind settingUnknown{.id = "setting-unknown-type",
                                     .level = Level::Warning,
                                     .title = "设定的资助类型不存在",
                                     .effect =
                                         "ZZType 不是 1 到 7：新建人员或单位时没有任何提示就按类型 1 办理。",
                                     .remedy = "把 ZZType 改为 1 到 7 之间的一位数字。"};

constexpr const FindingKind* kinds[] = {&rowMissing,  &listEmpty,      &listBlank,
                                        &listUnknown, &settingMissing, &settingUnknown};

constexpr std::string_view menuTable = "TS_SetCustomize";
constexpr std::int32_t lastType = 7;

void checkName(const RegisterView& view, const std::string& name, const std::vector<Key>& place,
               Report& report) {
    if (view.findSet(name) != nullptr) return;
    const bool isBlank = view.findSet(text::trim(name)) != nullptr;
    report.add(isBlank ? listBlank : listUnknown, std::string(menuTable), place, "“" + name + "”");
}

void checkList(const RegisterView& view, const std::string& code, std::string_view column,
               const data::Value& list, Report& report) {
    const std::vector<Key> place{{"DmCod", code}, {"column", std::string(column)}};
    const std::string names = list.toTextOrEmpty();
    if (names.empty()) report.add(listEmpty, std::string(menuTable), place, list.isNull() ? "Null" : "");
    for (const std::string& name : text::split(names, ","))
        checkName(view, name, place, report);
}

/// The rows of TS_SetCustomize that menus read, and of each the groups that read it.
std::map<std::int32_t, std::vector<int>> readersOfRows() {
    std::map<std::int32_t, std::vector<int>> readers;
    for (std::int32_t type = 1; type <= lastType; ++type) {
        for (int group = 1; group <= static_cast<int>(customisedColumns().size()); ++group) {
            auto& groups = readers[customisingType(group, type)];
            if (std::ranges::find(groups, group) == groups.end()) groups.push_back(group);
        }
    }
    return readers;
}

void checkSetting(data::Connection& connection, Report& report) {
    constexpr std::array<std::string_view, 7> types{"1", "2", "3", "4", "5", "6", "7"};
    const data::RowSet rows = connection.query("select * from ZZStyle");
    if (rows.empty() || rows.at(0, "ZZYear").isNull()) {
        report.add(settingMissing, "ZZStyle", {});
        return;
    }
    const std::string type = rows.at(0, "ZZType").toTextOrEmpty();
    if (std::ranges::find(types, type) == types.end())
        report.add(settingUnknown, "ZZStyle", {{"ZZType", type}});
}

void run(const RegisterView& view, Report& report) {
    for (const auto& [type, groups] : readersOfRows()) {
        const std::string code = "0" + std::to_string(type);
        const data::RowSet row =
            view.connection().query("select * from TS_SetCustomize where DmCod='" + code + "'");
        if (row.empty()) {
            report.add(rowMissing, std::string(menuTable), {{"DmCod", code}});
            continue;
        }
        for (const int group : groups) {
            const std::string_view column = customisedColumns()[static_cast<std::size_t>(group) - 1];
            checkList(view, code, column, row.at(0, column), report);
        }
    }
    checkSetting(view.connection(), report);
}

} // namespace

CheckGroup menuChecks() { return {kinds, run}; }

} // namespace quillmere::check
