#include "panels/FilterTable.h"
#include "panels/PanelBench.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace quillmere {
namespace {

/// The filtered widgets of every panel of projects, plans and reports.
const std::map<std::string, test::Filters, std::less<>> filtersByClass{
    {"P01", {{"P01_P0103_v", test::decimal}}},
    {"PP01",
     {{"P01_P0102_v", test::decimal},
      {"P01_P0103_v", test::decimal},
      {"P01_P0126_v", test::decimal},
      {"P01_P0127_v", test::decimal}}},
    {"PP01A",
     {{"P01_P0102_v", test::decimal},
      {"P01_P0103_v", test::decimal},
      {"P01_P0126_v", test::decimal},
      {"P01_P0127_v", test::decimal}}},
    {"JP01", {{"P01_P0102_v", test::decimal}, {"P01_P0103_v", test::decimal}}},
    {"P03", {{"P01_P0102_v", test::decimal}}},
    {"P04", {{"P04_P0404_v", test::decimal}}},
    {"P05", {{"P05_P0503_v", test::decimal}}},
    {"Plan2",
     {{"Plan2_Plan203_v", test::digits},
      {"Plan2_Plan204_v", test::decimal},
      {"Plan2_Plan205_v", test::decimal}}},
    {"Plan3",
     {{"Plan3_Plan303_v", test::digits},
      {"Plan3_Plan304_v", test::decimal},
      {"Plan3_Plan305_v", test::decimal}}},
    {"Plan4", {{"Plan4_Plan402_v", test::decimal}}},
    {"E02", {{"E02_E0203_v", test::decimal}}},
    {"F02", {{"F02_F0203_v", test::decimal}}},
    {"M02", {{"M02_M0203_v", test::decimal}}},
    {"N02", {{"N02_N0203_v", test::decimal}}},
    {"E05", {{"E05_E0501_v", test::decimal}, {"E05_E0502_v", test::decimal}}},
    {"M08", {{"M08_M0801_v", test::decimal}, {"M08_M0802_v", test::decimal}}},
    {"E07", {{"E07_E0705_v", test::decimal}}},
    {"F03", {{"F03_F0303_v", test::digits}, {"F03_F0304_v", test::decimal}, {"F03_F0305_v", test::decimal}}},
    {"F04", {{"F04_F0403_v", test::digits}, {"F04_F0404_v", test::decimal}, {"F04_F0405_v", test::decimal}}},
    {"F05", {{"F05_F0501_v", test::decimal}, {"F05_F0502_v", test::decimal}, {"F05_F0503_v", test::decimal}}},
    {"N03", {{"N03_N0301_v", test::decimal}, {"N03_N0302_v", test::decimal}, {"N03_N0303_v", test::decimal}}},
    {"M07", {{"M07_M0705_v", test::decimal}, {"M07_M0706_v", test::decimal}, {"M07_M0707_v", test::decimal}}},
};

std::string suffixOf(std::string_view className) {
    return std::string(className.substr(std::string_view("A1ctrlUser").size()));
}

bool isOfProjects(const std::string& suffix) {
    return std::string_view("ABG").find(suffix[0]) == std::string_view::npos;
}

TEST(ProjectPanelTest, TheseFieldsFilterKeysAndNoOthers) {
    std::size_t found = 0;
    for (const PanelRow& row : panelCatalogue()) {
        const std::string suffix = suffixOf(row.className);
        if (!isOfProjects(suffix)) continue;
        test::CreatedPanels panels;
        const auto expected = filtersByClass.find(suffix);
        if (expected != filtersByClass.end()) ++found;
        EXPECT_EQ(test::filtersOf(panels.create(row.className)),
                  expected == filtersByClass.end() ? test::Filters{} : expected->second)
            << suffix;
    }
    EXPECT_EQ(found, filtersByClass.size());
}

TEST(ProjectPanelTest, Plan5FiltersNoneOfItsSixAmounts) {
    test::CreatedPanels panels;
    const A1ctrlUser& panel = panels.create("A1ctrlUserPlan5");
    EXPECT_EQ(test::filtersOf(panel), test::Filters{});
    for (const char* code : {"Plan501", "Plan503", "Plan505", "Plan507", "Plan509", "Plan511"})
        EXPECT_EQ(panel.find("Plan5_" + std::string(code) + "_v")->kind(), ui::Kind::TextBox) << code;
}

/// The unit behind a widget: the label that follows it among the controls.
std::string unitBehind(const A1ctrlUser& panel, std::string_view name) {
    const auto& controls = panel.Controls();
    auto at = std::ranges::find_if(controls, [&](const auto& control) { return control->name() == name; });
    if (at == controls.end() || ++at == controls.end()) return {};
    return (*at)->property("Caption").value_or("");
}

TEST(ProjectPanelTest, AmountsOfPurchasesAreInYuanAndAllOthersInTenThousand) {
    for (const auto& [suffix, filters] : filtersByClass) {
        test::CreatedPanels panels;
        const A1ctrlUser& panel = panels.create("A1ctrlUser" + suffix);
        const bool purchase = suffix == "Plan2" || suffix == "Plan3" || suffix == "F03" || suffix == "F04";
        for (const auto& [name, accepted] : filters) {
            if (accepted != test::decimal) continue;
            EXPECT_EQ(unitBehind(panel, name), purchase ? "元" : "万元") << name;
        }
    }
}

class ProjectTypingTest : public testing::Test {
protected:
    A1ctrlUser& open(const char* name) {
        A1ctrlUser& panel = panels.create(name);
        panel.FieldItems = test::itemsOf(panel.row());
        panel.setCtrl(panel.FieldItems);
        return panel;
    }

