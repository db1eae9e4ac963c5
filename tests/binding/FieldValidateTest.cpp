#include "FieldEventsBench.h"

#include "support/FailureNumber.h"

namespace quillmere {
namespace {

/// The check on leaving a field.
class FieldValidateTest : public test::FieldEventsBench {
protected:
    template <class Box>
    void expectRefused(Box& box, const char* text, const char* complaint) {
        box.setText(text);
        person.expectBox(complaint, "错误信息");
        EXPECT_FALSE(leaveChanged(box));
    }
    /// A date of which the month has one digit is completed as the focus goes.
    void expectCompleted() {
        panel.date.setText("1990-3_");
        EXPECT_TRUE(leaveChanged(panel.date));
        EXPECT_EQ(panel.date.Text(), "1990-03");
    }
};

TEST_F(FieldValidateTest, AnUnchangedRecordIsNotChecked) {
    panel.fields.Item("T_plain").Check = "A 1";
    panel.loading = true;
    panel.plain.setText("too long");
    panel.loading = false;
    EXPECT_TRUE(leave(panel.plain));
}

TEST_F(FieldValidateTest, NothingIsCheckedWhileLoading) {
    panel.fields.Item("T_plain").Check = "A 1";
    panel.plain.setText("too long");
    panel.loading = true;
    EXPECT_TRUE(leaveChanged(panel.plain));
}

TEST_F(FieldValidateTest, AWidgetThatIsNoFieldIsNotChecked) {
    panel.other.setText("O'Brien");
    EXPECT_TRUE(leaveChanged(panel.other));
}

TEST_F(FieldValidateTest, AComplaintIsShownAndKeepsTheFocus) {
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

TEST_F(FieldValidateTest, ATextThatPassesLetsTheFocusGo) {
    panel.fields.Item("T_plain").Check = "A 3";
    panel.plain.setText("abc");
    EXPECT_TRUE(leaveChanged(panel.plain));
}

TEST_F(FieldValidateTest, AnEmptyTextBoxIsNotCheckedAlsoWhereItIsRequired) {
    panel.fields.Item("T_plain").Check = "L 15,18";
    panel.fields.Item("T_plain").IsNUll = false;
    EXPECT_TRUE(leaveChanged(panel.plain));
}

TEST_F(FieldValidateTest, ACodedTextBoxIsCheckedByTheNameThatItShows) {
    panel.fields.Item("T_coded").Check = "A 2";
    expectRefused(panel.coded, "主任医师", "栏目coded最多可以录入2个字符！");
}

TEST_F(FieldValidateTest, ACheckBoxIsNotChecked) { EXPECT_TRUE(leaveChanged(panel.check)); }

TEST_F(FieldValidateTest, AMaskOfPromptCharactersIsBlankAndPassesAlsoInAChangedRecord) {
    panel.fields.Item("T_date").Check = "B 1900-01,2100-01";
    ASSERT_EQ(panel.date.Text(), "____-__");
    EXPECT_TRUE(leaveChanged(panel.date));
    EXPECT_TRUE(leaveChanged(panel.number));
}

TEST_F(FieldValidateTest, AMaskedBoxWithoutAnyTextIsBlank) {
    panel.date.setText("");
    EXPECT_TRUE(leaveChanged(panel.date));
}

TEST_F(FieldValidateTest, AHalfFilledDateIsRefusedByItsCaption) {
    expectRefused(panel.date, "199_-__", "栏目date录入数据不规范！");
    EXPECT_EQ(panel.date.Text(), "199_-__");
    EXPECT_EQ(person.boxes()[0].icon, ui::Icon::None);
}

TEST_F(FieldValidateTest, AHalfFilledDateWhoseRestIsADatePassesReformatted) { expectCompleted(); }

TEST_F(FieldValidateTest, TheCheckSeesTheReformattedDateAndTheTextStaysReformatted) {
    panel.fields.Item("T_date").Check = "L 6";
    expectRefused(panel.date, "1990-3_", "栏目date长度应该为6位。");
    EXPECT_EQ(panel.date.Text(), "1990-03");
}

TEST_F(FieldValidateTest, ADateThatDoesNotExistIsRefused) {
    expectRefused(panel.date, "1990-13", "栏目date录入数据不规范！");
}

TEST_F(FieldValidateTest, TheTypeOfADateFieldMayStandInCapitals) {
    panel.fields.Item("T_date").FieldType = "DateTime";
    expectCompleted();
}

TEST_F(FieldValidateTest, AMaskedNumberWithAGapIsRefusedThoughItsDigitsWouldBeANumber) {
    expectRefused(panel.number, "12_4", "栏目number录入数据不规范！");
}

TEST_F(FieldValidateTest, AMaskedNumberWithoutAGapIsCheckedByItsRule) {
    panel.fields.Item("T_number").Check = "N 3,0";
    expectRefused(panel.number, "1234", "栏目number数据长度应小于3！");
}

TEST_F(FieldValidateTest, AFaultyRuleReachesTheCaller) {
    panel.fields.Item("T_plain").Check = "A x";
    panel.plain.setText("a");
    EXPECT_EQ(failureOf([&] { (void)leave(panel.plain); }), number(Failure::TypeMismatch));
}

} // namespace
} // namespace quillmere
