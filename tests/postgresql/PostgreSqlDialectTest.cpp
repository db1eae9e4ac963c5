#include "TestServer.h"

#include "../support/FailureNumber.h"
#include "platform/convert/Format.h"

namespace quillmere::postgresql {
namespace {

using data::Value;

class Dialect : public PostgreSqlBench {
protected:
    Value cell(const std::string& sql) { return connection->query(sql).at(0, 0); }
};

TEST_F(Dialect, FormatDoesWhatThePlatformsDoes) {
    const char* values[] = {
        "1990-03",
        "1990-3-5",
        "1990/03/12",
        "1990.12.31",
        "1990年3月5日",
        "1990年3月",
        "1990-03-05T8:7:6",
        "1990-02-29",
        "2000-2-29",
        "1990-13",
        "0099-01",
        "１９９０-３",
        " 1990-03 ",
        "1990-03-05  23:59",
        "1990-03-05 24:00",
        "1990-",
        "199003",
        "不详",
        "",
        "0",
        "5",
        "-0.005",
        "0.005",
        "2.345",
        "1,234.5-",
        "+12",
        "- 7",
        "1e3",
        "1.5E-3",
        "1e400",
        "1e",
        "e3",
        ".5",
        "5.",
        "12 3",
        "1-2",
        "9.995",
        "99.5",
        "1234567.891",
        "-0.4",
        "0.1",
        "123456789012345678",
    };
    const char* pictures[] = {
        "yyyy.MM", "yyyy-MM-dd", "yyyy年m月d日", "yy/mm", "hh:mm:ss", "h n s",  "yyyy-mm-dd hh:nn", "0",
        "0.00",    "#,##0.00",   "#.##",         "#",     "0.0#元",   "(0000)", "00.0,0",           "x",
        "",        "0x0",        ".00",
    };
    for (const char* value : values) {
        for (const char* picture : pictures) {
            const std::string sql = std::string("select format('") + value + "','" + picture + "')";
            EXPECT_EQ(cell(sql), Value(convert::format(std::string_view(value), picture))) << sql;
        }
    }
}

TEST_F(Dialect, FormatTakesDatesOfTheServersOwn) {
    EXPECT_EQ(cell("select format(date '1990-03-05','yyyy.MM')"), Value("1990.03"));
    EXPECT_EQ(cell("select format(timestamp '1990-03-05 08:07:06.5','hh:nn:ss')"), Value("08:07:06"));
}

TEST_F(Dialect, AStartBelowOneOfMidFails) {
    EXPECT_EQ(failureOf([&] { (void)cell("select mid('abc',0,1)"); }), number(Failure::StatementFailed));
    EXPECT_EQ(failureOf([&] { (void)cell("select mid('abc',1,-1)"); }), number(Failure::StatementFailed));
}

TEST_F(Dialect, MidTakesItsPlacesFromColumns) {
    connection->execute("create table t (a text collate jet_ci, n integer)");
    connection->execute("insert into t values('abcdef',2)");
    const auto rows = connection->query("select mid(a,n), mid(a,n,n), mid(a,n,3), mid(a,3,n) from t");
    EXPECT_EQ(rows.row(0), (std::vector<Value>{"bcdef", "bc", "bcd", "cd"}));
}

TEST_F(Dialect, LenAndMidTakeNumbers) {
    EXPECT_EQ(cell("select len(1234)"), Value(4));
    EXPECT_EQ(cell("select len(1.5::float8)"), Value(3));
    EXPECT_EQ(cell("select mid(199003,5,2)"), Value("03"));
}

TEST_F(Dialect, IifMixesADefaultTextWithNumbers) {
    connection->execute("create table t (n integer, x float8, m numeric)");
    connection->execute("insert into t values(null,2.5,7)");
    const auto rows = connection->query("select iif(n is null,'',n), iif(x is null,'',x), iif(m is "
                                        "null,'',m), iif(n is null,'是','否') from t");
    EXPECT_EQ(rows.row(0), (std::vector<Value>{"", "2.5", "7", "是"}));
}

TEST_F(Dialect, NotLikeIsTheContrary) {
    connection->execute("create table t (a text collate jet_ci)");
    connection->execute("insert into t values('Plan1')");
    EXPECT_TRUE(connection->query("select * from t where a not like 'plan%'").empty());
    EXPECT_EQ(connection->query("select * from t where a not like 'P1%'").rowCount(), 1U);
}

TEST_F(Dialect, AnIndexIsFoundWithoutRegardToCase) {
    connection->execute("create table t (a text collate jet_ci primary key)");
    connection->execute("set enable_seqscan=off");
    const auto plan = connection->query("explain select * from t where a='x'");
    EXPECT_NE(plan.at(0, 0).toText().find("Index"), std::string::npos) << plan.at(0, 0).toText();
}

// ---- names of columns

TEST_F(Dialect, ColumnsBearTheNamesThatTheStatementSpells) {
    connection->execute("create table A02 (A0201 text, A0202 text)");
    const auto names = [&](const std::string& sql) { return connection->query(sql).columns(); };
    using Texts = std::vector<std::string>;
    EXPECT_EQ(names("select A02.A0201 as SCI收录, A0202, len(A0201) as N from A02"),
              (Texts{"SCI收录", "A0202", "N"}));
    EXPECT_EQ(names("select \"a0201\" as \"Quoted\"\"Name\", iif(true,1,2) Plain from A02"),
              (Texts{"Quoted\"Name", "Plain"}));
    // Of these the server tells the table's names, in small letters.
    EXPECT_EQ(names("select * from A02"), (Texts{"a0201", "a0202"}));
    EXPECT_EQ(names("select len(A0201), 1 from A02"), (Texts{"len", "?column?"}));
}

TEST_F(Dialect, ALongNameIsWhole) {
    const std::string name =
        "申请人提出、确定申请资助项目的依据；概要介绍与该项目有关专业在国内外的发展现状及趋势";
    EXPECT_EQ(connection->query("select 1 as \"" + name + "\"").columns(), std::vector<std::string>{name});
    EXPECT_EQ(connection->query("select 1 as 甲, 2 as B").columns(), (std::vector<std::string>{"甲", "B"}));
}

// ---- types

TEST_F(Dialect, NumbersOfEveryTypeAreNumbers) {
    const auto rows =
        connection->query("select 1::smallint, 2::bigint, 2.50::numeric, 3::numeric, 1.5::real, "
                          "count(*), sum(1::bigint), '2026-01-02'::date, 'x'::char(3)");
    EXPECT_EQ(rows.row(0), (std::vector<Value>{1, 2, 2.5, 3, 1.5, 1, 1, "2026-01-02", "x  "}));
}

} // namespace
} // namespace quillmere::postgresql
