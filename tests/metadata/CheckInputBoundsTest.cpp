#include "metadata/CheckInputTable.h"

namespace quillmere {
namespace {

using test::fill;
using test::nameOfRow;
using Row = test::CheckRow;

class CheckInputBounds : public test::CheckInputTable {};

TEST_P(CheckInputBounds, AnswersWithTheComplaint) { test::expectAnswer(GetParam()); }

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
    {"OneBoundIsNoTest", "B 1900-01", "0000", "", "datetime", "8", "yyyy-MM"},
    {"ThreeBoundsAreNoTest", "B 1900-01,2000-01,2100-01", "0000", "", "datetime", "8", "yyyy-MM"},
    {"TypeInCapitals", "B 1900-01,2100-01", "1800-01", "栏目应该在1900-01至2031-11之间。", "DateTime", "8",
     "yyyy-MM"},
};

// Each style at its bounds and one step beyond; today is 2026-11-21.
constexpr const char* monthBounds = "B 1900-01,2100-12";
constexpr const char* dayBounds = "B 1900-01-01,2100-12-31";
constexpr const char* pointMonthBounds = "B 1900.01,2100.12";
constexpr const char* pointDayBounds = "B 1900.01.01,2100.12.31";
constexpr const char* notMonth = "栏目应该在1900-01至2031-11之间。";
constexpr const char* notDay = "栏目应该在1900-01-01至2031-11-21之间。";
constexpr const char* notPointMonth = "栏目应该在1900.01至2031-11之间。";
constexpr const char* notPointDay = "栏目应该在1900.01.01至2031-11-21之间。";

const Row styles[] = {
    {"MonthAtLower", monthBounds, "1900年01月", "", "datetime", "7", "yyyy-MM"},
    {"MonthBelowLower", monthBounds, "1899年12月", notMonth, "datetime", "7", "yyyy-MM"},
    {"MonthAtUpper", monthBounds, "2031年11月", "", "datetime", "7", "yyyy-MM"},
    {"MonthAboveUpper", monthBounds, "2031年12月", notMonth, "datetime", "7", "yyyy-MM"},
    {"MonthOfAnEmptyText", monthBounds, "", notMonth, "datetime", "7", "yyyy-MM"},
    {"MonthOfNoDate", monthBounds, "以后", notMonth, "datetime", "7", "yyyy-MM"},
    {"DayAtLower", dayBounds, "1900年01月01日", "", "datetime", "10", "yyyy-MM-dd"},
    {"DayBelowLower", dayBounds, "1899年12月31日", notDay, "datetime", "10", "yyyy-MM-dd"},
    {"DayAtUpper", dayBounds, "2031年11月21日", "", "datetime", "10", "yyyy-MM-dd"},
    {"DayAboveUpper", dayBounds, "2031年11月22日", notDay, "datetime", "10", "yyyy-MM-dd"},
    {"DayOfAnEmptyText", dayBounds, "", notDay, "datetime", "10", "yyyy-MM-dd"},
    {"DayOfNoDate", dayBounds, "以后", notDay, "datetime", "10", "yyyy-MM-dd"},
    // The whole last year fails, since a point stands above the hyphen of the upper bound.
    {"PointMonthAtLower", pointMonthBounds, "1900年01月", "", "datetime", "7", "yyyy.MM"},
    {"PointMonthBelowLower", pointMonthBounds, "1899年12月", notPointMonth, "datetime", "7", "yyyy.MM"},
    {"PointMonthInTheYearBefore", pointMonthBounds, "2030年12月", "", "datetime", "7", "yyyy.MM"},
    {"PointMonthInTheLastYear", pointMonthBounds, "2031年01月", notPointMonth, "datetime", "7", "yyyy.MM"},
    {"PointMonthOfAnEmptyText", pointMonthBounds, "", notPointMonth, "datetime", "7", "yyyy.MM"},
    {"PointMonthOfNoDate", pointMonthBounds, "以后", notPointMonth, "datetime", "7", "yyyy.MM"},
    {"PointDayAtLower", pointDayBounds, "1900年01月01日", "", "datetime", "10", "yyyy.MM.dd"},
    {"PointDayBelowLower", pointDayBounds, "1899年12月31日", notPointDay, "datetime", "10", "yyyy.MM.dd"},
    {"PointDayInTheYearBefore", pointDayBounds, "2030年12月31日", "", "datetime", "10", "yyyy.MM.dd"},
    {"PointDayInTheLastYear", pointDayBounds, "2031年01月01日", notPointDay, "datetime", "10", "yyyy.MM.dd"},
    {"PointDayOfAnEmptyText", pointDayBounds, "", notPointDay, "datetime", "10", "yyyy.MM.dd"},
    {"PointDayOfNoDate", pointDayBounds, "以后", notPointDay, "datetime", "10", "yyyy.MM.dd"},
    {"YearKeepsItsUpper", "B 1900,2040", "2040年05月", "", "datetime", "4", "yyyy"},
    {"YearAboveItsUpper", "B 1900,2040", "2041年05月", "栏目应该在1900至2040之间。", "datetime", "4", "yyyy"},
    {"NoStyleComparesTheTextAsItStands", "B 1900,2040", "2041年05月", "栏目应该在1900至2040之间。",
     "datetime", "10", ""},
    {"StyleOfATextIsNotRead", "B 1900-01,2100-12", "2099-01", "", "varchar", "7", "yyyy-MM"},
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

INSTANTIATE_TEST_SUITE_P(Dates, CheckInputBounds, testing::ValuesIn(dates), nameOfRow);
INSTANTIATE_TEST_SUITE_P(Styles, CheckInputBounds, testing::ValuesIn(styles), nameOfRow);
INSTANTIATE_TEST_SUITE_P(Texts, CheckInputBounds, testing::ValuesIn(texts), nameOfRow);

TEST(CheckInputOtherTypes, HaveNoBoundsTest) {
    for (const char* type : {"int", "INT", "ntext", "Ntext", "bit", "money", "date", ""}) {
        for (const char* rule : {"B 1,5", "b 1,5", "B 1", "B ", "B 1,5,9"}) {
            for (const char* text : {"9", "0", ""}) {
                cFieldItem item;
                fill(item, {"", rule, "", "", type, "four", "yyyy-MM"});
                EXPECT_EQ(CheckInput(item, text), "") << type << " " << rule << " [" << text << "]";
            }
        }
    }
}

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
