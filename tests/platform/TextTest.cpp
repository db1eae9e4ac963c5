#include "platform/text/Text.h"

#include "support/FailureNumber.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillmere::text {
namespace {

using Pieces = std::vector<std::string>;

// Ill-formed in turn: a lone tail, a cut-off lead, an overlong "/", a surrogate, beyond the last code
// point, a lead that there is not.
const std::string loneTail = "\x80";
const std::string cutOff = "\xE6\x9D";
const std::string overlong = "\xC0\xAF";
const std::string surrogate = "\xED\xA0\x80";
const std::string tooFar = "\xF4\x90\x80\x80";
const std::string noLead = "\xFF";

TEST(TextLength, CountsCodePoints) {
    EXPECT_EQ(length(""), 0U);
    EXPECT_EQ(length("abc"), 3U);
    EXPECT_EQ(length("é"), 1U);
    EXPECT_EQ(length("李四"), 2U);
    EXPECT_EQ(length("𠀀a"), 2U);
}

TEST(TextLength, EachIllFormedByteIsACharacter) {
    EXPECT_EQ(length(loneTail), 1U);
    EXPECT_EQ(length(cutOff), 2U);
    EXPECT_EQ(length(overlong), 2U);
    EXPECT_EQ(length(surrogate), 3U);
    EXPECT_EQ(length(tooFar), 4U);
    EXPECT_EQ(length(noLead), 1U);
}

TEST(TextLength, AnIllFormedByteDoesNotSwallowWhatFollows) {
    EXPECT_EQ(length("\xE6"
                     "ab李"),
              4U);
}

TEST(TextLeft, TakesCharactersNotBytes) {
    EXPECT_EQ(left("李四abc", 1), "李");
    EXPECT_EQ(left("李四abc", 3), "李四a");
    EXPECT_EQ(left("李四", 0), "");
}

TEST(TextLeft, MoreThanThereAreIsAll) { EXPECT_EQ(left("李四", 9), "李四"); }

TEST(TextRight, TakesCharactersNotBytes) {
    EXPECT_EQ(right("abc李四", 1), "四");
    EXPECT_EQ(right("abc李四", 3), "c李四");
    EXPECT_EQ(right("李四", 0), "");
}

TEST(TextRight, MoreThanThereAreIsAll) { EXPECT_EQ(right("李四", 9), "李四"); }

TEST(TextMid, CountsFromOne) {
    EXPECT_EQ(mid("A01李四", 1, 3), "A01");
    EXPECT_EQ(mid("A01李四", 4, 1), "李");
}

TEST(TextMid, WithoutACountGoesToTheEnd) { EXPECT_EQ(mid("A01李四", 4), "李四"); }

TEST(TextMid, BeyondTheEndIsEmpty) {
    EXPECT_EQ(mid("李四", 3), "");
    EXPECT_EQ(mid("李四", 99, 2), "");
}

TEST(TextMid, PositionNoughtIsAnInvalidCall) {
    EXPECT_EQ(failureOf([] { (void)mid("abc", 0, 1); }), number(Failure::InvalidCall));
}

TEST(TextTrim, TakesBlanksFromBothEndsOnly) {
    EXPECT_EQ(trim("  a b  "), "a b");
    EXPECT_EQ(trim("   "), "");
    EXPECT_EQ(trim(""), "");
}

TEST(TextTrim, OnlyThePlainBlankIsABlank) {
    EXPECT_EQ(trim("　李　"), "　李　");
    EXPECT_EQ(trim("\ta\r\n"), "\ta\r\n");
}

TEST(TextReplaceAll, ReplacesEveryPlaceOnce) {
    EXPECT_EQ(replaceAll("____-__", "_", ""), "-");
    EXPECT_EQ(replaceAll("aaa", "aa", "b"), "ba");
    EXPECT_EQ(replaceAll("a", "a", "aa"), "aa");
    EXPECT_EQ(replaceAll("李四李", "李", "王"), "王四王");
}

TEST(TextReplaceAll, NothingToLookForLeavesTheText) {
    EXPECT_EQ(replaceAll("abc", "", "x"), "abc");
    EXPECT_EQ(replaceAll("", "a", "x"), "");
}

TEST(TextSplit, KeepsEmptyPieces) {
    EXPECT_EQ(split("a,,b,", ","), (Pieces{"a", "", "b", ""}));
    EXPECT_EQ(split(",", ","), (Pieces{"", ""}));
}

TEST(TextSplit, WithoutTheSeparatorIsOnePiece) {
    EXPECT_EQ(split("abc", ","), (Pieces{"abc"}));
    EXPECT_EQ(split("abc", ""), (Pieces{"abc"}));
}

TEST(TextSplit, TheEmptyTextHasNoPiece) { EXPECT_EQ(split("", ","), Pieces{}); }

TEST(TextSplit, ASeparatorMayHaveSeveralCharacters) {
    EXPECT_EQ(split("一\r\n二\r\n", "\r\n"), (Pieces{"一", "二", ""}));
}

TEST(TextJoin, PutsTheSeparatorBetween) {
    EXPECT_EQ(join({"15", "18"}, "或"), "15或18");
    EXPECT_EQ(join({"15"}, "或"), "15");
    EXPECT_EQ(join({"", ""}, ","), ",");
    EXPECT_EQ(join({}, ","), "");
}

TEST(TextCase, PlainAndFullWidthLettersHaveACase) {
    EXPECT_EQ(lower("A01_Zz[@"), "a01_zz[@");
    EXPECT_EQ(upper("a01_zZ{`"), "A01_ZZ{`");
    EXPECT_EQ(lower("ＡＺ李"), "ａｚ李");
    EXPECT_EQ(upper("ａｚ李"), "ＡＺ李");
}

TEST(TextCase, OtherLettersAreLeftAsTheyAre) {
    EXPECT_EQ(lower("É"), "É");
    EXPECT_EQ(upper("ß"), "ß");
}

TEST(TextCase, IllFormedBytesAreLeftAsTheyAre) {
    EXPECT_EQ(lower("A" + loneTail + "B"), "a" + loneTail + "b");
}

TEST(TextEqualsNoCase, PassesOverCaseAndNothingElse) {
    EXPECT_TRUE(equalsNoCase("VarChar", "VARCHAR"));
    EXPECT_TRUE(equalsNoCase("Ａ", "ａ"));
    EXPECT_FALSE(equalsNoCase("a", "Ａ"));
    EXPECT_FALSE(equalsNoCase("a[", "a{"));
    EXPECT_FALSE(equalsNoCase("abc", "ab"));
    EXPECT_TRUE(equalsNoCase("", ""));
}

TEST(TextEqualsNoCase, DifferentIllFormedBytesDiffer) {
    EXPECT_FALSE(equalsNoCase("\x80", "\x81"));
    EXPECT_TRUE(equalsNoCase("\x80", "\x80"));
}

TEST(TextStartsWithNoCase, ComparesThePrefix) {
    EXPECT_TRUE(startsWithNoCase("A1ctrlUserA01", "a1CTRLuser"));
    EXPECT_TRUE(startsWithNoCase("abc", ""));
    EXPECT_FALSE(startsWithNoCase("ab", "abc"));
    EXPECT_FALSE(startsWithNoCase("xabc", "abc"));
}

TEST(TextEndsWith, RegardsCase) {
    EXPECT_TRUE(endsWith("A01_A0101_v", "_v"));
    EXPECT_FALSE(endsWith("A01_A0101_V", "_v"));
    EXPECT_FALSE(endsWith("v", "_v"));
}

TEST(TextDecode, GivesCodePoints) { EXPECT_EQ(decode("aé李𠀀"), U"aé李𠀀"); }

TEST(TextDecode, IllFormedBytesBecomeTheReplacementCharacter) {
    EXPECT_EQ(decode("a" + loneTail + "b"), U"a\uFFFDb");
    EXPECT_EQ(decode(surrogate), U"\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(decode(overlong + noLead), U"\uFFFD\uFFFD\uFFFD");
}

TEST(TextDecode, TheEdgesOfEachLengthAreWellFormed) {
    for (const char32_t edge :
         {char32_t{0x7F}, char32_t{0x80}, char32_t{0x7FF}, char32_t{0x800}, char32_t{0xD7FF},
          char32_t{0xE000}, char32_t{0xFFFF}, char32_t{0x10000}, char32_t{0x10FFFF}})
        EXPECT_EQ(decode(encode(edge)), std::u32string(1, edge)) << static_cast<unsigned>(edge);
}

TEST(TextDecode, AZeroByteIsACharacter) { EXPECT_EQ(decode(std::string("a\0b", 3)).size(), 3U); }

TEST(TextEncode, WhatIsNoCharacterBecomesTheReplacementCharacter) {
    EXPECT_EQ(encode(char32_t{0xD800}), "\uFFFD");
    EXPECT_EQ(encode(char32_t{0x110000}), "\uFFFD");
}

TEST(TextEncode, GivesBackWhatWasDecoded) { EXPECT_EQ(encode(decode("aé李𠀀")), "aé李𠀀"); }

} // namespace
} // namespace quillmere::text
