#include "panels/frmC04Statements.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

const RowFrameRow& frame(std::string_view number) {
    for (const RowFrameRow& row : rowFrames())
        if (row.number == number) return row;
    throw Error(Failure::ItemNotFound);
}

/// Every box holds its own name between blanks, those of months a month.
std::string named(std::string_view input) {
    if (input == "txtP0201") return "2026年03月";
    if (input == "txtP0202") return "2027年11月";
    return " " + std::string(input) + " ";
}

struct StatementCase {
    const char* frame;
    const char* insert;
    const char* update;
};

constexpr StatementCase cases[] = {
    {"1",
     "insert into C04 (A00,C0401,C0402,C0403,C0404,C0405,C0406,C0499) values('key',' txtC0401 ',"
     "' txtC0402 ',' txtC0403 ',' txtC0404 ',' txtC0405 ',' txtC0406 ',7)",
     "update C04 set C0401=' txtC0401 ',C0402=' txtC0402 ',C0403=' txtC0403 ',C0404=' txtC0404 ',"
     "C0405=' txtC0405 ',C0406=' txtC0406 ' where A00='key' and C0499=5"},
    {"2", "insert into P03 (A00,P0301,P0302,P0399) values('key',' txtP0301_t ',' txtP0302_t ',7)",
     "update P03 set P0301='txtP0301_t',P0302='txtP0302_t' where A00='key' and P0399=5"},
    {"3",
     "insert into P03 (A00,P0301,P0302,P0303,P0399) values('key',' txtP0301_q ',' txtP0302_q ',"
     "' txtP0303_q ',7)",
     "update P03 set P0301='txtP0301_q',P0302='txtP0302_q',P0303='txtP0303_q' where A00='key' and "
     "P0399=5"},
    {"4",
     "insert into P02 (A00,P0201,P0202,P0203,P0204,P0299) values('key','2026-03','2027-11','txtP0203',"
     "'txtP0204',7)",
     "update P02 set P0201='2026-03',P0202='2027-11',P0203='txtP0203',P0204='txtP0204' where A00='key' "
     "and P0299=5"},
};

TEST(frmC04StatementsTest, ANewRowIsInserted) {
    for (const StatementCase& row : cases)
        EXPECT_EQ(insertStatement(frame(row.frame), "key", named, 7), row.insert);
}

TEST(frmC04StatementsTest, AChangedRowIsUpdated) {
    for (const StatementCase& row : cases)
        EXPECT_EQ(updateStatement(frame(row.frame), "key", named, "5"), row.update);
}

} // namespace
} // namespace quillmere
