#include "binding/KeyFilter.h"

#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace quillmere {
namespace {

struct Row {
    const char* name;
    KeyFilter filter;
    std::u32string accepted;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

class KeyFilterTable : public testing::TestWithParam<Row> {
protected:
    KeyFilterTable() { install(GetParam().filter, box); }

    char32_t press(char32_t character) {
        box.KeyPress.raise(character);
        return character;
    }

    test::ScriptedPerson person;
    ui::TextBox box{"box"};
};

TEST_P(KeyFilterTable, AcceptsItsKeysAndTurnsEveryOtherIntoTheBell) {
    const std::u32string& accepted = GetParam().accepted;
    for (char32_t key = 1; key < 256; ++key) {
        if (key == ui::key::Enter) continue;
        const bool passes = accepted.find(key) != std::u32string::npos;
        EXPECT_EQ(press(key), passes ? key : char32_t{7}) << "key " << static_cast<unsigned>(key);
    }
}

TEST_P(KeyFilterTable, RefusesWhatOnlyLooksLikeADigit) {
    EXPECT_EQ(press(U'１'), char32_t{7});
    EXPECT_EQ(press(U'一'), char32_t{7});
    EXPECT_EQ(press(U'٣'), char32_t{7});
}

TEST_P(KeyFilterTable, LeavesEnterAsItIs) { EXPECT_EQ(press(ui::key::Enter), char32_t{13}); }

INSTANTIATE_TEST_SUITE_P(Filters, KeyFilterTable,
                         testing::Values(Row{"Digits", KeyFilter::Digits, U"0123456789\b"},
                                         Row{"Decimal", KeyFilter::Decimal, U"0123456789\b."},
                                         Row{"Phone", KeyFilter::Phone, U"0123456789\b -.\t"}),
                         [](const auto& row) { return std::string(row.param.name); });

class KeyFilterTest : public testing::Test {
protected:
    test::ScriptedPerson person;
    ui::Form form{"form", "form"};
    ui::TextBox& box = form.add<ui::TextBox>("box");
    ui::TextBox& next = form.add<ui::TextBox>("next");
};

TEST_F(KeyFilterTest, ARefusedKeyEntersNothing) {
    install(KeyFilter::Digits, box);
    person.show(form, [&](ui::Form& open) {
        open.moveFocus(box);
        test::typeText(open, "1a2.3汉");
    });
    EXPECT_EQ(box.Text(), "123");
}

TEST_F(KeyFilterTest, ADecimalBoxTakesAnyNumberOfPoints) {
    install(KeyFilter::Decimal, box);
    person.show(form, [&](ui::Form& open) {
        open.moveFocus(box);
        test::typeText(open, "-1.2.3");
    });
    EXPECT_EQ(box.Text(), "1.2.3");
}

TEST_F(KeyFilterTest, BackspaceStillTakesAway) {
    install(KeyFilter::Digits, box);
    person.show(form, [&](ui::Form& open) {
        open.moveFocus(box);
        test::typeText(open, "12");
        open.pressKey({ui::key::Backspace});
    });
    EXPECT_EQ(box.Text(), "1");
}

TEST_F(KeyFilterTest, EnterMovesOnWithoutSelectingTheNextWidgetsContent) {
    install(KeyFilter::Digits, box);
    next.setText("content");
    person.show(form, [&](ui::Form& open) {
        open.moveFocus(box);
        open.pressKey({ui::key::Enter});
        EXPECT_TRUE(next.hasFocus());
        EXPECT_EQ(next.SelLength(), 0U);
    });
    EXPECT_EQ(box.Text(), "");
}

TEST_F(KeyFilterTest, WhatIsPastedIsNotFiltered) {
    install(KeyFilter::Digits, box);
    person.show(form, [&](ui::Form& open) {
        open.moveFocus(box);
        open.paste("abc");
    });
    EXPECT_EQ(box.Text(), "abc");
}

TEST_F(KeyFilterTest, NoFilterLetsEverythingPass) {
    install(KeyFilter::None, box);
    person.show(form, [&](ui::Form& open) {
        open.moveFocus(box);
        test::typeText(open, "a汉-");
        open.pressKey({ui::key::Enter});
        EXPECT_TRUE(box.hasFocus());
    });
    EXPECT_EQ(box.Text(), "a汉-");
}

} // namespace
} // namespace quillmere
