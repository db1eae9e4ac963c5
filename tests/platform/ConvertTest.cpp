#include "platform/convert/Convert.h"

#include "support/FailureNumber.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <ostream>
#include <string>

namespace quillmere::convert {
namespace {

struct Numeric {
    const char* text;
    double number;
};

void PrintTo(const Numeric& row, std::ostream* out) { *out << '[' << row.text << ']'; }

class NumericTexts : public testing::TestWithParam<Numeric> {};

TEST_P(NumericTexts, AreNumbers) {
    EXPECT_TRUE(isNumeric(GetParam().text));
    EXPECT_DOUBLE_EQ(toDouble(GetParam().text), GetParam().number);
}

const Numeric numeric[] = {
    {"0", 0},
    {"12", 12},
    {"007", 7},
    {"-5", -5},
    {"+5", 5},
    {"- 5", -5},
    {"5-", -5},
    {"5 -", -5},
    {"5+", 5},
    {"12.5", 12.5},
    {".5", 0.5},
    {"-.5", -0.5},
    {"5.", 5},
    {"  5  ", 5},
    {"1,234", 1234},
    {"1,234.5", 1234.5},
    {"1,2", 12},
    {"1,", 1},
    {"12,34,567", 1234567},
    {"1e3", 1000},
    {"1E3", 1000},
    {"1e+3", 1000},
    {"1.5e-2", 0.015},
    {"-1e2", -100},
    {"1e2-", -100},
    {"0e999", 0},
    {"1e-999", 0},
    {"1.7976931348623157e308", 1.7976931348623157e308},
};

INSTANTIATE_TEST_SUITE_P(Forms, NumericTexts, testing::ValuesIn(numeric));

class OtherTexts : public testing::TestWithParam<const char*> {};

TEST_P(OtherTexts, AreNoNumbers) {
    EXPECT_FALSE(isNumeric(GetParam()));
    EXPECT_EQ(failureOf([] { (void)toDouble(GetParam()); }), number(Failure::TypeMismatch));
    EXPECT_EQ(failureOf([] { (void)toLong(GetParam()); }), number(Failure::TypeMismatch));
    EXPECT_EQ(failureOf([] { (void)toInteger16(GetParam()); }), number(Failure::TypeMismatch));
}

const char* const others[] = {
    "",      " ",     "abc",  "12a",  "a12",  "1 2", "-",   "+",     ".",      ",",     ",5",
    "1.2.3", "1.2,3", "--5",  "+-5",  "-5-",  "5--", "1e",  "1e+",   "e5",     "1e2.5", "1e2e3",
    "inf",   "nan",   "0x10", "&H10", "１２", "五",  "5\t", "1e999", "-1e999", "\xFF",  "１",
};

INSTANTIATE_TEST_SUITE_P(Forms, OtherTexts, testing::ValuesIn(others));

TEST(ToDouble, ALongWayBehindThePointIsNought) {
    const std::string tiny = "0." + std::string(400, '0') + "1";
    EXPECT_TRUE(isNumeric(tiny));
    EXPECT_EQ(toDouble(tiny), 0.0);
}

TEST(ToDouble, MoreDigitsThanADoubleHoldsIsNoNumber) {
    EXPECT_FALSE(isNumeric(std::string(400, '9')));
    EXPECT_TRUE(isNumeric(std::string(300, '9')));
}

struct Rounding {
    const char* text;
    std::int32_t rounded;
};

const Rounding roundings[] = {
    {"0.5", 0},    {"1.5", 2},    {"2.5", 2},  {"3.5", 4},      {"-0.5", 0},   {"-1.5", -2},
    {"-2.5", -2},  {"-3.5", -4},  {"0.49", 0}, {"0.51", 1},     {"2.51", 3},   {"2.49", 2},
    {"-2.51", -3}, {"-2.49", -2}, {"12", 12},  {"1,000", 1000}, {"1e3", 1000}, {"12.", 12},
};

TEST(ToLong, HalvesGoToTheEvenNeighbour) {
    for (const Rounding& row : roundings)
        EXPECT_EQ(toLong(row.text), row.rounded) << row.text;
}

TEST(ToInteger16, HalvesGoToTheEvenNeighbour) {
    for (const Rounding& row : roundings)
        EXPECT_EQ(toInteger16(row.text), row.rounded) << row.text;
}

TEST(ToLong, TheEdgesOf32BitsFit) {
    EXPECT_EQ(toLong("2147483647"), 2147483647);
    EXPECT_EQ(toLong("2147483647.4"), 2147483647);
    EXPECT_EQ(toLong("-2147483648"), std::numeric_limits<std::int32_t>::min());
    // The half goes to the even neighbour, which is inside.
    EXPECT_EQ(toLong("-2147483648.5"), std::numeric_limits<std::int32_t>::min());
}

TEST(ToLong, BeyondTheEdgesOf32BitsOverflows) {
    for (const char* text : {"2147483648", "2147483647.5", "-2147483649", "-2147483648.51", "1e10", "1e300"})
        EXPECT_EQ(failureOf([&] { (void)toLong(text); }), number(Failure::Overflow)) << text;
}

TEST(ToInteger16, TheEdgesOf16BitsFit) {
    EXPECT_EQ(toInteger16("32767"), 32767);
    EXPECT_EQ(toInteger16("32767.49"), 32767);
    EXPECT_EQ(toInteger16("-32768"), -32768);
    EXPECT_EQ(toInteger16("-32768.5"), -32768);
}

TEST(ToInteger16, BeyondTheEdgesOf16BitsOverflows) {
    for (const char* text : {"32768", "32767.5", "-32769", "-32768.51", "1e5"})
        EXPECT_EQ(failureOf([&] { (void)toInteger16(text); }), number(Failure::Overflow)) << text;
}

TEST(ToLong, WhatIsNoFiniteNumberOverflows) {
    for (const double value :
         {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
          std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(failureOf([&] { (void)toLong(value); }), number(Failure::Overflow)) << value;
        EXPECT_EQ(failureOf([&] { (void)toInteger16(value); }), number(Failure::Overflow)) << value;
    }
}

struct Amount {
    const char* text;
    std::int64_t units;
};

TEST(ToCurrency, AnAmountIsCountedInTenThousandths) {
    const Amount amounts[] = {
        {"0", 0},        {"1", 10000},
        {"-1", -10000},  {"12.34", 123400},
        {"0.0001", 1},   {"1,234.5", 12345000},
        {"5-", -50000},  {"1.5e2", 1500000},
        {"1.5E-3", 15},  {".5", 5000},
        {"000.5", 5000}, {"1e-30", 0},
        {"0e999", 0},    {"123456789012.3456", 1234567890123456},
    };
    for (const Amount& row : amounts)
        EXPECT_EQ(toCurrency(row.text), row.units) << row.text;
}

TEST(ToCurrency, HalvesGoToTheEvenNeighbour) {
    const Amount amounts[] = {
        {"0.00005", 0},    {"0.00015", 2},     {"0.00025", 2},       {"-0.00005", 0},
        {"-0.00015", -2},  {"1.00005", 10000}, {"1.00015", 10002},   {"0.000050001", 1},
        {"0.00004999", 0}, {"0.000009", 0},    {"-1.00025", -10002},
    };
    for (const Amount& row : amounts)
        EXPECT_EQ(toCurrency(row.text), row.units) << row.text;
}

TEST(ToCurrency, TheEdgesFitToTheLastTenThousandth) {
    EXPECT_EQ(toCurrency("922337203685477.5807"), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(toCurrency("-922337203685477.5808"), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(toCurrency("922337203685477.58074"), std::numeric_limits<std::int64_t>::max());
}

TEST(ToCurrency, BeyondTheEdgesOverflows) {
    for (const char* text :
         {"922337203685477.5808", "922337203685477.58075", "-922337203685477.5809", "999999999999999.9999",
          "1e15", "-1e16", "1e300", "1e400", "1e99999999999999999999"})
        EXPECT_EQ(failureOf([&] { (void)toCurrency(text); }), number(Failure::Overflow)) << text;
}

TEST(ToCurrency, WhatIsNoNumberIsATypeMismatch) {
    for (const char* text : {"", "1.2.3", "abc", "１２"})
        EXPECT_EQ(failureOf([&] { (void)toCurrency(text); }), number(Failure::TypeMismatch)) << text;
}

struct Shown {
    double number;
    const char* text;
};

TEST(NumberToText, IsTheShortestThatGivesTheNumberBack) {
    const Shown rows[] = {
        {0, "0"},
        {-0.0, "0"},
        {1, "1"},
        {-5, "-5"},
        {12.5, "12.5"},
        {0.1, "0.1"},
        {-0.25, "-0.25"},
        {1e-6, "0.000001"},
        {100000, "100000"},
        {1234567890123, "1234567890123"},
        {0.1 + 0.2, "0.30000000000000004"},
        {1.0 / 3, "0.3333333333333333"},
    };
    for (const Shown& row : rows)
        EXPECT_EQ(toText(row.number), row.text);
}

TEST(NumberToText, VeryLargeAndVerySmallNumbersHaveAnExponent) {
    EXPECT_EQ(toText(1e20), "1e+20");
    EXPECT_EQ(toText(-2.5e-9), "-2.5e-09");
}

TEST(NumberToText, ReadsBackAsTheSameNumber) {
    for (const double number : {0.1, 1e15, 999999999999999.9, 1e-6, 9.9e-7, 5e-324, 1.7976931348623157e308,
                                -123456.789, 2.2250738585072014e-308})
        EXPECT_EQ(toDouble(toText(number)), number) << number;
}

} // namespace
} // namespace quillmere::convert
