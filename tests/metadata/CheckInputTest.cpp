#include "metadata/CheckInputTable.h"
#include "support/FailureNumber.h"

#include <ostream>
#include <string>

namespace quillmere {
namespace {

using test::fill;
using test::nameOfRow;
using Row = test::CheckRow;

class CheckInputRules : public test::CheckInputTable {};

TEST_P(CheckInputRules, AnswersWithTheComplaint) { test::expectAnswer(GetParam()); }

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
    {"PointLast", "N 4,2", "5.", ""},
    {"PointAlone", "N 4,2", ".", "栏目应该为数字！"},
    {"SignAlone", "N 4,2", "-", "栏目应该为数字！"},
    {"Exponent", "N 4,0", "1e5", ""},
    {"ThousandsCountInTheLength", "N 4,0", "1,000", "栏目数据长度应小于4！"},
    {"ThousandsCountInTheWholePart", "N 6,2", "1,000", "栏目整数位数最多为4位！"},
    {"ChineseNumeral", "N 4,0", "五", "栏目应该为数字！"},
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

INSTANTIATE_TEST_SUITE_P(Quotes, CheckInputRules, testing::ValuesIn(quotes), nameOfRow);
INSTANTIATE_TEST_SUITE_P(Malformed, CheckInputRules, testing::ValuesIn(malformed), nameOfRow);
INSTANTIATE_TEST_SUITE_P(Numbers, CheckInputRules, testing::ValuesIn(numbers), nameOfRow);
INSTANTIATE_TEST_SUITE_P(AtMost, CheckInputRules, testing::ValuesIn(atMost), nameOfRow);
INSTANTIATE_TEST_SUITE_P(Lengths, CheckInputRules, testing::ValuesIn(lengths), nameOfRow);

/// A rule other than bounds, which no type, length or style of a field changes.
struct PlainRow {
    const char* name;
    const char* rule;
    const char* text;
    const char* complaint;
};

void PrintTo(const PlainRow& row, std::ostream* out) { *out << row.rule << " on [" << row.text << "]"; }

class CheckInputOfAnyField : public testing::TestWithParam<PlainRow> {};

TEST_P(CheckInputOfAnyField, AnswersAlikeWhateverTheTypeLengthAndStyle) {
    for (const char* type :
         {"varchar", "Varchar", "int", "INT", "datetime", "DateTime", "ntext", "Ntext", "bit", "money", ""}) {
        for (const char* style : {"", "yyyy", "yyyy.MM", "yyyy-MM", "yyyy.MM.dd", "yyyy-MM-dd"}) {
            for (const char* length : {"4", "50", "", "four"}) {
                cFieldItem item;
                fill(item, {"", GetParam().rule, "", "", type, length, style});
                EXPECT_EQ(CheckInput(item, GetParam().text), GetParam().complaint)
                    << type << " " << style << " " << length;
            }
        }
    }
}

const PlainRow plainRows[] = {
    {"NoRule", "", "anything", ""},
    {"Quote", "", "'", quoteComplaint},
    {"QuoteBeforeARule", "A 9", "a'b", quoteComplaint},
    {"LetterAlone", "B", "anything", ""},
    {"UnknownLetter", "C 1,2", "anything", ""},
    {"Number", "N 4,1", "12.5", ""},
    {"NumberEmpty", "N 4,1", "", ""},
    {"NumberIll", "N 4,1", "2020-01", "栏目应该为数字！"},
    {"NumberTooLong", "N 4,1", "12345", "栏目数据长度应小于4！"},
    {"NumberWithTooManyWholeDigits", "N 4,1", "1234", "栏目整数位数最多为3位！"},
    {"AtMost", "A 4", "2020", ""},
    {"AtMostEmpty", "A 4", "", ""},
    {"AtMostTooLong", "A 4", "2020年", "栏目最多可以录入4个字符！"},
    {"Length", "L 4,7", "2020-01", ""},
    {"LengthEmpty", "L 4,7", "", "栏目长度应该为4或7位。"},
    {"LengthOther", "L 4,7", "20201", "栏目长度应该为4或7位。"},
};

INSTANTIATE_TEST_SUITE_P(Rules, CheckInputOfAnyField, testing::ValuesIn(plainRows),
                         [](const auto& row) { return std::string(row.param.name); });

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
    {"LengthListEndsInAComma", "L 3,", "ab", Failure::TypeMismatch},
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

} // namespace
} // namespace quillmere
