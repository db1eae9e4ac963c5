#include "SampleDatabase.h"

#include "metadata/CheckInput.h"
#include "metadata/FieldLoaders.h"
#include "metadata/Globals.h"
#include "metadata/cFieldItem.h"
#include "metadata/cWhInfo.h"
#include "panels/GridStatement.h"
#include "panels/PanelCatalogue.h"
#include "platform/text/Text.h"

#include <gtest/gtest.h>

#include <set>

namespace quillmere::sample {
namespace {

using test::defaultRegister;
using test::textRows;

/// The register as the published connection, and every panel's fields against its catalogue.
class PanelFields : public testing::Test {
protected:
    void SetUp() override { publishConnection(test::sharedDefaultRegister()); }
    void TearDown() override { publishConnection(nullptr); }

    /// Calls `check(item, field)` for every field of every panel; a field without its row fails.
    template <typename Check>
    static void eachField(Check check) {
        for (const PanelRow& panel : panelCatalogue()) {
            const auto items = LoadFieldItems(panel.widgetTable);
            for (const quillmere::FieldRow& field : panel.fields) {
                const std::string key = std::string(panel.widgetTable) + "_" + std::string(field.code);
                const cFieldItem* item = items->find(key);
                ASSERT_NE(item, nullptr) << panel.className << ' ' << key;
                SCOPED_TRACE(std::string(panel.className) + " " + key);
                check(*item, field);
            }
        }
    }

    static bool isMask(const quillmere::FieldRow& field) {
        return field.widget == ValueWidget::Month || field.widget == ValueWidget::Day ||
               field.widget == ValueWidget::Number;
    }
};

TEST_F(PanelFields, EveryValueWidgetHasItsFieldWithADescription) {
    eachField(
        [](const cFieldItem& item, const quillmere::FieldRow&) { EXPECT_FALSE(item.ItemDesc.empty()); });
}

TEST_F(PanelFields, TypeFitsTheWidget) {
    eachField([](const cFieldItem& item, const quillmere::FieldRow& field) {
        const std::string type = text::lower(item.FieldType);
        switch (field.widget) {
        case ValueWidget::Month:
            EXPECT_EQ(type, "datetime");
            EXPECT_TRUE(item.Style == "yyyy.MM" || item.Style == "yyyy-MM") << item.Style;
            break;
        case ValueWidget::Day:
            EXPECT_EQ(type, "datetime");
            EXPECT_EQ(item.Style, "yyyy-MM-dd");
            break;
        case ValueWidget::Number:
            EXPECT_EQ(type, "varchar");
            EXPECT_EQ(item.FieldLength, "4");
            break;
        case ValueWidget::Check:
            EXPECT_EQ(type, "bit");
            break;
        case ValueWidget::LongText:
            EXPECT_EQ(item.FieldType, "Ntext");
            break;
        case ValueWidget::Text:
            EXPECT_TRUE(type == "varchar" || type == "int") << type;
            break;
        }
    });
}

TEST_F(PanelFields, EveryFieldIsExplainedAndHasItsColumn) {
    eachField([](const cFieldItem& item, const quillmere::FieldRow&) {
        EXPECT_FALSE(item.FldExplain.empty());
        EXPECT_GE(item.FldWidth, 500);
        EXPECT_FALSE(item.FldOrder.empty());
        EXPECT_TRUE(text::lower(item.FieldType) == "datetime" || item.Style.empty()) << item.Style;
    });
}

TEST_F(PanelFields, DigitsAloneAreTypedIntoCountsRanksAndThePostalCode) {
    eachField([](const cFieldItem& item, const quillmere::FieldRow& field) {
        if (field.filter != KeyFilter::Digits) return;
        const bool count = text::lower(item.FieldType) == "int" && item.Check.starts_with("N ");
        EXPECT_TRUE(count || item.Check == "L 0,6") << item.FieldType << ' ' << item.Check;
    });
}

TEST_F(PanelFields, DecimalsAndAmountsAreNumbersByTheirRule) {
    eachField([](const cFieldItem& item, const quillmere::FieldRow& field) {
        if (field.filter != KeyFilter::Decimal && field.unit.empty()) return;
        EXPECT_EQ(text::lower(item.FieldType), "varchar");
        EXPECT_TRUE(item.Check.starts_with("N ")) << item.Check;
    });
}

TEST_F(PanelFields, RulesOfTextKeepToTheLength) {
    eachField([](const cFieldItem& item, const quillmere::FieldRow&) {
        const std::string type = text::lower(item.FieldType);
        if ((type != "varchar" && type != "ntext") || !item.Check.starts_with("A ")) return;
        EXPECT_EQ(item.Check, "A " + item.FieldLength);
    });
}

TEST_F(PanelFields, EveryFieldOfTheRegisterIsOnAPanelOrWrittenByTheSystem) {
    std::set<std::string> shown;
    eachField([&](const cFieldItem& item, const quillmere::FieldRow&) {
        shown.insert(item.TblName + "." + item.ItemName);
    });
    // The row editor shows these under boxes of its own.
    const std::set<std::string> editors{"P03", "C04"};
    const std::set<std::string> written{"A0136", "A0137", "A0199", "B0124",
                                        "B0199", "P0105", "P0111", "P0123"};
    for (const auto& row : textRows(defaultRegister(), "select TblName, ItemName from s_infoitem")) {
        const bool key = row[1] == "A00" || row[1] == row[0] + "99";
        EXPECT_TRUE(key || editors.contains(row[0]) || written.contains(row[1]) ||
                    shown.contains(row[0] + "." + row[1]))
            << row[0] << ' ' << row[1];
    }
}

TEST_F(PanelFields, OnlyTextBoxesAreCoded) {
    eachField([](const cFieldItem& item, const quillmere::FieldRow& field) {
        EXPECT_TRUE(item.CodeTable.empty() || field.widget == ValueWidget::Text);
    });
}

TEST_F(PanelFields, CodedFieldsHaveNoRule) {
    eachField([](const cFieldItem& item, const quillmere::FieldRow&) {
        EXPECT_TRUE(item.CodeTable.empty() || item.Check.empty()) << item.Check;
    });
}

TEST_F(PanelFields, EmptyTextBoxesOfThePersonAndTheUnitPass) {
    eachField([](const cFieldItem& item, const quillmere::FieldRow& field) {
        if ((item.TblName != "A01" && item.TblName != "B01") || isMask(field)) return;
        EXPECT_EQ(CheckInput(item, ""), "");
    });
}

TEST_F(PanelFields, HiddenFieldsOfTheProjectPassWhenEmpty) {
    eachField([](const cFieldItem& item, const quillmere::FieldRow& field) {
        if (item.TblName != "P01" || isMask(field)) return;
        EXPECT_EQ(CheckInput(item, ""), "");
    });
}

TEST_F(PanelFields, GridOfEverySetRunsAndShowsTheSequence) {
    for (const auto& row :
         textRows(defaultRegister(), "select tblname, Property, orderfield from s_infotable")) {
        cWhInfo info;
        info.TabId = row[0];
        info.IsMult = row[1] == "False";
        info.FldOrder = !info.IsMult ? "" : row[2] == "<null>" ? row[0] + "99" : row[2];
        const GridStatement grid = makeGridStatement(info, false);
        const data::RowSet rows = defaultRegister().query(grid.sql);
        EXPECT_EQ(rows.columns().size(), grid.widths.size()) << row[0];
        EXPECT_EQ(rows.findColumn("序号").has_value(), info.IsMult) << row[0];
    }
}

} // namespace
} // namespace quillmere::sample
