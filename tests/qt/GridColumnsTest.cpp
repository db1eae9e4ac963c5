#include "adapters/qt/GridColumns.h"

#include <gtest/gtest.h>

namespace quillmere::test {

namespace {

using Widths = std::vector<int>;

TEST(GridColumnsTest, ColumnsWithRoomAreAsWideAsDesigned) {
    EXPECT_EQ((Widths{80, 240}), qt::fitColumns({{80, 50, 60}, {240, 50, 90}}, 600));
}

TEST(GridColumnsTest, AColumnIsWideEnoughForItsHeadingAndItsTexts) {
    EXPECT_EQ((Widths{70, 160}), qt::fitColumns({{20, 70, 40}, {100, 70, 160}}, 600));
}

TEST(GridColumnsTest, AVeryLongTextIsCut) {
    EXPECT_EQ((Widths{320, 400}), qt::fitColumns({{100, 70, 2000}, {400, 70, 2000}}, 5000));
}

TEST(GridColumnsTest, WhereRoomIsShortTheSpareWidthIsGivenUpInEqualParts) {
    EXPECT_EQ((Widths{150, 250}), qt::fitColumns({{200, 50, 100}, {300, 50, 200}}, 400));
}

TEST(GridColumnsTest, NoColumnIsCutForTheRoom) {
    EXPECT_EQ((Widths{100, 200}), qt::fitColumns({{200, 50, 100}, {300, 50, 200}}, 120));
    EXPECT_EQ((Widths{100, 200}), qt::fitColumns({{100, 50, 100}, {200, 50, 200}}, 120));
}

TEST(GridColumnsTest, AHiddenColumnTakesNothing) {
    EXPECT_EQ((Widths{0, 90}), qt::fitColumns({{}, {90, 50, 60}}, 600));
}

} // namespace

} // namespace quillmere::test
