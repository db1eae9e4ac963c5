#include "FieldEventsBench.h"

namespace quillmere {
namespace {

/// When a record counts as changed, and which widgets are fields.
using FieldChangeTest = test::FieldEventsBench;

TEST_F(FieldChangeTest, AChangedTextBoxMarksTheRecord) {
    panel.plain.setText("a");
    EXPECT_TRUE(panel.info.IsChange);
}

TEST_F(FieldChangeTest, AChangedMaskedBoxMarksTheRecord) {
    panel.date.setText("1990-01");
    EXPECT_TRUE(panel.info.IsChange);
}

TEST_F(FieldChangeTest, FillingTheWidgetsWhileLoadingMarksNothing) {
    panel.loading = true;
    panel.plain.setText("a");
    panel.date.setText("1990-01");
    EXPECT_FALSE(panel.info.IsChange);
}

TEST_F(FieldChangeTest, AWidgetThatIsNoFieldMarksNothing) {
    panel.other.setText("a");
    EXPECT_FALSE(panel.info.IsChange);
}

TEST_F(FieldChangeTest, AToggledCheckBoxMarksNothing) {
    panel.check.setValue(1);
    panel.events.cItems_Change(panel.check);
    EXPECT_FALSE(panel.info.IsChange);
}

TEST_F(FieldChangeTest, TheSameTextAgainMarksNothing) {
    panel.loading = true;
    panel.plain.setText("a");
    panel.loading = false;
    panel.plain.setText("a");
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
