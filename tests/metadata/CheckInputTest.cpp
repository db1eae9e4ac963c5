#include "metadata/CheckInput.h"

#include "metadata/cFieldItem.h"
#include "platform/convert/Clock.h"
#include "support/FailureNumber.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace quillmere {
namespace {

struct Row {
    const char* name;
    const char* rule;
    std::string text;
    /// Empty when the text passes.
    const char* complaint;
    const char* fieldType = "varchar";
    const char* fieldLength = "50";
    const char* style = "";
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.rule << " on [" << row.text << "]"; }

class CheckInputTable : public testing::TestWithParam<Row> {
protected:
    void SetUp() override { clock::fix(convert::DateTime{2026, 11, 21, 9, 30, 0}); }
    void TearDown() override { clock::fix(std::nullopt); }
};

void fill(cFieldItem& item, const Row& row) {
    item.ItemDesc = "栏目";
    item.Check = row.rule;
    item.FieldType = row.fieldType;
    item.FieldLength = row.fieldLength;
    item.Style = row.style;
}

TEST_P(CheckInputTable, AnswersWithTheComplaint) {
    cFieldItem item;
    fill(item, GetParam());
    EXPECT_EQ(CheckInput(item, GetParam().text), GetParam().complaint);
}

std::string repeated(int count, const char* piece) {
    std::string text;
    for (int i = 0; i < count; ++i)
        text += piece;
    return text;
}

constexpr const char* quoteComplaint = "栏目输入存在非法字符 ” ' “，请您将其改为 “ ‘ ”，或者去掉。 ";

const Row quotes[] = {
    {"QuoteWithoutRule", "", "O'Brien", quoteComplaint},
    {"QuoteBeforeTheRule", "N 10,2", "'", quoteComplaint},
    {"QuoteWithAMalformedRule", "N x", "O'Brien", quoteComplaint},
    {"TypographicQuotePasses", "", "O‘Brien", ""},
    {"NoRulePasses", "", "anything", ""},
};

const Row malformed[] = {
    {"LetterAlone", "N", "no number", ""},
    {"LetterAloneOfLengths", "L", "", ""},
    {"BlankInFront", " N 10,2", "no number", ""},
    {"TwoLetters", "NN 10,2", "no number", ""},
    {"UnknownLetter", "X 10", "anything", ""},
    {"FurtherPiecesAreIgnored", "A 3 9", "four", "栏目最多可以录入3个字符！"},
    {"LowerCaseLetter", "n 10,2", "no number", "栏目应该为数字！"},
    {"LowerCaseAtMost", "a 3", "four", "栏目最多可以录入3个字符！"},
    {"LowerCaseLengths", "l 3", "four", "栏目长度应该为3位。"},
    {"LowerCaseBounds", "b 5,6", "4", "栏目应该在5至6之间。"},
    {"NoLengthAtAllFailsEveryText", "L ", "a", "栏目长度应该为位。"},
};

const Row numbers[] = {
    {"EmptyPasses", "N 10,2", "", ""},
    {"NotNumeric", "N 10,2", "12a", "栏目应该为数字！"},
    {"NineWholeDigits", "N 10,2", "123456789", "栏目整数位数最多为8位！"},
    {"EightWholeDigits", "N 10,2", "12345678", ""},
    {"FourteenCharacters", "N 10,2", "12345678.12345", "栏目数据长度应小于10！"},
    {"LengthEqualToTotalPasses", "N 10,2", "1234.56789", ""},
    {"LengthOneAboveTotal", "N 10,2", "1234.567890", "栏目数据长度应小于10！"},
    {"DecimalsAreNotCounted", "N 10,2", "1.2345678", ""},
    {"SignCountsInTheWholePart", "N 10,2", "-12345678", "栏目整数位数最多为8位！"},
    {"SignWithSevenDigits", "N 10,2", "-1234567", ""},
    {"SignAndPointCountInTheLength", "N 5,0", "-12.34", "栏目数据长度应小于5！"},
    {"PointFirst", "N 4,2", ".25", ""},
    {"NoDecimals", "N 3,0", "1000", "栏目数据长度应小于3！"},
    {"NoWholeDigitsAllowed", "N 2,2", "1", "栏目整数位数最多为0位！"},
    {"MoreDecimalsThanTotal", "N 2,3", ".5", "栏目整数位数最多为-1位！"},
};

const Row atMost[] = {
    {"HundredCharacters", "A 100", repeated(100, "a"), ""},
    {"HundredAndOneCharacters", "A 100", repeated(101, "a"), "栏目最多可以录入100个字符！"},
    {"HundredChineseCharacters", "A 100", repeated(100, "汉"), ""},
    {"HundredAndOneChineseCharacters", "A 100", repeated(101, "汉"), "栏目最多可以录入100个字符！"},
    {"EmptyText", "A 100", "", ""},
    {"EmptyTextAtMostNone", "A 0", "", ""},
    {"OneCharacterAtMostNone", "A 0", "a", "栏目最多可以录入0个字符！"},
};

const Row lengths[] = {
    {"Fifteen", "L 15,18", repeated(15, "1"), ""},
    {"Sixteen", "L 15,18", repeated(16, "1"), "栏目长度应该为15或18位。"},
    {"Eighteen", "L 15,18", repeated(18, "1"), ""},
    {"EmptyFails", "L 15,18", "", "栏目长度应该为15或18位。"},
    {"EmptyPassesWhereNoneIsListed", "L 0,18", "", ""},
    {"ChineseCharactersCountOnce", "L 2", "汉字", ""},
    {"OneLength", "L 6", "12345", "栏目长度应该为6位。"},
    {"StopsAtTheFirstThatFits", "L 3,x", "abc", ""},
};

const Row dates[] = {
    {"UpperIsFiveYearsOn", "B 1900-01,2100-01", "2031-12", "栏目应该在1900-01至2031-11之间。", "datetime",
     "8", "yyyy-MM"},
    {"UpperItself", "B 1900-01,2100-01", "2031-11", "", "datetime", "8", "yyyy-MM"},
    {"LowerItself", "B 1900-01,2100-01", "1900-01", "", "datetime", "8", "yyyy-MM"},
    {"BelowLower", "B 1900-01,2100-01", "1899-12", "栏目应该在1900-01至2031-11之间。", "datetime", "8",
     "yyyy-MM"},
    {"StoredUpperDoesNotAge", "B 1900-01,2009-01", "2020-05", "", "datetime", "8", "yyyy-MM"},
    {"WithDays", "B 1900-01-01,2100-01-01", "2031-11-22", "栏目应该在1900-01-01至2031-11-21之间。",
     "datetime", "8", "yyyy-MM-dd"},
    {"WithDaysUpperItself", "B 1900-01-01,2100-01-01", "2031-11-21", "", "datetime", "8", "yyyy-MM-dd"},
    {"TextIsFormattedByTheStyle", "B 1900-01-01,2100-01-01", "2020年3月5日", "", "datetime", "8",
     "yyyy-MM-dd"},
    // "2031.12" holds a point, which stands above the hyphen of the replaced bound.
    {"PointAgainstHyphen", "B 1900.01,2100.01", "2031.01", "栏目应该在1900.01至2031-11之间。", "datetime",
     "8", "yyyy.MM"},
    {"PointInAnEarlierYear", "B 1900.01,2100.01", "2030.12", "", "datetime", "8", "yyyy.MM"},
    {"PointsWithDays", "B 1900.01.01,2100.01.01", "2031.01.01", "栏目应该在1900.01.01至2031-11-21之间。",
     "datetime", "8", "yyyy.MM.dd"},
    {"OtherStyleKeepsTheUpper", "B 1900,2100", "2099", "", "datetime", "8", "yyyy"},
    {"OtherStyleAboveTheUpper", "B 1900,2100", "2101", "栏目应该在1900至2100之间。", "datetime", "8", ""},
    {"StyleIsCompareToTheLetter", "B 1900-01,2100-01", "2050-01", "", "datetime", "8", "YYYY-MM"},
    {"NoDateIsComparedAsText", "B 1900-01-01,2100-01-01", "later", "栏目应该在1900-01-01至2031-11-21之间。",
     "datetime", "8", "yyyy-MM-dd"},
    {"NoDateThatHappensToLieBetween", "B 1900-01-01,2100-01-01", "2020-99-99", "", "datetime", "8",
     "yyyy-MM-dd"},
    {"EmptyFails", "B 1900-01,2100-01", "", "栏目应该在1900-01至2031-11之间。", "datetime", "8", "yyyy-MM"},
    {"OneBoundIsNoTest", "B 1900-01", "0000", "", "datetime", "8", "yyyy-MM"},
    {"ThreeBoundsAreNoTest", "B 1900-01,2000-01,2100-01", "0000", "", "datetime", "8", "yyyy-MM"},
    {"TypeInCapitals", "B 1900-01,2100-01", "1800-01", "栏目应该在1900-01至2031-11之间。", "DateTime", "8",
     "yyyy-MM"},
};

const Row texts[] = {
    {"YearUpperIsFiveYearsOn", "B 1900,2100", "2032", "栏目应该在1900至2031之间。", "varchar", "4"},
    {"YearUpperItself", "B 1900,2100", "2031", "", "varchar", "4"},
    {"YearLowerItself", "B 1900,2100", "1900", "", "varchar", "4"},
    {"YearBelowLower", "B 1900,2100", "1899", "栏目应该在1900至2031之间。", "varchar", "4"},
    {"LengthFourWrittenOtherwise", "B 1900,2100", "2050", "栏目应该在1900至2031之间。", "varchar", "4.0"},
    {"OtherLengthKeepsTheUpper", "B 1900,2100", "2050", "", "varchar", "10"},
    {"TypeInCapitals", "B 1900,2100", "2032", "栏目应该在1900至2031之间。", "VARCHAR", "4"},
    {"ComparedAsTextNotAsNumber", "B 5,60", "10", "栏目应该在5至60之间。", "varchar", "10"},
    {"EmptyFails", "B 1,9", "", "栏目应该在1至9之间。", "varchar", "10"},
    {"FurtherBoundsAreIgnored", "B 1,5,9", "6", "栏目应该在1至5之间。", "varchar", "10"},
    {"OtherTypeIsNoTest", "B 1,5", "9", "", "int", "10"},
    {"OtherTypeNeedsNoBounds", "B ", "9", "", "ntext", "x"},
};

std::string nameOfRow(const testing::TestParamInfo<Row>& info) { return info.param.name; }

INSTANTIATE_TEST_SUITE_P(Quotes, CheckInputTable, testing::ValuesIn(quotes), nameOfRow);
INSTANTIATE_TEST_SUITE_P(Malformed, CheckInputTable, testing::ValuesIn(malformed), nameOfRow);
INSTANTIATE_TEST_SUITE_P(Numbers, CheckInputTable, testing::ValuesIn(numbers), nameOfRow);
INSTANTIATE_TEST_SUITE_P(AtMost, CheckInputTable, testing::ValuesIn(atMost), nameOfRow);
INSTANTIATE_TEST_SUITE_P(Lengths, CheckInputTable, testing::ValuesIn(lengths), nameOfRow);
INSTANTIATE_TEST_SUITE_P(Dates, CheckInputTable, testing::ValuesIn(dates), nameOfRow);
INSTANTIATE_TEST_SUITE_P(Texts, CheckInputTable, testing::ValuesIn(texts), nameOfRow);

struct FailingRow {
    const char* name;
    const char* rule;
    const char* text;
    Failure failure;
    const char* fieldLength = "50";
};

void PrintTo(const FailingRow& row, std::ostream* out) { *out << row.rule << " on [" << row.text << "]"; }

class CheckInputFailures : public testing::TestWithParam<FailingRow> {};

TEST_P(CheckInputFailures, ReachTheCaller) {
    const FailingRow& row = GetParam();
    cFieldItem item;
    item.Check = row.rule;
    item.FieldType = "varchar";
    item.FieldLength = row.fieldLength;
    EXPECT_EQ(failureOf([&] { (void)CheckInput(item, row.text); }), number(row.failure));
}

const FailingRow failingRows[] = {
    {"NumberWithoutDecimals", "N 10", "1", Failure::SubscriptOutOfRange},
    {"NumberWithoutArguments", "N ", "1", Failure::SubscriptOutOfRange},
    {"NumberWithTwoBlanks", "N  10,2", "1", Failure::SubscriptOutOfRange},
    {"NumberTotalIsNoNumber", "N x,2", "1", Failure::TypeMismatch},
    {"NumberDecimalsAreNoNumber", "N 10,x", "1", Failure::TypeMismatch},
    {"AtMostIsNoNumber", "A x", "a", Failure::TypeMismatch},
    {"AtMostWithoutArgument", "A ", "a", Failure::SubscriptOutOfRange},
    {"AtMostBeyondAnyLength", "A 99999999999", "a", Failure::Overflow},
    {"LengthIsNoNumber", "L x,3", "abc", Failure::TypeMismatch},
    {"BoundsWithOneBound", "B 1900", "2000", Failure::SubscriptOutOfRange},
    {"BoundsWithOneBoundOnAYear", "B 1900", "2000", Failure::SubscriptOutOfRange, "4"},
    {"BoundsBelowTheOnlyBound", "B 1900", "1800", Failure::SubscriptOutOfRange},
    {"BoundsWithoutArguments", "B ", "2000", Failure::SubscriptOutOfRange},
    {"BoundsOnALengthThatIsNoNumber", "B 1900,2100", "2000", Failure::TypeMismatch, "four"},
    {"BoundsOnAnEmptyLength", "B 1900,2100", "2000", Failure::TypeMismatch, ""},
};

INSTANTIATE_TEST_SUITE_P(MalformedRules, CheckInputFailures, testing::ValuesIn(failingRows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(CheckInputClock, TheUpperBoundIsWorkedOutOnEachCall) {
    cFieldItem item;
    item.Check = "B 1900,2100";
    item.FieldType = "varchar";
    item.FieldLength = "4";
    clock::fix(convert::DateTime{2026, 1, 1});
    EXPECT_NE(CheckInput(item, "2032"), "");
    clock::fix(convert::DateTime{2027, 1, 1});
    EXPECT_EQ(CheckInput(item, "2032"), "");
    clock::fix(std::nullopt);
}

TEST(CheckInputClock, FiveYearsFromALeapDayIsTheLastOfFebruary) {
    cFieldItem item;
    item.ItemDesc = "日期";
    item.Check = "B 1900-01-01,2100-01-01";
    item.FieldType = "datetime";
    item.Style = "yyyy-MM-dd";
    clock::fix(convert::DateTime{2024, 2, 29});
    EXPECT_EQ(CheckInput(item, "2029-03-01"), "日期应该在1900-01-01至2029-02-28之间。");
    EXPECT_EQ(CheckInput(item, "2029-02-28"), "");
    clock::fix(std::nullopt);
}

} // namespace
} // namespace quillmere
