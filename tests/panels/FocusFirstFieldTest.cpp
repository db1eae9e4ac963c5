#include "panels/PanelBench.h"

namespace quillmere {
namespace {

class FocusFirstFieldTest : public test::PanelBench {
protected:
    /// The panel of a class with its catalogue rows and two records, filled.
    A1ctrlUser& openReal(std::string_view className, const std::string& firstText) {
        const PanelRow* real = findPanel(className);
        const std::string table(real->widgetTable);
        std::vector<std::string> columns;
        for (const FieldRow& entry : real->fields) {
            columns.emplace_back(entry.code);
            db.addField({.tblName = table, .itemName = columns.back(), .itemDesc = "D" + columns.back()});
        }
        columns.push_back(table + "99 integer");
        db.addField({.tblName = table, .itemName = table + "99", .itemDesc = "序号", .fieldType = "int"});
        db.createDataTable(table, columns);
        for (const char* sequence : {"1", "2"}) {
            std::vector<std::optional<std::string>> values(columns.size() + 1, std::string());
            values.front() = "p1";
            values[1] = firstText;
            values.back() = sequence;
            db.addRow(table, values);
        }
        A1ctrlUser& panel = prepare(*real);
        panel.WhInfo.TabId = table;
        panel.WhInfo.FldOrder = table + "99";
        panel.setDGItems();
        return panel;
    }

    /// Where the focus is after a person has clicked the second row.
    std::string focusAfterClick(A1ctrlUser& panel) {
        std::string name;
        person.show(window, [&](ui::Form& form) {
            EXPECT_TRUE(on<ui::DataGrid>(panel, "DGItems").clickRow(2));
            EXPECT_EQ(panel.WhInfo.id, 2);
            if (form.ActiveControl() != nullptr) name = form.ActiveControl()->name();
        });
        return name;
    }
};

TEST_F(FocusFirstFieldTest, APanelThatIsShownFocusesItsFirstField) {
    A1ctrlUser& panel = open(setRow);
    person.show(window, [&](ui::Form& form) { EXPECT_EQ(form.ActiveControl(), panel.find("T_T01_v")); });
}

TEST_F(FocusFirstFieldTest, TheLowestTabIndexOfTheValueWidgetsWins) {
    A1ctrlUser& panel = open(setRow);
    panel.find("labOpt")->setTabIndex(-9);
    panel.find("T_T01_v")->setTabIndex(7);
    panel.find("T_T02_v")->setTabIndex(5);
    panel.find("T_T03_v")->setTabIndex(6);
    person.show(window, [&](ui::Form& form) { EXPECT_EQ(form.ActiveControl(), panel.find("T_T02_v")); });
}

TEST_F(FocusFirstFieldTest, OnEqualTabIndexesTheFirstFoundStays) {
    A1ctrlUser& panel = open(setRow);
    for (const char* name : {"T_T01_v", "T_T02_v", "T_T03_v"})
        panel.find(name)->setTabIndex(3);
    person.show(window, [&](ui::Form& form) { EXPECT_EQ(form.ActiveControl(), panel.find("T_T01_v")); });
}

TEST_F(FocusFirstFieldTest, AWidgetThatCannotTakeTheFocusIsNotPassedOver) {
    A1ctrlUser& panel = open(setRow);
    panel.find("T_T01_v")->setEnabled(false);
    person.show(window, [&](ui::Form& form) {
        form.moveFocus(*panel.find("T_T02_v"));
        panel.find("T_T02_v")->setTabIndex(99);
        panel.FocusFirstField();
        EXPECT_EQ(form.ActiveControl(), panel.find("T_T02_v"));
    });
}

TEST_F(FocusFirstFieldTest, APanelWithoutValueWidgetsLeavesTheFocus) {
    static constexpr PanelRow bare{
        .className = "A1ctrlUserBare", .widgetTable = "T", .title = "空", .fields = {}};
    A1ctrlUser& panel = open(bare);
    auto& grid = on<ui::DataGrid>(panel, "DGItems");
    person.show(window, [&](ui::Form& form) {
        form.moveFocus(grid);
        panel.FocusFirstField();
        EXPECT_EQ(form.ActiveControl(), &grid);
    });
}

TEST_F(FocusFirstFieldTest, E06ArrivesOnARowWithTheFocusLeftInTheGrid) {
    EXPECT_EQ(focusAfterClick(openReal("A1ctrlUserE06", "")), "DGItems");
}

TEST_F(FocusFirstFieldTest, E02WithAFilledFirstFieldKeepsTheFocusInTheGrid) {
    EXPECT_EQ(focusAfterClick(openReal("A1ctrlUserE02", "财务处")), "DGItems");
}

TEST_F(FocusFirstFieldTest, E02WithAnEmptyFirstFieldMovesTheFocusToIt) {
    EXPECT_EQ(focusAfterClick(openReal("A1ctrlUserE02", "")), "E02_E0201_v");
}

TEST_F(FocusFirstFieldTest, ABlankFirstFieldCountsAsEmpty) {
    EXPECT_EQ(focusAfterClick(openReal("A1ctrlUserN02", "  ")), "N02_N0201_v");
}

TEST_F(FocusFirstFieldTest, AnEmptyMaskIsNoEmptyText) {
    EXPECT_EQ(focusAfterClick(openReal("A1ctrlUserPlan1", "")), "DGItems");
}

} // namespace
} // namespace quillmere
