#include "panels/StartUp.h"

#include "panels/FilterTable.h"
#include "support/FailureNumber.h"

#include "platform/ui/Label.h"
#include "platform/ui/UserControl.h"

#include <gtest/gtest.h>

#include <ostream>
#include <set>

namespace quillmere {
namespace {

using Names = std::set<std::string>;

/// What of the fields, their captions and the numbered labels does not show.
Names hiddenOn(const A1ctrlUser& panel) {
    Names names;
    for (const auto& control : panel.Controls()) {
        const bool counts = isValueWidget(control->name()) || isCaptionWidget(control->name()) ||
                            control->kind() == ui::Kind::Label;
        if (counts && !control->Visible()) names.insert(control->name());
    }
    return names;
}

Names withCaptions(const std::vector<std::string>& fields, const Names& labels = {}) {
    Names names = labels;
    for (const std::string& field : fields) {
        names.insert("P01_" + field + "_v");
        names.insert("P01_" + field + "_c");
    }
    return names;
}

struct Row {
    const char* className;
    /// What is hidden under the types 1 to 7.
    std::array<Names, 7> hidden;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.className; }

const Names nothing;
const Names p01Dates = withCaptions({"P0106", "P0107", "P0103"}, {"Label2"});
const Names p01Group = withCaptions({"P0112", "P0103"}, {"Label2"});
const Names dates = withCaptions({"P0106", "P0107"});
const Names group = withCaptions({"P0112"});
const Names gap = withCaptions({"P0104"});
const Names gapAndDates = withCaptions({"P0104", "P0106", "P0107"});
const Names totalAndGap = withCaptions({"P0103", "P0104"}, {"Label3"});

class StartUpTable : public testing::TestWithParam<Row> {};

TEST_P(StartUpTable, HidesTheseWidgetsUnderEachType) {
    for (std::int32_t type = 1; type <= 7; ++type) {
        test::CreatedPanels panels;
        const A1ctrlUser& panel = panels.create(GetParam().className, type);
        EXPECT_EQ(hiddenOn(panel), GetParam().hidden[static_cast<std::size_t>(type - 1)]) << type;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Panels, StartUpTable,
    testing::Values(Row{"A1ctrlUserP01", {nothing, nothing, nothing, p01Dates, p01Dates, p01Group, p01Group}},
                    Row{"A1ctrlUserPP01", {nothing, nothing, nothing, nothing, dates, group, group}},
                    Row{"A1ctrlUserPP01A", {}}, //
                    Row{"A1ctrlUserJP01", {gap, gap, gap, nothing, gapAndDates, group, group}},
                    Row{"A1ctrlUserP03",
                        {totalAndGap, totalAndGap, totalAndGap, nothing, gap, nothing, nothing}},
                    Row{"A1ctrlUserP06", {}}, Row{"A1ctrlUserC04", {}}, Row{"A1ctrlUserP02_DG", {}}),
    [](const auto& row) { return std::string(row.param.className); });

TEST(StartUpTest, TheOtherPanelsHideNothingUnderAnyType) {
    const std::set<std::string_view> adapting{"A1ctrlUserP01", "A1ctrlUserPP01", "A1ctrlUserJP01",
                                              "A1ctrlUserP03"};
    for (const PanelRow& row : panelCatalogue()) {
        if (adapting.contains(row.className)) continue;
        for (std::int32_t type = 0; type <= 8; ++type) {
            test::CreatedPanels panels;
            EXPECT_EQ(hiddenOn(panels.create(row.className, type)), nothing) << row.className << type;
        }
    }
}

TEST(StartUpTest, ATypeThatIsNoneHidesNothing) {
    for (const std::int32_t type : {-1, 0, 8, 33, 36, 68}) {
        for (const char* name : {"A1ctrlUserP01", "A1ctrlUserPP01", "A1ctrlUserJP01", "A1ctrlUserP03"}) {
            test::CreatedPanels panels;
            EXPECT_EQ(hiddenOn(panels.create(name, type)), nothing) << name << type;
        }
    }
}

TEST(StartUpTest, TypeSixOnP01HidesTotalAndGroupAndShowsTheProjectDates) {
    test::CreatedPanels panels;
    const A1ctrlUser& panel = panels.create("A1ctrlUserP01", 6);
    for (const char* name : {"P01_P0103_v", "P01_P0103_c", "Label2", "P01_P0112_v", "P01_P0112_c"})
        EXPECT_FALSE(panel.find(name)->Visible()) << name;
    for (const char* name : {"P01_P0106_v", "P01_P0106_c", "P01_P0107_v", "P01_P0107_c", "P01_P0109_v"})
        EXPECT_TRUE(panel.find(name)->Visible()) << name;
}

TEST(StartUpTest, TypeFiveOnJP01HidesGapAndBothDates) {
    test::CreatedPanels panels;
    const A1ctrlUser& panel = panels.create("A1ctrlUserJP01", 5);
    EXPECT_EQ(hiddenOn(panel), gapAndDates);
}

TEST(StartUpTest, AHiddenWidgetKeepsItsPlaceAmongTheControls) {
    test::CreatedPanels panels;
    const A1ctrlUser& open = panels.create("A1ctrlUserP01", 1);
    const A1ctrlUser& adapted = panels.create("A1ctrlUserP01", 6);
    ASSERT_EQ(adapted.Count(), open.Count());
    for (std::size_t i = 0; i < open.Count(); ++i) {
        EXPECT_EQ(adapted.Controls(i).name(), open.Controls(i).name());
        EXPECT_EQ(adapted.Controls(i).TabIndex(), open.Controls(i).TabIndex());
    }
}

TEST(StartUpTest, TheOpinionIsTheApplyingUnitsUnderTypeSixOnly) {
    for (std::int32_t type = 1; type <= 7; ++type) {
        test::CreatedPanels panels;
        const A1ctrlUser& panel = panels.create("A1ctrlUserP06", type);
        const std::string title = panel.find("Title")->property("Caption").value();
        const std::string caption = panel.find("P06_P0601_c")->property("Caption").value();
        EXPECT_EQ(title, type == 6 ? "申请单位党委（党组）意见" : "申请人所在单位党委（党组）意见") << type;
        EXPECT_EQ(caption, type == 6 ? "申请单位党委（党组）意见" : "所在单位党委（党组）意见") << type;
    }
}

TEST(StartUpTest, ThePanelIsFoundWithoutRegardToCaseAndAdaptsAllTheSame) {
    test::CreatedPanels panels;
    EXPECT_EQ(hiddenOn(panels.create("a1CTRLuserp01", 6)), p01Group);
}

TEST(StartUpTest, ATypeThatChangesLaterChangesNoPanel) {
    test::CreatedPanels panels;
    const A1ctrlUser& panel = panels.create("A1ctrlUserP01", 6);
    gZZType = 4;
    EXPECT_EQ(hiddenOn(panel), p01Group);
    gZZType = 0;
}

TEST(StartUpTest, APanelWithoutOneOfTheWidgetsIsAFailure) {
    const ui::UserControl empty("A1ctrlUserP01");
    EXPECT_EQ(failureOf([&] { startUp(empty, "A1ctrlUserP01", 6); }), number(Failure::ItemNotFound));
    EXPECT_EQ(failureOf([&] { startUp(empty, "A1ctrlUserP01", 1); }), std::nullopt);
}

} // namespace
} // namespace quillmere
