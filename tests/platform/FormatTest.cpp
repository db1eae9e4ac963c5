#include "platform/convert/Format.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace quillmere::convert {
namespace {

struct Row {
    const char* name;
    const char* value;
    const char* picture;
    const char* expected;
};

void PrintTo(const Row& row, std::ostream* out) {
    *out << '[' << row.value << "] by [" << row.picture << ']';
}

class FormatTable : public testing::TestWithParam<Row> {};

TEST_P(FormatTable, FormatsTheValue) {
    EXPECT_EQ(format(GetParam().value, GetParam().picture), GetParam().expected);
}

const Row dates[] = {
    {"MonthWithPoint", "1990-03", "yyyy.MM", "1990.03"},
    {"MonthInChinese", "1990-03", "yyyy年MM月", "1990年03月"},
    {"MonthWithHyphen", "1990.3", "yyyy-MM", "1990-03"},
    {"AMonthIsItsFirstDay", "1990-03", "yyyy-MM-dd", "1990-03-01"},
    {"DayWithNoughts", "1990-3-5", "yyyy-MM-dd", "1990-03-05"},
    {"DayWithoutNoughts", "1990-03-05", "yyyy-m-d", "1990-3-5"},
    {"FromChinese", "1990年3月5日", "yyyy.MM.dd", "1990.03.05"},
    {"FromSlashes", "1990/03/12", "yyyy-mm-dd", "1990-03-12"},
    {"SmallLetters", "1990-03-12", "yyyy.mm.dd", "1990.03.12"},
    {"CapitalLetters", "1990-03-12", "YYYY.MM.DD", "1990.03.12"},
    {"TwoDigitYear", "1990-03-12", "yy/mm", "90/03"},
    {"TwoDigitYearOfACenturysStart", "2005-03-12", "yy", "05"},
    {"FourDigitsForAnEarlyYear", "0105-03-12", "yyyy", "0105"},
    {"YearAlone", "1990-03", "yyyy", "1990"},
    {"Time", "1990-03-12 07:08:09", "hh:nn:ss", "07:08:09"},
    {"TimeWithoutNoughts", "1990-03-12 07:08:09", "h:n:s", "7:8:9"},
    {"MinutesStraightAfterTheHour", "1990-03-12 07:08:09", "hh:mm", "07:08"},
    {"CapitalMinutesStraightAfterTheHour", "1990-03-12 07:08:09", "HH:MM", "07:08"},
    {"MonthAndMinutes", "1990-03-12 07:08:09", "yyyy-mm-dd hh:mm:ss", "1990-03-12 07:08:09"},
    {"AfterTheDayItIsTheMonthAgain", "1990-03-12 07:08:09", "hh dd mm", "07 12 03"},
    {"SecondMonthAfterMinutes", "1990-03-12 07:08:09", "hh:mm mm", "07:08 03"},
    {"WithoutATimeItIsMidnight", "1990-03-12", "hh:nn:ss", "00:00:00"},
    {"TimeDropped", "1990-03-12 07:08:09", "yyyy.MM.dd", "1990.03.12"},
    {"LeapDay", "2000-02-29", "yyyy-MM-dd", "2000-02-29"},
    {"FullWidthDigits", "１９９０-０３", "yyyy.MM", "1990.03"},
    {"NoSuchDay", "1990-02-30", "yyyy-MM-dd", "1990-02-30"},
    {"NoLeapYear", "1900-02-29", "yyyy.MM.dd", "1900-02-29"},
    {"NoDate", "later", "yyyy-MM", "later"},
    {"EmptyValue", "", "yyyy-MM", ""},
    {"YearOnlyIsNoDate", "1990", "yyyy-MM", "1990"},
    {"EightDigitsAreNoDate", "19900312", "yyyy-MM-dd", "19900312"},
};

const Row numbers[] = {
    {"TwoDecimals", "12.5", "0.00", "12.50"},
    {"HalfAwayFromZero", "0.125", "0.00", "0.13"},
    {"HalfAwayFromZeroBelow", "-0.125", "0.00", "-0.13"},
    {"HalfThatIsNoneInBinary", "1.005", "0.00", "1.01"},
    {"RoundingCarries", "9.999", "0.00", "10.00"},
    {"RoundingDown", "0.124", "0.00", "0.12"},
    {"WholeNumber", "2.5", "0", "3"},
    {"NoughtInFront", ".5", "0.00", "0.50"},
    {"NoNoughtInFrontUnlessAsked", "0.5", "#.00", ".50"},
    {"Padded", "7", "000", "007"},
    {"MoreDigitsThanPlaces", "1234", "00", "1234"},
    {"Grouped", "1234567", "#,##0", "1,234,567"},
    {"GroupedWithDecimals", "1234567.891", "#,##0.00", "1,234,567.89"},
    {"GroupedSmall", "123", "#,##0", "123"},
    {"GroupedNought", "0", "#,##0", "0"},
    {"GroupedNegative", "-1234.5", "#,##0.00", "-1,234.50"},
    {"OptionalDecimals", "1.5", "0.##", "1.5"},
    {"OptionalDecimalsFilled", "1.567", "0.##", "1.57"},
    {"OneDecimalAtLeast", "1", "0.0#", "1.0"},
    {"NegativeThatRoundsToNought", "-0.001", "0.00", "0.00"},
    {"SeparatorsInTheValue", "1,234.5", "0.00", "1234.50"},
    {"SignBehind", "5-", "0.0", "-5.0"},
    {"Exponent", "1.5e3", "0", "1500"},
    {"LargeNumber", "1e20", "0", "100000000000000000000"},
    {"LiteralsAround", "12.5", "￥0.00元", "￥12.50元"},
    {"NoNumber", "abc", "0.00", "abc"},
    {"EmptyValue", "", "0.00", ""},
    {"DateIsNoNumber", "1990-03", "0.00", "1990-03"},
};

const Row others[] = {
    {"EmptyPicture", "1990-03", "", "1990-03"},         {"EmptyPictureOfANumber", "12.50", "", "12.50"},
    {"NoSymbolsAtAll", "12.50", "元", "12.50"},         {"PointAlone", "12.50", ".", "12.50"},
    {"LiteralBetweenPlaces", "12.50", "0元0", "12.50"},
};

std::string nameOfRow(const testing::TestParamInfo<Row>& info) { return info.param.name; }

INSTANTIATE_TEST_SUITE_P(Dates, FormatTable, testing::ValuesIn(dates), nameOfRow);
INSTANTIATE_TEST_SUITE_P(Numbers, FormatTable, testing::ValuesIn(numbers), nameOfRow);
INSTANTIATE_TEST_SUITE_P(Others, FormatTable, testing::ValuesIn(others), nameOfRow);

TEST(FormatMoment, TakesTheMomentAsItIs) {
    EXPECT_EQ(format(DateTime{2031, 11, 21, 9, 5, 7}, "yyyy-MM-dd"), "2031-11-21");
    EXPECT_EQ(format(DateTime{2031, 11, 21, 9, 5, 7}, "yyyy年m月d日 hh:mm:ss"), "2031年11月21日 09:05:07");
}

TEST(FormatMoment, AnEmptyPictureIsAnEmptyText) { EXPECT_EQ(format(DateTime{2031, 11, 21}, ""), ""); }

} // namespace
} // namespace quillmere::convert
