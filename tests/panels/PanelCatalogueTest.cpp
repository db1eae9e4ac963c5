#include "panels/PanelCatalogue.h"

#include "platform/text/Text.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <string>
#include <vector>

namespace quillmere {
namespace {

using Names = std::set<std::string>;

/// The classes, without their common beginning, whose rows pass.
Names those(const std::function<bool(const PanelRow&)>& pass) {
    Names names;
    for (const PanelRow& row : panelCatalogue()) {
        if (pass(row)) names.emplace(row.className.substr(std::string_view("A1ctrlUser").size()));
    }
    return names;
}

TEST(PanelCatalogueTest, Has73Panels) { EXPECT_EQ(panelCatalogue().size(), 73U); }

TEST(PanelCatalogueTest, HasNoNameTwice) {
    Names names;
    for (const PanelRow& row : panelCatalogue())
        EXPECT_TRUE(names.insert(text::lower(row.className)).second) << row.className;
}

TEST(PanelCatalogueTest, ListsExactlyTheKnownSets) {
    const Names expected{"A01",   "A02",  "A03", "A04",    "A05",   "A06",   "A07",   "A08",   "A09", "A10",
                         "A11",   "A12",  "B01", "B02",    "C01",   "C02",   "C03",   "C04",   "C05", "C06",
                         "C07",   "P01",  "P02", "P02_DG", "P03",   "P04",   "P05",   "P06",   "P07", "P08",
                         "P10",   "P11",  "P12", "P13",    "P14",   "P15",   "P16",   "P17",   "P18", "PP01",
                         "PP01A", "JP01", "G01", "Plan1",  "Plan2", "Plan3", "Plan4", "Plan5", "E02", "E05",
                         "E06",   "E07",  "E08", "F02",    "F03",   "F04",   "F05",   "F07",   "F08", "F09",
                         "M02",   "M03",  "M04", "M05",    "M06",   "M07",   "M08",   "N02",   "N03", "N04",
                         "N05",   "N06",  "N07"};
    EXPECT_EQ(those([](const PanelRow&) { return true; }), expected);
}

TEST(PanelCatalogueTest, AllClassNamesBeginAlikeButOne) {
    for (const PanelRow& row : panelCatalogue()) {
        const bool odd = row.className == "A1ctrluserM08";
        EXPECT_EQ(row.className.starts_with("A1ctrlUser"), !odd) << row.className;
    }
}

TEST(PanelCatalogueTest, EveryFieldHasANameACaptionAndAKnownWidget) {
    for (const PanelRow& row : panelCatalogue()) {
        EXPECT_FALSE(row.title.empty()) << row.className;
        EXPECT_FALSE(row.fields.empty()) << row.className;
        for (const FieldRow& field : row.fields) {
            EXPECT_FALSE(field.code.empty()) << row.className;
            EXPECT_FALSE(field.caption.empty()) << field.code;
            EXPECT_GE(field.widget, ValueWidget::Text) << field.code;
            EXPECT_LE(field.widget, ValueWidget::Check) << field.code;
        }
    }
}

TEST(PanelCatalogueTest, FiltersLimitsAndUnitsStandOnTextBoxesOnly) {
    for (const PanelRow& row : panelCatalogue()) {
        for (const FieldRow& field : row.fields) {
            const bool bare = field.filter == KeyFilter::None && field.maxLength == 0 && field.unit.empty();
            EXPECT_TRUE(bare || field.widget == ValueWidget::Text) << row.className << " " << field.code;
            EXPECT_TRUE(field.unit.empty() || field.unit == "万元" || field.unit == "元") << field.unit;
        }
    }
}

TEST(PanelCatalogueTest, NoPanelHasAFieldTwice) {
    for (const PanelRow& row : panelCatalogue()) {
        Names codes;
        for (const FieldRow& field : row.fields)
            EXPECT_TRUE(codes.insert(text::lower(field.code)).second) << row.className << " " << field.code;
    }
}

TEST(PanelCatalogueTest, WidgetsBearTheirSetsTableButForSevenPanels) {
    for (const PanelRow& row : panelCatalogue()) {
        const std::string_view set = row.className.substr(std::string_view("A1ctrlUser").size());
        std::string_view expected = set;
        if (set == "G01") expected = "A01";
        for (const char* name : {"P03", "C04", "P02_DG", "PP01", "PP01A", "JP01"})
            if (set == name) expected = "P01";
        EXPECT_EQ(row.widgetTable, expected) << row.className;
    }
}

TEST(PanelCatalogueTest, FieldsBelongToTheWidgetTableButForTheReportYear) {
    for (const PanelRow& row : panelCatalogue()) {
        for (const FieldRow& field : row.fields)
            EXPECT_TRUE(field.code == "SHBYear" || field.code.starts_with(row.widgetTable))
                << row.className << " " << field.code;
    }
}

TEST(PanelCatalogueTest, TheReportYearStandsOnEveryPeriodicReport) {
    const auto hasYear = [](const PanelRow& row) {
        for (const FieldRow& field : row.fields)
            if (field.code == "SHBYear") return true;
        return false;
    };
    EXPECT_EQ(those(hasYear),
              (Names{"E02", "E05", "E06", "E07", "E08", "M02", "M03", "M04", "M05", "M06", "M07", "M08"}));
}

TEST(PanelCatalogueTest, ThePlainPanelsAreThese) {
    EXPECT_EQ(those([](const PanelRow& row) { return row.fill == FillTemplate::Plain; }),
              (Names{"A02", "A04", "A06", "A08", "A09", "A10", "A11", "A12",   "P07", "P10",   "P11",
                     "P12", "P13", "P14", "P15", "P16", "P17", "P18", "Plan1", "P03", "P02_DG"}));
}

TEST(PanelCatalogueTest, ThePersonPanelsAndTheLengthCheckedOneAreThese) {
    EXPECT_EQ(those([](const PanelRow& row) { return row.fill == FillTemplate::Person; }),
              (Names{"A01", "G01"}));
    EXPECT_EQ(those([](const PanelRow& row) { return row.fill == FillTemplate::LengthChecked; }),
              (Names{"P05"}));
}

TEST(PanelCatalogueTest, TheOtherDeparturesAreThese) {
    EXPECT_EQ(those([](const PanelRow& row) { return row.firstFocus == FirstFocus::IfEmpty; }),
              (Names{"E02", "F02", "M02", "N02", "Plan1"}));
    EXPECT_EQ(those([](const PanelRow& row) { return row.firstFocus == FirstFocus::Never; }), (Names{"E06"}));
    EXPECT_EQ(those([](const PanelRow& row) { return !row.caretToFront; }),
              (Names{"P08", "P10", "P11", "P12", "P14", "P15", "P16", "P17", "P18", "Plan2", "Plan3"}));
    EXPECT_EQ(those([](const PanelRow& row) { return !row.hasGrid; }), (Names{"P03", "P02_DG", "C04"}));
    EXPECT_EQ(those([](const PanelRow& row) { return !row.gridFollowsSet; }), (Names{"P07"}));
    EXPECT_EQ(those([](const PanelRow& row) { return row.aliasedGridCatalogue; }), (Names{"A06"}));
}

TEST(PanelCatalogueTest, APanelWithoutTheCaretStepHasNoMaskedBox) {
    for (const PanelRow& row : panelCatalogue()) {
        if (row.caretToFront) continue;
        for (const FieldRow& field : row.fields) {
            const bool masked = field.widget == ValueWidget::Month || field.widget == ValueWidget::Day ||
                                field.widget == ValueWidget::Number;
            EXPECT_FALSE(masked) << row.className << " " << field.code;
        }
    }
}

TEST(PanelCatalogueTest, PP01ADiffersFromPP01InOneFieldOnly) {
    const auto codes = [](std::string_view name) {
        Names all;
        for (const FieldRow& field : findPanel(name)->fields)
            all.emplace(field.code);
        return all;
    };
    Names expected = codes("A1ctrlUserPP01");
    expected.insert("P0135");
    EXPECT_EQ(codes("A1ctrlUserPP01A"), expected);
}

TEST(PanelCatalogueTest, ANameIsFoundWithoutRegardToCase) {
    EXPECT_EQ(findPanel("A1ctrlUserM08"), findPanel("A1ctrluserM08"));
    ASSERT_NE(findPanel("a1CTRLuserplan1"), nullptr);
    EXPECT_EQ(findPanel("a1CTRLuserplan1")->className, "A1ctrlUserPlan1");
}

TEST(PanelCatalogueTest, AnUnknownNameIsNotFound) {
    for (const char* name : {"A1ctrlUserZ99", "A01", "A1ctrlUser", ""})
        EXPECT_EQ(findPanel(name), nullptr) << name;
}

} // namespace
} // namespace quillmere
