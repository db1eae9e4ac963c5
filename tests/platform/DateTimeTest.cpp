#include "platform/convert/DateTime.h"

#include "support/FailureNumber.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace quillmere::convert {

static void PrintTo(const DateTime& moment, std::ostream* out) {
    *out << moment.year << '-' << moment.month << '-' << moment.day << ' ' << moment.hour << ':'
         << moment.minute << ':' << moment.second;
}

namespace {

TEST(Calendar, CenturiesAreLeapYearsEveryFourthTime) {
    EXPECT_FALSE(isLeapYear(1900));
    EXPECT_TRUE(isLeapYear(2000));
    EXPECT_FALSE(isLeapYear(2100));
    EXPECT_TRUE(isLeapYear(2024));
    EXPECT_FALSE(isLeapYear(2023));
}

TEST(Calendar, EveryMonthHasItsDays) {
    const int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    for (int month = 1; month <= 12; ++month)
        EXPECT_EQ(daysInMonth(2023, month), days[month - 1]) << month;
    EXPECT_EQ(daysInMonth(2024, 2), 29);
}

TEST(Calendar, AMonthThatThereIsNotHasNoDays) {
    EXPECT_EQ(daysInMonth(2023, 0), 0);
    EXPECT_EQ(daysInMonth(2023, 13), 0);
    EXPECT_EQ(daysInMonth(2023, -1), 0);
}

struct Readable {
    const char* text;
    DateTime moment;
};

void PrintTo(const Readable& row, std::ostream* out) { *out << '[' << row.text << ']'; }

class ReadableDates : public testing::TestWithParam<Readable> {};

TEST_P(ReadableDates, AreRead) {
    EXPECT_EQ(parseDate(GetParam().text), GetParam().moment);
    EXPECT_TRUE(isDate(GetParam().text));
}

const Readable readable[] = {
    {"1990-03", {1990, 3, 1}},
    {"1990-3", {1990, 3, 1}},
    {"1990-3-5", {1990, 3, 5}},
    {"1990-03-05", {1990, 3, 5}},
    {"1990/03/12", {1990, 3, 12}},
    {"1990.03.12", {1990, 3, 12}},
    {"1990.03", {1990, 3, 1}},
    {"1990年03月", {1990, 3, 1}},
    {"1990年3月5日", {1990, 3, 5}},
    {"  1990-03-05 ", {1990, 3, 5}},
    {"１９９０-０３", {1990, 3, 1}},
    {"1990-03-05 7:08", {1990, 3, 5, 7, 8, 0}},
    {"1990-03-05 23:59:59", {1990, 3, 5, 23, 59, 59}},
    {"1990-03-05T07:08:09", {1990, 3, 5, 7, 8, 9}},
    {"1990年3月5日  07:08", {1990, 3, 5, 7, 8, 0}},
    {"1990-03 07:08", {1990, 3, 1, 7, 8, 0}},
    {"2000-02-29", {2000, 2, 29}},
    {"2024-02-29", {2024, 2, 29}},
    {"0100-01-01", {100, 1, 1}},
    {"9999-12-31", {9999, 12, 31}},
};

INSTANTIATE_TEST_SUITE_P(Forms, ReadableDates, testing::ValuesIn(readable));

class UnreadableDates : public testing::TestWithParam<const char*> {};

TEST_P(UnreadableDates, AreRefused) {
    EXPECT_FALSE(parseDate(GetParam()));
    EXPECT_FALSE(isDate(GetParam()));
}

const char* const unreadable[] = {
    "",
    "   ",
    "later",
    "1990",
    "199003",
    "90-03-05",
    "1990-",
    "1990-03-",
    "1990-00",
    "1990-13",
    "1990-03-00",
    "1990-03-32",
    "1990-02-30",
    "1900-02-29",
    "2023-02-29",
    "1990-04-31",
    "1990-03/05",
    "1990.03-05",
    "1990-003",
    "1990-03-005",
    "19900-03",
    "0099-12-31",
    "0000-01",
    "-1990-03",
    "1990年",
    "1990年03",
    "1990年3月5",
    "1990年3月日",
    "1990-03-05x",
    "1990-03-05 x",
    "1990-03-05 24:00",
    "1990-03-05 12:60",
    "1990-03-05 12:00:60",
    "1990-03-05 12",
    "1990-03-05 12:",
    "1990-03-0512:00",
    "5/3/1990",
    "1990- 03",
    "1990-__",
};

INSTANTIATE_TEST_SUITE_P(Forms, UnreadableDates, testing::ValuesIn(unreadable));

TEST(AddYears, KeepsDayAndTime) {
    EXPECT_EQ(addYears({2026, 11, 21, 9, 30, 15}, 5), (DateTime{2031, 11, 21, 9, 30, 15}));
    EXPECT_EQ(addYears({2026, 11, 21}, -5), (DateTime{2021, 11, 21}));
    EXPECT_EQ(addYears({2026, 11, 21}, 0), (DateTime{2026, 11, 21}));
}

TEST(AddYears, ALeapDayBecomesTheLastOfFebruaryInACommonYear) {
    EXPECT_EQ(addYears({2024, 2, 29}, 5), (DateTime{2029, 2, 28}));
    EXPECT_EQ(addYears({2024, 2, 29}, 4), (DateTime{2028, 2, 29}));
    EXPECT_EQ(addYears({2000, 2, 29}, -100), (DateTime{1900, 2, 28}));
}

TEST(AddYears, TheCalendarEndsAtTheYear9999) {
    EXPECT_EQ(addYears({9994, 1, 1}, 5).year, 9999);
    EXPECT_EQ(failureOf([] { (void)addYears({9995, 1, 1}, 5); }), number(Failure::InvalidCall));
}

TEST(AddYears, TheCalendarBeginsAtTheYear100) {
    EXPECT_EQ(addYears({105, 1, 1}, -5).year, 100);
    EXPECT_EQ(failureOf([] { (void)addYears({104, 1, 1}, -5); }), number(Failure::InvalidCall));
}

TEST(AddYears, ACountBeyondEveryYearIsRefusedNotWrappedAround) {
    EXPECT_EQ(failureOf([] { (void)addYears({2026, 1, 1}, 2147483647); }), number(Failure::InvalidCall));
}

TEST(DateTimeOrder, IsTheOrderOfTime) {
    EXPECT_LT((DateTime{1990, 3, 5}), (DateTime{1990, 4, 1}));
    EXPECT_LT((DateTime{1990, 3, 5, 9, 0, 0}), (DateTime{1990, 3, 5, 9, 0, 1}));
}

} // namespace
} // namespace quillmere::convert
