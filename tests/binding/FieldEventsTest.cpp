#include "binding/FieldEvents.h"

#include "binding/fmGrpCod.h"
#include "metadata/cFieldItems.h"
#include "metadata/cWhInfo.h"
#include "platform/ui/CheckBox.h"
#include "platform/ui/Label.h"
#include "platform/ui/MaskEdBox.h"
#include "support/FailureNumber.h"
#include "support/ScriptedPerson.h"
#include "support/TestDatabase.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace quillmere {
namespace {

/// A window that serves as a panel: a widget of each kind, with its field.
class Panel : public ui::Form, public FieldContext {
public:
    Panel() : Form("panel", "panel") {
        addField("plain", "varchar");
        addField("coded", "varchar").CodeTable = "ZW";
        addField("date", "datetime");
        addField("number", "int");
        addField("check", "bit");
        for (const auto& control : Controls())
            items.AddControl(*control);
    }

    cFieldItem& addField(const std::string& name, const char* type) {
        auto item = std::make_shared<cFieldItem>();
        item->ItemDesc = "栏目" + name;
        item->FieldType = type;
        item->FldExplain = "说明" + name;
        return fields.Add(item, "T_" + name);
    }

    cFieldItems& fieldItems() override { return fields; }
    cWhInfo& whInfo() override { return info; }
    bool isLoading() const override { return loading; }
    ui::Label& explainLabel() override { return labExplain; }
    bool caretToFront() const override { return toFront; }

    ui::Label& labExplain = add<ui::Label>("labExplain");
    ui::TextBox& plain = add<ui::TextBox>("T_plain_v");
    ui::TextBox& coded = add<ui::TextBox>("T_coded_v");
    ui::MaskEdBox& date = add<ui::MaskEdBox>("T_date_v", "####-##", "yyyy-MM");
    ui::MaskEdBox& number = add<ui::MaskEdBox>("T_number_v", "####", "");
    ui::CheckBox& check = add<ui::CheckBox>("T_check_v");
    ui::TextBox& other = add<ui::TextBox>("search");
    ui::TextBox& stray = add<ui::TextBox>("T_stray_v");

    cFieldItems fields;
    cWhInfo info;
    bool loading = false;
    bool toFront = true;
    ControlItems items;
    FieldEvents events{*this, items};
};

class FieldEventsTest : public testing::Test {
protected:
    /// Whether `control` lets the focus go.
    bool leave(ui::Control& control) {
        bool cancel = false;
        panel.events.cItems_Validate(control, cancel);
        return !cancel;
    }

    bool leaveChanged(ui::Control& control) {
        panel.info.IsChange = true;
        return leave(control);
    }