    void type(const A1ctrlUser& panel, std::string_view name, std::string_view text) {
        panels.window.moveFocus(*panel.find(name));
        test::typeText(panels.window, text);
    }

    static std::string textOf(const A1ctrlUser& panel, std::string_view name) {
        return panel.find(name)->property("Text").value();
    }

    test::CreatedPanels panels;
};

TEST_F(ProjectTypingTest, LettersGoIntoTheGrantOnJP01AndNotOnPP01) {
    const A1ctrlUser& closing = open("A1ctrlUserJP01");
    const A1ctrlUser& plan = open("A1ctrlUserPP01");
    panels.person.show(panels.window, [&](ui::Form&) {
        type(closing, "P01_P0126_v", "1x.2");
        type(closing, "P01_P0127_v", "y");
        type(plan, "P01_P0126_v", "1x.2");
        type(plan, "P01_P0127_v", "y");
    });
    EXPECT_EQ(textOf(closing, "P01_P0126_v"), "1x.2");
    EXPECT_EQ(textOf(closing, "P01_P0127_v"), "y");
    EXPECT_EQ(textOf(plan, "P01_P0126_v"), "1.2");
    EXPECT_EQ(textOf(plan, "P01_P0127_v"), "");
}

TEST_F(ProjectTypingTest, QuantityTimesPriceFillsNoTotal) {
    const A1ctrlUser& panel = open("A1ctrlUserPlan2");
    panels.person.show(panels.window, [&](ui::Form&) {
        type(panel, "Plan2_Plan203_v", "3");
        type(panel, "Plan2_Plan204_v", "2.50");
        panels.window.moveFocus(*panel.find("Plan2_Plan206_v"));
    });
    EXPECT_EQ(textOf(panel, "Plan2_Plan205_v"), "");
}

TEST_F(ProjectTypingTest, TheTotalOfTheGrantIsTypedIn) {
    const A1ctrlUser& panel = open("A1ctrlUserF05");
    panels.person.show(panels.window, [&](ui::Form&) {
        type(panel, "F05_F0501_v", "30");
        type(panel, "F05_F0502_v", "10");
        panels.window.moveFocus(*panel.find("F05_F0504_v"));
    });
    EXPECT_EQ(textOf(panel, "F05_F0503_v"), "");
}

} // namespace
} // namespace quillmere
