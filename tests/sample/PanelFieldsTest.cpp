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
