#include "platform/ui/Mask.h"

#include "platform/text/Text.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <string_view>

namespace quillmere::test {

namespace {

using ui::Mask;

constexpr auto year = "####";
constexpr auto month = "####年##月";
constexpr auto day = "####年##月##日";

Mask::State state(std::string_view text, std::size_t caret = 0, std::size_t selected = 0) {
    return {text::decode(text), caret, selected};
}

std::string poured(std::string_view mask, std::string_view pasted) {
    const Mask masked(mask, U'_');
    Mask::State edited{masked.empty(), 0, 0};
    masked.paste(edited, text::decode(pasted));
    return text::encode(edited.text);
}

void expectState(const Mask::State& expected, const Mask::State& actual) {
    EXPECT_EQ(text::encode(expected.text), text::encode(actual.text));
    EXPECT_EQ(expected.caret, actual.caret);
    EXPECT_EQ(expected.selected, actual.selected);
}

} // namespace

TEST(MaskTest, TheEmptyTextIsTheMaskWithThePromptInEveryPlace) {
    EXPECT_EQ(U"____年__月", Mask(month, U'_').empty());
    EXPECT_EQ(U"****", Mask(year, U'*').empty());
    EXPECT_EQ(U"", Mask("", U'_').empty());
}

TEST(MaskTest, DigitsAreThoseOfBothWidthsAndNoOthers) {
    for (const char32_t digit : std::u32string(U"0123456789０１２３４５６７８９"))
        EXPECT_TRUE(Mask::isDigit(digit)) << text::encode(digit);
    for (const char32_t other : std::u32string(U"/:／：a一①²٣_#"))
        EXPECT_FALSE(Mask::isDigit(other)) << text::encode(other);
}

TEST(MaskTest, AFullWidthDigitBecomesTheOrdinaryOne) {
    EXPECT_EQ(U'0', Mask::toDigit(U'０'));
    EXPECT_EQ(U'9', Mask::toDigit(U'９'));
    EXPECT_EQ(U'5', Mask::toDigit(U'5'));
    EXPECT_EQ(U'年', Mask::toDigit(U'年'));
}

TEST(MaskTest, APastedDateIsPouredGroupByGroup) {
    struct Row {
        std::string_view mask;
        std::string_view pasted;
        std::string_view text;
    };
    constexpr Row rows[] = {
        {year, "1990", "1990"},
        {year, "1990-03", "1990"},
        {year, "19900312", "1990"},
        {year, "1990年3月", "1990"},
        {year, "1990年03月12日", "1990"},
        {year, "90", "90__"},
        {year, "无", "____"},
        {month, "1990-03", "1990年03月"},
        {month, "1990-3", "1990年3_月"},
        {month, "19900312", "1990年03月"},
        {month, "1990年3月", "1990年3_月"},
        {month, "1990年03月12日", "1990年03月"},
        {month, "90.3", "90__年3_月"},
        {month, "(1990 / 03)", "1990年03月"},
        {month, "１９９０－０３", "1990年03月"},
        {month, "无", "____年__月"},
        {month, "", "____年__月"},
        {day, "1990-03", "1990年03月__日"},
        {day, "1990-3-12", "1990年3_月12日"},
        {day, "19900312", "1990年03月12日"},
        {day, "1990年3月", "1990年3_月__日"},
        {day, "1990年3月1日", "1990年3_月1_日"},
        {day, "1990年03月12日", "1990年03月12日"},
        {day, "1990-03-12 08:30:00", "1990年03月12日"},
        {day, "\t1990\r\n03\r\n12\r\n", "1990年03月12日"},
        {day, "----", "____年__月__日"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(row.text, poured(row.mask, row.pasted)) << row.mask << " <- " << row.pasted;
}

TEST(MaskTest, ARefusedCharacterLeavesATextOfAnotherShapeAlone) {
    const Mask mask(month, U'_');
    for (const char32_t refused : std::u32string(U"x_# 一")) {
        Mask::State edited = state("1990-03", 2, 1);
        mask.type(edited, refused);
        expectState(state("1990-03", 2, 1), edited);
    }
}

TEST(MaskTest, APasteWithoutDigitsLeavesTextAndSelectionAlone) {
    const Mask mask(month, U'_');
    for (const auto* pasted : {"", "无", "年月", "-"}) {
        Mask::State edited = state("1990年03月", 0, 8);
        mask.paste(edited, text::decode(pasted));
        expectState(state("1990年03月", 0, 8), edited);
    }
}

TEST(MaskTest, EditingPoursATextOfAnotherShapeThroughTheMaskGroupByGroup) {
    struct Row {
        std::string_view mask;
        std::string_view text;
        std::string_view afterDigit;
    };
    // A 7 typed at the front.
    constexpr Row rows[] = {
        {month, "", "7___年__月"},
        {month, "1990", "7990年__月"},
        {month, "1990-03", "7990年03月"},
        {month, "1990年3月", "7990年3_月"},
        {month, "199003", "7990年03月"},
        {month, "1990年03月12日", "7990年03月"},
        {day, "1990-3-12", "7990年3_月12日"},
        {day, "1990年03月", "7990年03月__日"},
        {year, "1990-03", "7990"},
        {year, "无", "7___"},
    };
    for (const Row& row : rows) {
        Mask::State edited = state(row.text);
        Mask(row.mask, U'_').type(edited, U'7');
        EXPECT_EQ(row.afterDigit, text::encode(edited.text)) << row.mask << " <- " << row.text;
        EXPECT_EQ(1U, edited.caret) << row.text;
    }
}

TEST(MaskTest, WhatIsSelectedStaysSelectedWhenTheTextIsPoured) {
    const Mask mask(month, U'_');
    struct Row {
        std::string_view text;
        std::size_t caret;
        std::size_t selected;
        std::string_view afterErase;
    };
    constexpr Row rows[] = {
        {"199003", 4, 2, "1990年__月"},          {"199003", 0, 2, "__90年03月"},
        {"1990-03", 0, 7, "____年__月"},         {"1990-03", 5, 1, "1990年_3月"},
        {"1990年03月12日", 0, 11, "____年__月"},
    };
    for (const Row& row : rows) {
        Mask::State erased = state(row.text, row.caret, row.selected);
        mask.erase(erased);
        EXPECT_EQ(row.afterErase, text::encode(erased.text)) << row.text;
        Mask::State back = state(row.text, row.caret, row.selected);
        mask.backspace(back);
        EXPECT_EQ(row.afterErase, text::encode(back.text)) << row.text;
    }
}

TEST(MaskTest, TheCaretKeepsItsDigitWhenTheTextIsPoured) {
    Mask::State edited = state("199003", 5, 0);
    Mask(month, U'_').backspace(edited);
    expectState(state("1990年_3月", 5), edited);
}

TEST(MaskTest, APositionBehindTheTextCountsAsItsEnd) {
    constexpr auto far = static_cast<std::size_t>(-1);
    const Mask mask(month, U'_');
    Mask::State typed = state("1990年03月", 100, far);
    mask.type(typed, U'5');
    expectState(state("1990年03月", 8), typed);
    Mask::State back = state("1990年03月", 100, 0);
    mask.backspace(back);
    expectState(state("1990年0_月", 6), back);
    Mask::State erased = state("1990年03月", 2, far);
    mask.erase(erased);
    expectState(state("19__年__月", 2), erased);
}

TEST(MaskTest, AMaskWithoutPlacesTakesNothing) {
    for (const auto* literals : {"", "年月"}) {
        const Mask mask(literals, U'_');
        Mask::State edited{mask.empty(), 0, 0};
        mask.type(edited, U'1');
        mask.backspace(edited);
        mask.erase(edited);
        mask.paste(edited, U"1990-03");
        EXPECT_EQ(mask.empty(), edited.text);
        EXPECT_LE(edited.caret, edited.text.size());
    }
}

TEST(MaskTest, PointingBehindTheLastPlaceGoesToTheFirstOpenOne) {
    const auto pointed = [](std::u32string_view text, std::size_t position) {
        return Mask(month, U'_').pointed(text, position);
    };
    EXPECT_EQ(0U, pointed(U"____年__月", 8));
    EXPECT_EQ(0U, pointed(U"____年__月", 7));
    EXPECT_EQ(6U, pointed(U"1990年0_月", 8));
    // There a digit still finds a place.
    EXPECT_EQ(5U, pointed(U"____年__月", 5));
    EXPECT_EQ(4U, pointed(U"____年__月", 4));
    // Nothing is open, or the text is not of the mask.
    EXPECT_EQ(8U, pointed(U"1990年03月", 8));
    EXPECT_EQ(7U, pointed(U"1990-03", 7));
}

TEST(MaskTest, WhateverTextAProgramSetsOneDigitMakesItFitTheMask) {
    constexpr unsigned seed = 20261121;
    std::mt19937 random(seed);
    const std::u32string alphabet = U"0123456789９年月日-/_ x";
    const auto below = [&](std::size_t bound) { return random() % bound; };
    for (int round = 0; round < 2000; ++round) {
        const Mask mask(day, U'_');
        Mask::State edited;
        for (std::size_t left = below(14); left > 0; --left)
            edited.text.push_back(alphabet[below(alphabet.size())]);
        edited.caret = below(16);
        edited.selected = below(16);
        const std::string before = text::encode(edited.text);
        mask.type(edited, U'4');
        const std::u32string blank = mask.empty();
        ASSERT_EQ(blank.size(), edited.text.size()) << before;
        for (std::size_t i = 0; i < blank.size(); ++i) {
            const bool place = blank[i] == U'_';
            ASSERT_TRUE(edited.text[i] == blank[i] || (place && Mask::isDigit(edited.text[i]))) << before;
        }
        ASSERT_LE(edited.caret, blank.size()) << before;
        ASSERT_EQ(0U, edited.selected) << before;
    }
}

} // namespace quillmere::test