    test::ScriptedPerson person;
    Panel panel;
};

using ChangeTest = FieldEventsTest;

TEST_F(ChangeTest, AChangedTextBoxMarksTheRecord) {
    panel.plain.setText("a");
    EXPECT_TRUE(panel.info.IsChange);
}

TEST_F(ChangeTest, AChangedMaskedBoxMarksTheRecord) {
    panel.date.setText("1990-01");
    EXPECT_TRUE(panel.info.IsChange);
}

TEST_F(ChangeTest, FillingTheWidgetsWhileLoadingMarksNothing) {
    panel.loading = true;
    panel.plain.setText("a");
    panel.date.setText("1990-01");
    EXPECT_FALSE(panel.info.IsChange);
}

TEST_F(ChangeTest, AWidgetThatIsNoFieldMarksNothing) {
    panel.other.setText("a");
    EXPECT_FALSE(panel.info.IsChange);
}

TEST_F(ChangeTest, AToggledCheckBoxMarksNothing) {
    panel.check.setValue(1);
    panel.events.cItems_Change(panel.check);
    EXPECT_FALSE(panel.info.IsChange);
}

TEST_F(ChangeTest, TheSameTextAgainMarksNothing) {
    panel.loading = true;
    panel.plain.setText("a");
    panel.loading = false;
    panel.plain.setText("a");
    EXPECT_FALSE(panel.info.IsChange);
}

using FocusTest = FieldEventsTest;

TEST_F(FocusTest, AFieldShowsItsExplanationWhileItHasTheFocus) {
    person.show(panel, [&](ui::Form& open) {
        open.moveFocus(panel.plain);
        EXPECT_EQ(panel.labExplain.Caption(), "说明plain");
        open.moveFocus(panel.other);
        EXPECT_EQ(panel.labExplain.Caption(), "");
    });
}

TEST_F(FocusTest, LosingTheFocusBlanksTheExplanation) {
    panel.labExplain.setCaption("old");
    panel.events.cItems_LostFocus();
    EXPECT_EQ(panel.labExplain.Caption(), "");
}

TEST_F(FocusTest, AMaskedBoxTakesItsCaretToTheFront) {
    panel.date.setSelStart(4);
    panel.events.cItems_GotFocus(panel.date);
    EXPECT_EQ(panel.date.SelStart(), 0U);
    EXPECT_EQ(panel.labExplain.Caption(), "说明date");
}

TEST_F(FocusTest, OnAPanelThatDoesNotAskForItTheCaretStays) {
    panel.toFront = false;
    panel.date.setSelStart(4);
    panel.events.cItems_GotFocus(panel.date);
    EXPECT_EQ(panel.date.SelStart(), 4U);
}

TEST_F(FocusTest, AValueWidgetWithoutAFieldIsAFailure) {
    EXPECT_EQ(failureOf([&] { panel.events.cItems_GotFocus(panel.stray); }), number(Failure::InvalidCall));
    EXPECT_EQ(failureOf([&] { panel.events.cItems_Dblclick(panel.stray); }), number(Failure::InvalidCall));
}

using ValidateTest = FieldEventsTest;

TEST_F(ValidateTest, AnUnchangedRecordIsNotChecked) {
    panel.fields.Item("T_plain").Check = "A 1";
    panel.loading = true;
    panel.plain.setText("too long");
    panel.loading = false;
    EXPECT_TRUE(leave(panel.plain));
}

TEST_F(ValidateTest, NothingIsCheckedWhileLoading) {
    panel.fields.Item("T_plain").Check = "A 1";
    panel.plain.setText("too long");
    panel.loading = true;
    EXPECT_TRUE(leaveChanged(panel.plain));
}

TEST_F(ValidateTest, AWidgetThatIsNoFieldIsNotChecked) {
    panel.other.setText("O'Brien");
    EXPECT_TRUE(leaveChanged(panel.other));
}

TEST_F(ValidateTest, AComplaintIsShownAndKeepsTheFocus) {
    panel.fields.Item("T_plain").Check = "A 3";
    person.expectBox("栏目plain最多可以录入3个字符！", "错误信息");
    person.show(panel, [&](ui::Form& open) {
        open.moveFocus(panel.plain);
        test::typeText(open, "four");
        EXPECT_FALSE(open.moveFocus(panel.other));
        EXPECT_TRUE(panel.plain.hasFocus());
    });
    EXPECT_EQ(panel.plain.Text(), "four");
    ASSERT_EQ(person.boxes().size(), 1U);
    EXPECT_EQ(person.boxes()[0].buttons, ui::Buttons::Ok);
    EXPECT_EQ(person.boxes()[0].icon, ui::Icon::None);
}

TEST_F(ValidateTest, ATextThatPassesLetsTheFocusGo) {
    panel.fields.Item("T_plain").Check = "A 3";
    panel.plain.setText("abc");
    EXPECT_TRUE(leaveChanged(panel.plain));
}

TEST_F(ValidateTest, AnEmptyTextBoxIsNotCheckedAlsoWhereItIsRequired) {
    panel.fields.Item("T_plain").Check = "L 15,18";
    panel.fields.Item("T_plain").IsNUll = false;
    EXPECT_TRUE(leaveChanged(panel.plain));
}

TEST_F(ValidateTest, ACodedTextBoxIsCheckedByTheNameThatItShows) {
    panel.fields.Item("T_coded").Check = "A 2";
    panel.coded.setText("主任医师");
    person.expectBox("栏目coded最多可以录入2个字符！", "错误信息");
    EXPECT_FALSE(leaveChanged(panel.coded));
}

TEST_F(ValidateTest, ACheckBoxIsNotChecked) { EXPECT_TRUE(leaveChanged(panel.check)); }

TEST_F(ValidateTest, AMaskOfPromptCharactersIsBlankAndPassesAlsoInAChangedRecord) {
    panel.fields.Item("T_date").Check = "B 1900-01,2100-01";
    ASSERT_EQ(panel.date.Text(), "____-__");
    EXPECT_TRUE(leaveChanged(panel.date));
    EXPECT_TRUE(leaveChanged(panel.number));
}

TEST_F(ValidateTest, AMaskedBoxWithoutAnyTextIsBlank) {
    panel.date.setText("");
    EXPECT_TRUE(leaveChanged(panel.date));
}

TEST_F(ValidateTest, AHalfFilledDateIsRefusedByItsCaption) {
    panel.date.setText("199_-__");
    person.expectBox("栏目date录入数据不规范！", "错误信息");
    EXPECT_FALSE(leaveChanged(panel.date));
    EXPECT_EQ(panel.date.Text(), "199_-__");
    EXPECT_EQ(person.boxes()[0].icon, ui::Icon::None);
}

TEST_F(ValidateTest, AHalfFilledDateWhoseRestIsADatePassesReformatted) {
    panel.date.setText("1990-3_");
    EXPECT_TRUE(leaveChanged(panel.date));
    EXPECT_EQ(panel.date.Text(), "1990-03");
}

TEST_F(ValidateTest, TheCheckSeesTheReformattedDateAndTheTextStaysReformatted) {
    panel.fields.Item("T_date").Check = "L 6";
    panel.date.setText("1990-3_");
    person.expectBox("栏目date长度应该为6位。", "错误信息");
    EXPECT_FALSE(leaveChanged(panel.date));
    EXPECT_EQ(panel.date.Text(), "1990-03");
}

TEST_F(ValidateTest, ADateThatDoesNotExistIsRefused) {
    panel.date.setText("1990-13");
    person.expectBox("栏目date录入数据不规范！", "错误信息");
    EXPECT_FALSE(leaveChanged(panel.date));
}

TEST_F(ValidateTest, TheTypeOfADateFieldMayStandInCapitals) {
    panel.fields.Item("T_date").FieldType = "DateTime";
    panel.date.setText("1990-3_");
    EXPECT_TRUE(leaveChanged(panel.date));
    EXPECT_EQ(panel.date.Text(), "1990-03");
}

TEST_F(ValidateTest, AMaskedNumberWithAGapIsRefusedThoughItsDigitsWouldBeANumber) {
    panel.number.setText("12_4");
    person.expectBox("栏目number录入数据不规范！", "错误信息");
    EXPECT_FALSE(leaveChanged(panel.number));
}

TEST_F(ValidateTest, AMaskedNumberWithoutAGapIsCheckedByItsRule) {
    panel.fields.Item("T_number").Check = "N 3,0";
    panel.number.setText("1234");
    person.expectBox("栏目number数据长度应小于3！", "错误信息");
    EXPECT_FALSE(leaveChanged(panel.number));
}

TEST_F(ValidateTest, AFaultyRuleReachesTheCaller) {
    panel.fields.Item("T_plain").Check = "A x";
    panel.plain.setText("a");
    EXPECT_EQ(failureOf([&] { (void)leave(panel.plain); }), number(Failure::TypeMismatch));
}

/// Double clicks, with a code table to pick from.
class DoubleClickTest : public FieldEventsTest {
protected:
    void SetUp() override {
        db.createCatalogue();
        db.createCodeTable("ZW", "职务", {2}, {{"01", "主任"}, {"02", "书记"}});
        panel.loading = true;
        field.Dmcod = "02";
        field.Dmcpt = "书记";
        panel.coded.setText("书记");
        panel.coded.setLocked(true);
        panel.loading = false;
    }

