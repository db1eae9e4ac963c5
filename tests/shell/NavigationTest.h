#pragma once

#include "platform/data/ObservedConnections.h"
#include "shell/RegisterTest.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::test {

/// A stored person, and clicks on the menu.
class NavigationTest : public RegisterTest {
protected:
    explicit NavigationTest(std::string_view stage = "01") { addPerson(somePerson, "秦志明", stage); }

    /// A run that maintains everything; the work begins with the person's item on show.
    void maintain(const std::function<void(frmPersonWh& shown)>& work, std::int16_t zzType = 2) {
        run(4, id, zzType, work);
    }

    /// Clicks the first item of a group that has this key.
    static void click(frmPersonWh& shown, int group, std::string_view key) {
        const auto& items = shown.menu().groups().at(static_cast<std::size_t>(group) - 1).items;
        const auto found = std::ranges::find(items, key, &ui::VerticalMenu::Item::key);
        ASSERT_NE(found, items.end()) << key;
        ASSERT_TRUE(shown.menu().clickItem(group, static_cast<int>(found - items.begin()) + 1));
    }

    /// Gives the first item of a group another key and caption, and clicks it.
    static void clickAs(frmPersonWh& shown, int group, std::string_view key, std::string_view caption) {
        ui::VerticalMenu& menu = shown.menu();
        const int addressedGroup = menu.AddressedGroup();
        const int addressedItem = menu.AddressedItem();
        menu.setAddressedGroup(group);
        menu.setAddressedItem(1);
        menu.setItemKey(std::string(key));
        menu.setItemCaption(std::string(caption));
        menu.setAddressedGroup(addressedGroup);
        menu.setAddressedItem(addressedItem);
        ASSERT_TRUE(menu.clickItem(group, 1));
    }

    /// "<group>.<item>": where the menu stands.
    [[nodiscard]] static std::string position(const frmPersonWh& shown) {
        return std::to_string(shown.menu().AddressedGroup()) + "." +
               std::to_string(shown.menu().AddressedItem());
    }

    /// A row of a table for the person, numbered 1 where the set holds several.
    void addRow(const std::string& table) {
        const bool single =
            database.cell("select Property from s_infotable where tblname='" + table + "'") == "True";
        database.run(single ? "insert into " + table + " (A00) values ('" + id + "')"
                            : "insert into " + table + " (A00," + table + "99) values ('" + id + "',1)");
    }

    const std::string id{somePerson};
    const std::string gateQuestion{"必须先维护基本信息集，然后再维护其它信息集。"};
    const std::string editsQuestion{"数据被修改且未保存，是否保存？"};
    const std::string windowCaption{"信息维护"};
};

} // namespace quillmere::test
