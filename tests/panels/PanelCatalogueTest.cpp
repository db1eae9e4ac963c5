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

/// One field as a person reads it off the form: mark, filter, limit and unit behind the caption.
struct Expected {
    const char* code;
    const char* caption;
    const char* mark;
};

std::string markOf(const FieldRow& field) {
    static constexpr const char* kinds[] = {"T", "L", "Y", "D", "N", "C"};
    static constexpr const char* filters[] = {"", "d", "p", "n"};
    std::string mark = kinds[static_cast<std::size_t>(field.widget)];
    if (field.maxLength != 0) mark += std::to_string(field.maxLength);
    mark += filters[static_cast<std::size_t>(field.filter)];
    if (!field.unit.empty()) mark += " (" + std::string(field.unit) + ")";
    return mark;
}

void expectFields(std::string_view className, const std::vector<Expected>& expected) {
    const PanelRow* row = findPanel(className);
    ASSERT_NE(row, nullptr);
    ASSERT_EQ(row->fields.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(row->fields[i].code, expected[i].code) << i;
        EXPECT_EQ(row->fields[i].caption, expected[i].caption) << expected[i].code;
        EXPECT_EQ(markOf(row->fields[i]), expected[i].mark) << expected[i].code;
    }
}

TEST(PanelCatalogueTest, ThePersonPanelFieldByField) {
    const PanelRow& row = *findPanel("A1ctrlUserA01");
    EXPECT_EQ(row.widgetTable, "A01");
    EXPECT_EQ(row.title, "人员基本信息");
    expectFields("A1ctrlUserA01", {{"A0101", "姓    名", "T10"},       {"A0104", "性    别", "T"},
                                   {"A0106", "出生日期", "D"},         {"A0103", "身份证号", "T"},
                                   {"A0109", "籍    贯", "T"},         {"A0105", "民    族", "T"},
                                   {"A0107", "党    派", "T"},         {"A0108", "文化程度", "T"},
                                   {"A0110", "毕业院校", "T"},         {"A0111", "毕业时间", "Y"},
                                   {"A0113", "所学专业", "T"},         {"A0112", "学    位", "T"},
                                   {"A0115", "参加工作时间", "Y"},     {"A0118", "专业领域", "T"},
                                   {"A0119", "从事专业", "T"},         {"A0120", "专业技术职称", "T"},
                                   {"A0114", "工作单位", "T"},         {"A0117", "单位性质", "T"},
                                   {"A0123", "职    务", "T"},         {"A0138", "职    级", "T"},
                                   {"A0122", "职称级别", "T"},         {"A0124", "单位地址", "T"},
                                   {"A0125", "邮政编码", "Td"},        {"A0116", "单位类别", "T"},
                                   {"A0130", "主管部门", "T"},         {"A0121", "所在行业", "T"},
                                   {"A0126", "单位电话", "Tp"},        {"A0127", "家庭电话", "Tp"},
                                   {"A0128", "移动电话", "Tp"},        {"A0129", "电子信箱", "T"},
                                   {"A0131", "被批准为博导年份", "N"}, {"A0133", "获得突贡称号年份", "N"},
                                   {"A0135", "获得优青称号年份", "N"}, {"A0134", "批准享受特贴年份", "N"},
                                   {"A0132", "入选科技新星年份", "N"}});
}

TEST(PanelCatalogueTest, TheStudiesPanelFieldByField) {
    const PanelRow& row = *findPanel("A1ctrlUserA02");
    EXPECT_EQ(row.widgetTable, "A02");
    EXPECT_EQ(row.title, "主要学习（从中专、大专或大学填起，包括国外学历）");
    expectFields("A1ctrlUserA02", {{"A0201", "起始年月", "Y"},
                                   {"A0202", "截止年月", "Y"},
                                   {"A0203", "就读院校（系）", "T"},
                                   {"A0204", "专    业", "T"},
                                   {"A0205", "学    位", "T"}});
}

TEST(PanelCatalogueTest, AFieldWithAUnitAndOneWithAnInnerLimit) {
    expectFields("A1ctrlUserB02", {{"B0201", "项目名称", "T"},
                                   {"B0202", "金    额", "Tn (万元)"},
                                   {"B0203", "管理部门", "T"},
                                   {"B0204", "投入方式", "T"}});
    EXPECT_EQ(markOf(findPanel("A1ctrlUserB01")->fields[16]), "T4d");
}

} // namespace
} // namespace quillmere
