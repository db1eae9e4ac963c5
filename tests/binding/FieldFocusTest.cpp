#include "FieldEventsBench.h"

#include "support/FailureNumber.h"

namespace quillmere {
namespace {

/// The help text and the caret.
using FieldFocusTest = test::FieldEventsBench;

TEST_F(FieldFocusTest, AFieldShowsItsExplanationWhileItHasTheFocus) {
    person.show(panel, [&](ui::Form& open) {
        open.moveFocus(panel.plain);
        EXPECT_EQ(panel.labExplain.Caption(), "说明plain");
        open.moveFocus(panel.other);
        EXPECT_EQ(panel.labExplain.Caption(), "");
    });
}

TEST_F(FieldFocusTest, LosingTheFocusBlanksTheExplanation) {
    panel.labExplain.setCaption("old");
    panel.events.cItems_LostFocus();
    EXPECT_EQ(panel.labExplain.Caption(), "");
}

TEST_F(FieldFocusTest, AMaskedBoxTakesItsCaretToTheFront) {
    panel.date.setSelStart(4);
    panel.events.cItems_GotFocus(panel.date);
    EXPECT_EQ(panel.date.SelStart(), 0U);
    EXPECT_EQ(panel.labExplain.Caption(), "说明date");
}

TEST_F(FieldFocusTest, OnAPanelThatDoesNotAskForItTheCaretStays) {
    panel.toFront = false;
    panel.date.setSelStart(4);
    panel.events.cItems_GotFocus(panel.date);
    EXPECT_EQ(panel.date.SelStart(), 4U);
}

TEST_F(FieldFocusTest, AValueWidgetWithoutAFieldIsAFailure) {
    EXPECT_EQ(failureOf([&] { panel.events.cItems_GotFocus(panel.stray); }), number(Failure::InvalidCall));
    EXPECT_EQ(failureOf([&] { panel.events.cItems_Dblclick(panel.stray); }), number(Failure::InvalidCall));
}

} // namespace
} // namespace quillmere
