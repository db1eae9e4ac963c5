#pragma once

#include "platform/ui/VerticalMenu.h"

#include <string>
#include <vector>

namespace quillmere::test {

/// "<key> <caption>" of each item of a group, counted from 1.
[[nodiscard]] inline std::vector<std::string> itemsOf(const ui::VerticalMenu& menu, int group) {
    std::vector<std::string> items;
    for (const auto& item : menu.groups().at(static_cast<std::size_t>(group) - 1).items)
        items.push_back(item.key + " " + item.caption);
    return items;
}

/// The keys alone.
[[nodiscard]] inline std::vector<std::string> keysOf(const ui::VerticalMenu& menu, int group) {
    std::vector<std::string> keys;
    for (const auto& item : menu.groups().at(static_cast<std::size_t>(group) - 1).items)
        keys.push_back(item.key);
    return keys;
}

using Items = std::vector<std::string>;

/// The five groups, with placeholders in them.
inline void addGroups(ui::VerticalMenu& menu) {
    for (const char* caption : {"基本信息", "项目信息", "计划信息", "进展信息", "结题信息"})
        menu.addGroup(caption, 20);
}

} // namespace quillmere::test
