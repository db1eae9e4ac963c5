#include "panels/PanelBench.h"
#include "support/FailureNumber.h"

#include <array>

namespace quillmere {
namespace {

constexpr FieldRow widgets[] = {
    field::text("T01", "文本"),   field::month("T02", "年月"), field::day("T03", "日期"),
    field::number("T04", "年度"), field::check("T05", "勾选"),
};

constexpr PanelRow rowOf(FillTemplate fill) {
    return {.className = "A1ctrlUserT", .widgetTable = "T", .title = "测试", .fields = widgets, .fill = fill};
}

constexpr PanelRow guardedRow = rowOf(FillTemplate::Guarded);
constexpr PanelRow plainRow = rowOf(FillTemplate::Plain);
constexpr PanelRow personRow = rowOf(FillTemplate::Person);
constexpr PanelRow lengthRow = rowOf(FillTemplate::LengthChecked);

class SetCtrlTest : public test::PanelBench {
protected:
    A1ctrlUser& panel = window.place(guardedRow);
    std::shared_ptr<cFieldItems> items = test::itemsOf(guardedRow);
    cFieldItem& item = items->Item("T_T01");
    ui::TextBox& box = on<ui::TextBox>(panel, "T_T01_v");

    /// What a masked box that held `before` shows after the filling.
    std::string masked(const PanelRow& row, const char* type, data::Value value,
                       const std::string& name = "T02", const std::string& before = "before") {
        A1ctrlUser& other = window.place(row);
        auto set = test::itemsOf(row);
        cFieldItem& field = set->Item("T_" + name);
        field.FieldType = type;
        field.Dmcod = std::move(value);
        auto& widget = on<ui::MaskEdBox>(other, "T_" + name + "_v");
        widget.setText(before);
        other.setCtrl(set);
        return widget.Text();
    }
};

TEST_F(SetCtrlTest, ACodedBoxIsBlueAndLocked) {
    item.CodeTable = "ZW";
    panel.setCtrl(items);
    EXPECT_EQ(box.BackColor(), 16572617U);
    EXPECT_EQ(box.BackColor(), 0xFCE0C9U);
    EXPECT_TRUE(box.Locked());
}

TEST_F(SetCtrlTest, APlainBoxHasTheWindowColourAndIsOpen) {
    box.setBackColor(1);
    box.setLocked(true);
    panel.setCtrl(items);
    EXPECT_EQ(box.BackColor(), 0x80000005U);
    EXPECT_FALSE(box.Locked());
}

TEST_F(SetCtrlTest, NumbersStandAtTheRight) {
    struct Case {
        const char* type;
        const char* rule;
        const char* codeTable;
        ui::Alignment side;
    };
    constexpr std::array cases{
        Case{"int", "", "", ui::Alignment::Right},
        Case{"Varchar", "N 12,2", "", ui::Alignment::Right},
        Case{"varchar", "n 4,1", "", ui::Alignment::Right},
        Case{"varchar", "A 20", "", ui::Alignment::Left},
        Case{"varchar", "", "", ui::Alignment::Left},
        // A year and a code have digits, but are no amounts.
        Case{"varchar", "B 1900,2100", "", ui::Alignment::Left},
        Case{"int", "", "ZW", ui::Alignment::Left},
    };
    for (const Case& each : cases) {
        item.FieldType = each.type;
        item.Check = each.rule;
        item.CodeTable = each.codeTable;
        panel.setCtrl(items);
        EXPECT_EQ(box.Alignment(), each.side) << each.type << " " << each.rule << " " << each.codeTable;
    }
}

TEST_F(SetCtrlTest, ABoxShowsTheCaptionOfTheCodeThoughTheCodeIsStored) {
    item.CodeTable = "ZW";
    item.Dmcod = "01";
    item.Dmcpt = "处长";
    panel.setCtrl(items);
    EXPECT_EQ(box.Text(), "处长");
    EXPECT_EQ(item.code(), "01");
}

TEST_F(SetCtrlTest, WithoutACaptionABoxShowsTheStoredValue) {
    item.CodeTable = "ZW";
    item.Dmcod = "01";
    panel.setCtrl(items);
    EXPECT_EQ(box.Text(), "01");
}

TEST_F(SetCtrlTest, AnUnsetValueShowsNothing) {
    box.setText("left over");
    panel.setCtrl(items);
    EXPECT_EQ(box.Text(), "");
}

TEST_F(SetCtrlTest, ANumberIsShownAsItsDigits) {
    item.FieldType = "int";
    item.Dmcod = 42;
    panel.setCtrl(items);
    EXPECT_EQ(box.Text(), "42");
}

struct LimitCase {
    const char* type;
    const char* length;
    const char* codeTable;
    std::size_t limit;
};

TEST_F(SetCtrlTest, TheLengthLimitHoldsForTwoSpellingsOfPlainTextTypesOnly) {
    const LimitCase cases[] = {
        {"Varchar", "20", "", 20}, {"Ntext", "500", "", 500},  {"Varchar", "0", "", 0},
        {"varchar", "20", "", 0},  {"VARCHAR", "20", "", 0},   {"ntext", "500", "", 0},
        {"NText", "500", "", 0},   {"Int", "4", "", 0},        {"Datetime", "10", "", 0},
        {"Varchar", "", "", 0},    {"Varchar", "20", "ZW", 0},
    };
    for (const LimitCase& limit : cases) {
        item.FieldType = limit.type;
        item.FieldLength = limit.length;
        item.CodeTable = limit.codeTable;
        box.setMaxLength(7);
        panel.setCtrl(items);
        EXPECT_EQ(box.MaxLength(), limit.limit)
            << limit.type << " " << limit.length << " " << limit.codeTable;
    }
}

TEST_F(SetCtrlTest, ALengthThatIsNoNumberFails) {
    item.FieldType = "Varchar";
    item.FieldLength = "long";
    EXPECT_EQ(failureOf([&] { panel.setCtrl(items); }), number(Failure::TypeMismatch));
}

TEST_F(SetCtrlTest, AMaskedBoxWithoutAValueShowsTheEmptyMaskWhateverTheType) {
    for (const char* type : {"datetime", "varchar", "int", "ntext", "bit"}) {
        EXPECT_EQ(masked(guardedRow, type, ""), "____年__月") << type;
        EXPECT_EQ(masked(plainRow, type, data::Null{}), "____年__月") << type;
    }
    EXPECT_EQ(masked(guardedRow, "datetime", "", "T03"), "____年__月__日");
    EXPECT_EQ(masked(guardedRow, "varchar", "", "T04"), "____");
}

TEST_F(SetCtrlTest, AMaskedDateIsFormattedByTheWidgetsFormat) {
    for (const PanelRow* row : {&guardedRow, &plainRow, &personRow, &lengthRow}) {
        EXPECT_EQ(masked(*row, "datetime", "1990-03"), "1990年03月");
        EXPECT_EQ(masked(*row, "DateTime", "1990-03-12", "T03"), "1990年03月12日");
    }
}

TEST_F(SetCtrlTest, OnGuardedPanelsAStoredValueThatIsNoDateShowsTheEmptyMask) {
    EXPECT_EQ(masked(guardedRow, "datetime", "待定"), "____年__月");
    EXPECT_EQ(masked(personRow, "datetime", "1990-13"), "____年__月");
}

TEST_F(SetCtrlTest, OnPlainPanelsAStoredValueThatIsNoDateIsPassedOnAsItIs) {
    EXPECT_EQ(masked(plainRow, "datetime", "待定"), "待定");
    EXPECT_EQ(masked(lengthRow, "datetime", "1990-13"), "1990-13");
}

TEST_F(SetCtrlTest, AMaskedTextOrNumberIsShownAsStored) {
    for (const char* type : {"varchar", "Varchar", "int", "INT"})
        EXPECT_EQ(masked(guardedRow, type, "199", "T04"), "199") << type;
    EXPECT_EQ(masked(plainRow, "int", 2026, "T04"), "2026");
}

TEST_F(SetCtrlTest, AMaskedBoxOfAnyOtherTypeIsLeftAsItStands) {
    for (const char* type : {"ntext", "bit", "", "float"})
        EXPECT_EQ(masked(guardedRow, type, "1999", "T04"), "before") << type;
}

TEST_F(SetCtrlTest, OnTheLengthCheckedPanelAShortTextDoesNotGoIntoAMask) {
    EXPECT_EQ(masked(lengthRow, "varchar", "199", "T04"), "before");
    EXPECT_EQ(masked(lengthRow, "varchar", "二〇二", "T04"), "before");
    EXPECT_EQ(masked(lengthRow, "varchar", "1999", "T04"), "1999");
    EXPECT_EQ(masked(lengthRow, "int", "199", "T04"), "199");
}

TEST_F(SetCtrlTest, ACheckBoxIsOffForFalseZeroAndTheEmptyTextAndElseOn) {
    auto& check = on<ui::CheckBox>(panel, "T_T05_v");
    const std::pair<data::Value, int> cases[] = {
        {false, 0}, {0, 0}, {"", 0}, {"0", 0}, {0.0, 0},  {data::Null{}, 0},
        {true, 1},  {1, 1}, {-1, 1}, {"1", 1}, {"是", 1}, {2.5, 1},
    };
    for (const auto& [value, expected] : cases) {
        items->Item("T_T05").Dmcod = value;
        check.setValue(1 - expected);
        panel.setCtrl(items);
        EXPECT_EQ(check.Value(), expected) << value.toTextOrEmpty();
    }
}

TEST_F(SetCtrlTest, ACaptionIsBoldExactlyWhenTheFieldMustNotBeEmpty) {
    auto& caption = on<ui::Label>(panel, "T_T01_c");
    item.IsNUll = false;
    panel.setCtrl(items);
    EXPECT_TRUE(caption.FontBold());
    EXPECT_FALSE(on<ui::Label>(panel, "T_T02_c").FontBold());
    item.IsNUll = true;
    panel.setCtrl(items);
    EXPECT_FALSE(caption.FontBold());
}

TEST_F(SetCtrlTest, WidgetsOfOtherKindsAreLeftAlone) {
    auto& label = panel.add<ui::Label>("T_T01_v", "keep");
    auto& caption = panel.add<ui::TextBox>("T_T01_c");
    caption.setText("keep");
    item.IsNUll = false;
    item.Dmcod = "value";
    panel.setCtrl(items);
    EXPECT_EQ(label.Caption(), "keep");
    EXPECT_EQ(caption.Text(), "keep");
}

TEST_F(SetCtrlTest, OnlyTheTwoEndingsMakeAField) {
    auto& other = panel.add<ui::TextBox>("T_T01_x");
    auto& capital = panel.add<ui::TextBox>("T_T01_V");
    other.setText("keep");
    capital.setText("keep");
    item.Dmcod = "value";
    panel.setCtrl(items);
    EXPECT_EQ(other.Text(), "keep");
    EXPECT_EQ(capital.Text(), "keep");
}

TEST_F(SetCtrlTest, TheRecordIsUnchangedAfterwardsThoughChangeEventsFired) {
    panel.setCtrl(items);
    panel.WhInfo.IsChange = true;
    int changes = 0;
    box.Change.connect([&] {
        ++changes;
        EXPECT_TRUE(panel.WhInfo.IsChange);
    });
    item.Dmcod = "another";
    panel.setCtrl(items);
    EXPECT_EQ(changes, 1);
    EXPECT_FALSE(panel.WhInfo.IsChange);
}

TEST_F(SetCtrlTest, TheSetIsNotKept) {
    const auto kept = panel.FieldItems;
    panel.setCtrl(items);
    EXPECT_EQ(panel.FieldItems, kept);
}

TEST_F(SetCtrlTest, AFieldSetThatLacksAKeyStopsThereAndGoesToTheCaller) {
    item.Dmcod = "written";
    items->Item("T_T05").Dmcod = true;
    items->remove("T_T03");
    EXPECT_EQ(failureOf([&] { panel.setCtrl(items); }), number(Failure::InvalidCall));
    EXPECT_EQ(box.Text(), "written");
    EXPECT_EQ(on<ui::CheckBox>(panel, "T_T05_v").Value(), 0);
}

TEST_F(SetCtrlTest, AfterAFailureEditsAreIgnoredUntilTheNextCompleteFilling) {
    panel.setCtrl(items);
    auto incomplete = test::itemsOf(guardedRow);
    incomplete->remove("T_T03");
    EXPECT_EQ(failureOf([&] { panel.setCtrl(incomplete); }), number(Failure::InvalidCall));
    box.setText("edited");
    EXPECT_FALSE(panel.WhInfo.IsChange);
    panel.setCtrl(items);
    box.setText("edited again");
    EXPECT_TRUE(panel.WhInfo.IsChange);
}

} // namespace
} // namespace quillmere
