#include "scenario/Script.h"
#include "scenario/Stop.h"

#include <gtest/gtest.h>

namespace quillmere::scenario {

namespace {

std::string reasonOf(std::string_view line) {
    try {
        (void)splitWords(line);
    } catch (const Stop& stop) {
        return stop.reason;
    }
    return {};
}

TEST(Script, WordsAreSeparatedByBlanks) {
    EXPECT_EQ(splitWords("type  A01_A0101_v\t张三 "), (Words{"type", "A01_A0101_v", "张三"}));
    EXPECT_EQ(splitWords("  open"), Words{"open"});
    EXPECT_EQ(splitWords(""), Words{});
}

TEST(Script, AQuotationHoldsAnArgumentTogether) {
    EXPECT_EQ(splitWords(R"(sql "select 'a b' from t")"), (Words{"sql", "select 'a b' from t"}));
    EXPECT_EQ(splitWords(R"("type" "" "x")"), (Words{"type", "", "x"}));
    EXPECT_EQ(splitWords(R"(keys " ")"), (Words{"keys", " "}));
}

TEST(Script, EscapesStandForThemselvesInAQuotation) {
    EXPECT_EQ(splitWords(R"(keys "a\"b\\c\nd\re\tf")"), (Words{"keys", "a\"b\\c\nd\re\tf"}));
}

TEST(Script, ABackslashOutsideAQuotationIsPlain) {
    EXPECT_EQ(splitWords(R"(choose photos\a.jpg)"), (Words{"choose", "photos\\a.jpg"}));
}

TEST(Script, ANumberSignBehindTheFirstWordIsNoComment) {
    EXPECT_EQ(splitWords("keys #1"), (Words{"keys", "#1"}));
}

TEST(Script, BadLinesAreRefused) {
    EXPECT_EQ(reasonOf(R"(sql "select)"), "a quotation does not end");
    EXPECT_EQ(reasonOf(R"(sql "select\)"), "a quotation does not end");
    EXPECT_EQ(reasonOf(R"(sql "a"b)"), "no blank behind a closing quote");
    EXPECT_EQ(reasonOf(R"(sql "a""b")"), "no blank behind a closing quote");
    EXPECT_EQ(reasonOf(R"(type W 5"x)"), "a quote in the middle of an argument");
    EXPECT_EQ(reasonOf(R"(type W "\x")"), "unknown escape \\x");
}

TEST(Script, CommentsAndEmptyLinesAreNoCommandsButCount) {
    Script script("# first\n\n  # second\nopen\n \t\nclose");
    const auto first = script.next();
    ASSERT_TRUE(first);
    EXPECT_EQ(first->text, "open");
    EXPECT_EQ(first->number, 4);
    const auto second = script.next();
    ASSERT_TRUE(second);
    EXPECT_EQ(second->text, "close");
    EXPECT_EQ(second->number, 6);
    EXPECT_FALSE(script.next());
    EXPECT_EQ(script.lastNumber(), 6);
}

TEST(Script, ALineKeepsItsIndentationAndLosesItsLineEnd) {
    Script script("open\r\n  close\r\n");
    EXPECT_EQ(script.next()->text, "open");
    EXPECT_EQ(script.next()->text, "  close");
    EXPECT_FALSE(script.next());
}

TEST(Script, AByteOrderMarkIsNoPartOfTheFirstCommand) {
    Script script("\xEF\xBB\xBFopen");
    EXPECT_EQ(script.next()->text, "open");
}

TEST(Script, AnEmptyFileHasNoCommand) {
    Script script("");
    EXPECT_FALSE(script.next());
    EXPECT_EQ(script.lastNumber(), 0);
}

} // namespace

} // namespace quillmere::scenario
