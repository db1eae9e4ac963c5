#include "adapters/journal/WritingStatement.h"

#include <gtest/gtest.h>

#include <string>

namespace quillmere::journal {
namespace {

struct Row {
    const char* sql;
    Kind kind;
    const char* table;
    const char* source;
    const char* condition;
    bool tellsRows;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.sql; }

class Writing : public testing::TestWithParam<Row> {};

TEST_P(Writing, IsReadWithTableAndCondition) {
    const auto statement = readWriting(GetParam().sql);
    ASSERT_TRUE(statement);
    EXPECT_EQ(statement->kind, GetParam().kind);
    EXPECT_EQ(statement->table, GetParam().table);
    EXPECT_EQ(statement->source, GetParam().source);
    EXPECT_EQ(statement->condition, GetParam().condition);
    EXPECT_EQ(statement->tellsRows, GetParam().tellsRows);
}

INSTANTIATE_TEST_SUITE_P(
    OfTheSystem, Writing,
    testing::Values(Row{"delete from A02 where A00='p'  and A0299 = 2", Kind::Delete, "A02", "A02",
                        "A00='p'  and A0299 = 2", true},
                    Row{" delete from S_GUID ", Kind::Delete, "S_GUID", "S_GUID", "", true},
                    Row{"update A02 set A0299 = A0299 +200 where a00='p'", Kind::Update, "A02", "A02",
                        "a00='p'", true},
                    Row{"update A01 set A0101 = ' where ',A0102 = null where A00='x''y'", Kind::Update, "A01",
                        "A01", "A00='x''y'", true},
                    Row{"insert into A02( A00 ,A0299) values('p','1')", Kind::Insert, "A02", "", "", false},
                    Row{"insert into P01 (A00,P0123) values('p','01')", Kind::Insert, "P01", "", "", false}));

INSTANTIATE_TEST_SUITE_P(
    OfOthers, Writing,
    testing::Values(
        Row{"DELETE FROM \"own notes\";", Kind::Delete, "\"own notes\"", "\"own notes\"", "", true},
        Row{"delete from data.A02 as x where x.A00='p' ; ", Kind::Delete, "A02", "data.A02 as x", "x.A00='p'",
            true},
        Row{"update only A02 set A0203='a' returning A00", Kind::Update, "A02", "only A02", "", true},
        Row{"update A02 set A0203=(select max(b) from B where c=1) where A00 in (select d from D where e=2)",
            Kind::Update, "A02", "A02", "A00 in (select d from D where e=2)", true},
        Row{"delete from A02 where a=1 returning *", Kind::Delete, "A02", "A02", "a=1", true}));

INSTANTIATE_TEST_SUITE_P(
    WithRowsThatAreNotTold, Writing,
    testing::Values(
        Row{"delete from A02 using B where A02.A00=B.A00", Kind::Delete, "A02", "A02", "", false},
        Row{"update A02 set A0203=B.x from B where A02.A00=B.A00", Kind::Update, "A02", "A02", "", false},
        Row{"delete from A02 where a=1 order by b limit 1", Kind::Delete, "A02", "A02", "", false},
        Row{"update A02 set A0203='x' limit 5,0", Kind::Update, "A02", "A02", "", false},
        Row{"delete from A02 where", Kind::Delete, "A02", "A02", "", false},
        Row{"delete from A02,B01 where 1=1", Kind::Delete, "", "", "1=1", false},
        Row{"delete from A02 where a=1) union (select 1", Kind::Delete, "A02", "A02", "a=1) union (select 1",
            false},
        Row{"update or replace A02 set A00='x'", Kind::Update, "", "", "", false},
        Row{"update A02", Kind::Update, "", "", "", false},
        Row{"delete A02", Kind::Delete, "", "", "", false},
        Row{"drop table A02", Kind::Other, "", "", "", false},
        Row{"alter table A02 add column x text", Kind::Other, "", "", "", false},
        Row{"replace into A02 values (1)", Kind::Other, "", "", "", false},
        Row{"with x as (select 1) delete from A02", Kind::Other, "", "", "", false}));

class NotWriting : public testing::TestWithParam<const char*> {};

TEST_P(NotWriting, IsLeftAlone) { EXPECT_FALSE(readWriting(GetParam())); }

INSTANTIATE_TEST_SUITE_P(All, NotWriting,
                         testing::Values("", "  ", "select * from A02", " select 1", "SELECT 1", "updates",
                                         "pragma page_count", "begin", "commit", "explain delete from A02",
                                         "with x as (select 1) select * from x", "delete from A02 -- all",
                                         "delete from A02 /* all */ where a=1",
                                         "delete from A02; delete from B01", "'delete from A02'",
                                         "(delete from A02)", "这不是语句"));

TEST(WritingStatement, TellsWhatAnUpdateSets) {
    const std::string sql =
        "update A02 set \"A0203\" = 'a,b' , A0299 = A0299 +200, A0204=iif(1,2,3) where A00='p'";
    const auto statement = readWriting(sql);
    ASSERT_TRUE(statement);
    ASSERT_EQ(statement->assignments.size(), 3U);
    EXPECT_EQ(statement->assignments[0].column, "\"A0203\"");
    EXPECT_EQ(statement->assignments[0].expression, "'a,b'");
    EXPECT_EQ(statement->assignments[1].column, "A0299");
    EXPECT_EQ(statement->assignments[1].expression, "A0299 +200");
    EXPECT_EQ(statement->assignments[2].expression, "iif(1,2,3)");
}

TEST(WritingStatement, APlainNameHasNoQuotes) {
    EXPECT_EQ(plainName("A02"), "A02");
    EXPECT_EQ(plainName("\"own \"\"notes\"\"\""), "own \"notes\"");
    EXPECT_EQ(plainName("[own]"), "own");
    EXPECT_EQ(plainName(""), "");
}

} // namespace
} // namespace quillmere::journal
