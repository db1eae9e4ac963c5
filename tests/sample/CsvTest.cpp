#include "sample/Csv.h"

#include "platform/Error.h"

#include <gtest/gtest.h>

namespace quillmere::sample {
namespace {

using Rows = std::vector<std::vector<std::string>>;

Rows rowsOf(std::string_view text) {
    const CsvTable table = parseCsv(text, "t.csv");
    return table.rows();
}

std::string complaintOf(std::string_view text) {
    try {
        (void)parseCsv(text, "t.csv");
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), static_cast<int>(Failure::BadArguments));
        return error.description();
    }
    return "none";
}

TEST(Csv, FirstRecordNamesTheColumns) {
    const CsvTable table = parseCsv("code,name\n1,a\n", "t.csv");
    EXPECT_EQ(table.columns(), (std::vector<std::string>{"code", "name"}));
    EXPECT_EQ(table.column("name"), 1U);
    EXPECT_EQ(table.rows(), (Rows{{"1", "a"}}));
}

TEST(Csv, UnknownColumnIsAFailure) {
    const CsvTable table = parseCsv("code\n", "t.csv");
    EXPECT_THROW((void)table.column("Code"), Error);
}

TEST(Csv, LastRecordMayDoWithoutItsLineEnd) { EXPECT_EQ(rowsOf("a\n1"), (Rows{{"1"}})); }

TEST(Csv, CarriageReturnAndLineFeedEndARecord) { EXPECT_EQ(rowsOf("a,b\r\n1,2\r\n"), (Rows{{"1", "2"}})); }

TEST(Csv, EmptyFieldsAreKept) { EXPECT_EQ(rowsOf("a,b,c\n,,\n"), (Rows{{"", "", ""}})); }

TEST(Csv, QuotedFieldHoldsCommaQuoteAndLineEnd) {
    EXPECT_EQ(rowsOf("a,b\n\"1,2\",\"x\"\"y\nz\"\n"), (Rows{{"1,2", "x\"y\nz"}}));
}

TEST(Csv, BlanksBelongToTheField) { EXPECT_EQ(rowsOf("a\n 1 \n"), (Rows{{" 1 "}})); }

TEST(Csv, HeaderAloneHasNoRow) { EXPECT_TRUE(rowsOf("a,b\n").empty()); }

struct BadText {
    const char* text;
    const char* complaint;
};

class CsvRefuses : public testing::TestWithParam<BadText> {};

TEST_P(CsvRefuses, WithTheLine) { EXPECT_EQ(complaintOf(GetParam().text), GetParam().complaint); }

INSTANTIATE_TEST_SUITE_P(Texts, CsvRefuses,
                         testing::Values(BadText{"", "t.csv 第1行：没有内容"},
                                         BadText{"\xEF\xBB\xBF"
                                                 "a\n",
                                                 "t.csv 第1行：不应有字节顺序标记"},
                                         BadText{"a\nx\"y\n", "t.csv 第2行：未加引号的字段里有引号"},
                                         BadText{"a\n\"x\"y\n", "t.csv 第2行：引号后面应该是逗号或行尾"},
                                         BadText{"a\n1\n\"x\n\n", "t.csv 第3行：引号没有结束"},
                                         BadText{"a\rb\n", "t.csv 第1行：回车后面没有换行"},
                                         BadText{"a,b\n1\n", "t.csv 第2行：字段个数与首行不同"},
                                         BadText{"a,b\n\"x\n\",2\n1,2,3\n",
                                                 "t.csv 第4行：字段个数与首行不同"},
                                         BadText{"a,b\n\n", "t.csv 第2行：字段个数与首行不同"}));

} // namespace
} // namespace quillmere::sample
