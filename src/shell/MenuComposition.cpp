#include "shell/MenuComposition.h"

#include "metadata/Catalogue.h"
#include "platform/text/Text.h"
#include "platform/ui/VerticalMenu.h"

#include <array>
#include <string>
#include <string_view>

namespace quillmere {

namespace {

constexpr std::int32_t collectiveType = 6;

/// A group whose items are customised: the column that lists them, by group.
constexpr std::array<std::string_view, 3> listColumns{"PersonItem", "ProjectItem", "PlanItem"};

/// A group that takes every table of a letter: the letter for collective projects and for others.
struct LetterGroup {
    int group;
    std::string_view collective;
    std::string_view other;
};

constexpr std::array letterGroups{
    LetterGroup{4, "SELECT * FROM s_infotable where tblname like 'M%' order by otherprop",
                "SELECT * FROM s_infotable where tblname like 'E%' order by otherprop"},
    LetterGroup{5, "SELECT * FROM s_infotable where tblname like 'N%' or tblname='P01' order by otherprop",
                "SELECT * FROM s_infotable where tblname like 'F%' or tblname='P01' order by otherprop"},
};

/// "'A01','A02'" from "A01,A02"; nothing is trimmed.
std::string quotedList(const std::string& names) {
    std::string list;
    for (const std::string& name : text::split(names, ",")) {
        if (!list.empty()) list += ",";
        list += "'" + name + "'";
    }
    return list;
}

void fillGroup(ui::VerticalMenu& menu, int group, std::string_view itemSql, std::int32_t zzType) {
    constexpr int projectGroup = 2;
    const auto rows = OpenRecordset(itemSql, 2);
    menu.setAddressedGroup(group);
    menu.setItemCount(static_cast<std::size_t>(rows->RecordCount()));
    for (int item = 1; !rows->EOF_(); ++item, rows->MoveNext()) {
        const std::string table = rows->Fields("tblname").toText();
        menu.setAddressedItem(item);
        menu.setItemCaption(rows->Fields("tbldesc").toTextOrEmpty());
        menu.setItemKey(group == projectGroup ? projectKey(table, zzType) : table);
    }
    rows->close();
}

/// The item query of a customised group. `list` is one text for all groups and is not cleared
/// between them: a group without a customising row shows the list of the group before it.
std::string customisedItems(int group, std::int32_t zzType, std::string& list) {
    const std::int32_t type = customisingType(group, zzType);
    if (type < 1 || type > 7) return {};
    const auto rows =
        OpenRecordset("select * from TS_SetCustomize where DmCod='0" + std::to_string(type) + "'", 2);
    if (!rows->EOF_()) {
        list = quotedList(rows->Fields(listColumns[static_cast<std::size_t>(group) - 1]).toText());
    }
    rows->close();
    return "SELECT * FROM s_infotable where tblname in (" + list + ") order by otherprop";
}

} // namespace

std::span<const std::string_view> customisedColumns() { return listColumns; }

std::int32_t customisingType(int group, std::int32_t zzType) {
    constexpr int planGroup = 3;
    if (group != planGroup || zzType == 1 || zzType == collectiveType) return zzType;
    return 2;
}

std::string projectKey(const std::string& table, std::int32_t zzType) {
    const bool schedule = table == "P02" && (zzType == 4 || zzType == 7);
    return table == "P03" || table == "C04" || schedule ? "P01" : table;
}

void composeMenu(ui::VerticalMenu& menu, std::int32_t zzType) {
    std::string list;
    for (int group = 1; group <= static_cast<int>(listColumns.size()); ++group) {
        fillGroup(menu, group, customisedItems(group, zzType, list), zzType);
    }
    for (const LetterGroup& letters : letterGroups) {
        fillGroup(menu, letters.group, zzType == collectiveType ? letters.collective : letters.other, zzType);
    }
}

} // namespace quillmere
