#include "SampleDatabase.h"

#include "panels/PanelCatalogue.h"
#include "platform/text/Text.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace quillmere::sample {
namespace {

using test::defaultRegister;
using test::textRows;

/// An item of the menu as the window composes it.
struct Item {
    int group;
    std::string key;
    std::string caption;
};

constexpr int projectGroup = 2;
constexpr int planGroup = 3;
constexpr int closingGroup = 5;

/// What a type's menu lists in one group. In the project group three sets hide behind the key of the
/// project, and the caption alone tells them apart.
void addItems(std::vector<Item>& items, int type, int group, const std::string& condition) {
    for (const auto& row :
         textRows(defaultRegister(), "SELECT tblname, tbldesc FROM s_infotable where " + condition)) {
        const bool editor =
            row[0] == "P03" || row[0] == "C04" || (row[0] == "P02" && (type == 4 || type == 7));
        items.push_back({group, group == projectGroup && editor ? "P01" : row[0], row[1]});
    }
}

std::string listed(int type, const std::string& column) {
    const std::string list =
        textRows(defaultRegister(),
                 "select " + column + " from TS_SetCustomize where DmCod='0" + std::to_string(type) + "'")
            .at(0)
            .at(0);
    return "tblname in ('" + text::replaceAll(list, ",", "','") + "')";
}

std::vector<Item> menuOf(int type) {
    const bool collective = type == 6;
    std::vector<Item> items;
    addItems(items, type, 1, listed(type, "PersonItem"));
    addItems(items, type, projectGroup, listed(type, "ProjectItem"));
    addItems(items, type, planGroup, listed(type == 1 || collective ? type : 2, "PlanItem"));
    addItems(items, type, 4, collective ? "tblname like 'M%'" : "tblname like 'E%'");
    addItems(items, type, closingGroup,
             collective ? "tblname like 'N%' or tblname='P01'" : "tblname like 'F%' or tblname='P01'");
    return items;
}

/// The panel behind an item, by group, key and caption.
std::string panelOf(const Item& item, int type) {
    if (item.key == "A01" && type == 7) return "G01";
    if (item.key != "P01") return item.key;
    if (item.group == planGroup) return type == 1 ? "PP01A" : "PP01";
    if (item.group == closingGroup) return "JP01";
    if (item.caption == "项目工作进度计划") return "P02_DG";
    if (item.caption == "经费使用安排" || item.caption == "项目总体经费使用…")
        return type == 6 ? "C04" : "P03";
    return "P01";
}

/// The panels that some type's menu opens, in small letters.
std::set<std::string> reachedPanels() {
    std::set<std::string> reached;
    for (int type = 1; type <= 7; ++type) {
        for (const Item& item : menuOf(type))
            reached.insert(text::lower("A1ctrlUser" + panelOf(item, type)));
    }
    return reached;
}

TEST(SampleReach, EveryPanelOpensInAtLeastOneType) {
    const auto reached = reachedPanels();
    EXPECT_EQ(panelCatalogue().size(), 73U);
    for (const PanelRow& panel : panelCatalogue())
        EXPECT_TRUE(reached.contains(text::lower(panel.className))) << panel.className;
}

TEST(SampleReach, EveryItemOpensAPanel) {
    for (const std::string& panel : reachedPanels())
        EXPECT_NE(findPanel(panel), nullptr) << panel;
}

TEST(SampleReach, EveryPanelHasARecordToShow) {
    for (const PanelRow& panel : panelCatalogue()) {
        const std::string table(panel.widgetTable);
        EXPECT_GT(test::countOf(defaultRegister(), "select count(*) from " + table), 0) << table;
    }
}

} // namespace
} // namespace quillmere::sample
