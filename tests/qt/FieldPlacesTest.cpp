#include "adapters/qt/FieldPlaces.h"

#include <gtest/gtest.h>

namespace quillmere::qt {
namespace {

using Places = std::vector<FieldPlace>;

TEST(FieldPlaces, FieldsGoRowByRow) {
    EXPECT_EQ(placesFor({false, false, false}, 2, false), (Places{{0, 0}, {0, 1}, {1, 0}}));
}

TEST(FieldPlaces, AWideFieldTakesTwoRowsOfItsOwn) {
    EXPECT_EQ(placesFor({false, true, false}, 2, false), (Places{{0, 0}, {1, 0}, {3, 0}}));
}

TEST(FieldPlaces, TheColumnUnderTheCornerBeginsBelowIt) {
    const Places places = placesFor(std::vector<bool>(cornerRows + 2, false), 2, true);
    for (int row = 0; row < cornerRows; ++row)
        EXPECT_EQ(places[static_cast<std::size_t>(row)], (FieldPlace{row, 0}));
    EXPECT_EQ(places[cornerRows], (FieldPlace{cornerRows, 0}));
    EXPECT_EQ(places[cornerRows + 1], (FieldPlace{cornerRows, 1}));
}

TEST(FieldPlaces, AWideFieldKeepsClearOfTheCorner) {
    EXPECT_EQ(placesFor({false, true}, 3, true), (Places{{0, 0}, {cornerRows, 0}}));
}

TEST(FieldPlaces, InOneColumnTheCornerHasTheFirstRow) {
    EXPECT_EQ(placesFor({false, true, false}, 1, true), (Places{{1, 0}, {2, 0}, {4, 0}}));
}

} // namespace
} // namespace quillmere::qt
