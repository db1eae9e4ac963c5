#include "sample/Identity.h"

#include "platform/Error.h"

#include <gtest/gtest.h>

#include <regex>

namespace quillmere::sample {
namespace {

TEST(Identity, CheckCharacterOfTheStandardsExamples) {
    EXPECT_EQ(identityCheck("11010519491231002"), 'X');
    EXPECT_EQ(identityCheck("44052418800101001"), '4');
}

TEST(Identity, NumberJoinsItsParts) {
    EXPECT_EQ(identityNumber("110105", "1949-12-31", "002"), "11010519491231002X");
}

TEST(Identity, PartsOfAnotherLengthAreRefused) {
    EXPECT_THROW((void)identityNumber("1101", "1949-12-31", "002"), Error);
}

TEST(Identity, RecordKeyHasTheFormOfAnIdentifierWithoutBraces) {
    Random random(1);
    const std::string key = recordKey(random);
    EXPECT_TRUE(
        std::regex_match(key, std::regex("[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-8[0-9A-F]{3}-[0-9A-F]{12}")))
        << key;
    EXPECT_NE(key, recordKey(random));
}

TEST(Random, SameSeedSameValues) {
    Random a(7);
    Random b(7);
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(a.between(-5, 500), b.between(-5, 500));
}

TEST(Random, BetweenReachesBothBoundsAndNoFurther) {
    Random random(3);
    int lowest = 9;
    int highest = 0;
    for (int i = 0; i < 200; ++i) {
        const int value = random.between(2, 4);
        lowest = std::min(lowest, value);
        highest = std::max(highest, value);
    }
    EXPECT_EQ(lowest, 2);
    EXPECT_EQ(highest, 4);
}

} // namespace
} // namespace quillmere::sample