    test::TestDatabase db;
    cFieldItem& field = panel.fields.Item("T_coded");
};

TEST_F(DoubleClickTest, TheSelectorIsGivenTheFieldAsItIs) {
    person.onForm([&](ui::Form& open) {
        const auto& selector = dynamic_cast<fmGrpCod&>(open);
        EXPECT_EQ(selector.CodeTable, "ZW");
        EXPECT_EQ(selector.SearchText, "");
        EXPECT_TRUE(selector.IsCancelled);
        EXPECT_EQ(selector.Dmcod, "02");
        EXPECT_EQ(selector.Dmcpt, "书记");
    });
    panel.events.cItems_Dblclick(panel.coded);
}

TEST_F(DoubleClickTest, APickedCodeGoesIntoTheFieldAndItsNameIntoTheWidget) {
    person.onForm([](ui::Form& open) { open.click(test::controlOf<ui::CommandButton>(open, "cmdOK")); });
    panel.events.cItems_Dblclick(panel.coded);
    EXPECT_EQ(field.Dmcod, data::Value("01"));
    EXPECT_EQ(field.Dmcpt, "主任");
    EXPECT_EQ(panel.coded.Text(), "主任");
    EXPECT_TRUE(panel.info.IsChange);
}

TEST_F(DoubleClickTest, CancelLeavesValueAndTextAndDoesNotCountAsAChange) {
    person.onForm([](ui::Form& open) { open.click(test::controlOf<ui::CommandButton>(open, "cmdCancel")); });
    panel.events.cItems_Dblclick(panel.coded);
    EXPECT_EQ(field.code(), "02");
    EXPECT_EQ(field.Dmcpt, "书记");
    EXPECT_EQ(panel.coded.Text(), "书记");
    EXPECT_FALSE(panel.info.IsChange);
}

TEST_F(DoubleClickTest, ClosingTheSelectorByItsFrameIsCancel) {
    person.onForm([](ui::Form& open) { open.closeByFrame(); });
    panel.events.cItems_Dblclick(panel.coded);
    EXPECT_EQ(field.code(), "02");
    EXPECT_FALSE(panel.info.IsChange);
}

TEST_F(DoubleClickTest, ClearEmptiesValueAndTextAndCountsAsAChange) {
    person.onForm([](ui::Form& open) { open.click(test::controlOf<ui::CommandButton>(open, "cmdDel")); });
    panel.events.cItems_Dblclick(panel.coded);
    EXPECT_EQ(field.Dmcod, data::Value(""));
    EXPECT_EQ(field.Dmcpt, "");
    EXPECT_EQ(panel.coded.Text(), "");
    EXPECT_TRUE(panel.info.IsChange);
}

TEST_F(DoubleClickTest, CancelOnACodeWithoutANameEmptiesTheField) {
    field.Dmcpt = "";
    person.onForm([](ui::Form& open) { open.closeByFrame(); });
    panel.events.cItems_Dblclick(panel.coded);
    EXPECT_EQ(field.code(), "");
    EXPECT_EQ(panel.coded.Text(), "");
}

TEST_F(DoubleClickTest, TheWholeRoadFromTheMouseToTheField) {
    person.onForm(
        [&](ui::Form& open) {
            open.doubleClick(panel.coded);
            EXPECT_TRUE(panel.coded.hasFocus());
        },
        "panel");
    person.onForm([](ui::Form& open) { open.doubleClick(test::controlOf<ui::TreeView>(open, "tvGrpCod")); },
                  "fmGrpCod");
    person.desktop().showModal(panel);
    EXPECT_EQ(panel.coded.Text(), "主任");
}

TEST_F(DoubleClickTest, AMaskedBoxWithACodeTableDoesNothing) {
    panel.fields.Item("T_date").CodeTable = "ZW";
    panel.events.cItems_Dblclick(panel.date);
    EXPECT_TRUE(person.opened().empty());
}

TEST_F(DoubleClickTest, APlainTextBoxDoesNothing) {
    panel.events.cItems_Dblclick(panel.plain);
    EXPECT_TRUE(person.opened().empty());
}

TEST_F(DoubleClickTest, ATextBoxThatIsNoFieldDoesNothing) {
    panel.events.cItems_Dblclick(panel.other);
    EXPECT_TRUE(person.opened().empty());
}

TEST_F(DoubleClickTest, ALockedCodedBoxRefusesTypingAndPasting) {
    person.show(panel, [&](ui::Form& open) {
        open.moveFocus(panel.coded);
        test::typeText(open, "x");
        open.paste("y");
    });
    EXPECT_EQ(panel.coded.Text(), "书记");
    EXPECT_FALSE(panel.info.IsChange);
}

TEST(FieldNames, AFieldIsAWidgetWhoseNameEndsInV) {
    EXPECT_TRUE(isValueWidget("A01_A0101_v"));
    EXPECT_FALSE(isValueWidget("A01_A0101_V"));
    EXPECT_FALSE(isValueWidget("A01_A0101_c"));
    EXPECT_FALSE(isValueWidget("v"));
    EXPECT_TRUE(isCaptionWidget("A01_A0101_c"));
    EXPECT_FALSE(isCaptionWidget("A01_A0101_v"));
    EXPECT_EQ(fieldKey("A01_A0101_v"), "A01_A0101");
    EXPECT_EQ(fieldKey("v"), "");
}

} // namespace
} // namespace quillmere
