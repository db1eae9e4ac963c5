#include "EngineContract.h"

#include "../support/FailureNumber.h"

#include <limits>

namespace quillmere::data {

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(EngineContract);

Value EngineContract::cell(std::string_view sql) { return query(sql).at(0, 0); }

std::int32_t EngineContract::countOf(const std::string& table) {
    return cell("select count(*) from " + table).toLong();
}

std::vector<std::string> EngineContract::column(std::string_view sql) {
    const auto rows = query(sql);
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < rows.rowCount(); ++i)
        texts.push_back(rows.at(i, 0).isNull() ? "null" : rows.at(i, 0).toText());
    return texts;
}

void EngineContract::makeCodeTable(const std::string& name) {
    const auto types = engine->types();
    execute("create table " + name + " (dmcod " + types.text + " not null primary key, dmcpt " + types.text +
            ", dmhnd " + types.text + ", dmattr " + types.boolean + ")");
    for (const char* row :
         {"'01','华北','hb',false", "'0101','北京市','BJS',true", "'0102','天津市','tjs',true",
          "'02','华东',null,null", "'02A1','上海市','shs',true", "'03','','x',true"})
        execute("insert into " + name + " (dmcod,dmcpt,dmhnd,dmattr) values(" + row + ")");
}

void EngineContract::makeInfoTable() {
    const auto types = engine->types();
    execute("create table s_infotable (tblname " + types.text + " not null primary key, tbldesc " +
            types.text + ", OtherProp " + types.integer + " not null, orderfield " + types.text +
            ", maxnumber " + types.integer + ", Property " + types.boolean + ")");
    for (const char* row :
         {"'A01','人员基本信息',1,null,null,true", "'A02','学习经历',2,'A0203 desc',30,false",
          "'M01','进展',4,'',0,false", "'n02',null,3,null,null,null"})
        execute(std::string("insert into s_infotable values(") + row + ")");
}

// ---- one statement a call

TEST_P(EngineContract, AFreshDatabaseIsOpen) { EXPECT_TRUE(connection->isOpen()); }

TEST_P(EngineContract, ASemicolonAndBlanksAtTheEndAreAllowed) {
    EXPECT_EQ(cell("select 1;").toLong(), 1);
    EXPECT_EQ(cell("select 1 ; \r\n\t ").toLong(), 1);
}

TEST_P(EngineContract, ASemicolonInATextIsNoEnd) {
    execute("create table t (a " + engine->types().text + ")");
    execute("insert into t (a) values('x; delete from t')");
    EXPECT_EQ(cell("select a from t"), Value("x; delete from t"));
}

TEST_P(EngineContract, TwoStatementsAreRefusedBeforeAnythingRuns) {
    execute("create table t (a " + engine->types().text + ")");
    const std::string first = "insert into t (a) values('1');";
    for (const char* second :
         {" insert into t (a) values('2')", " select * from t", "nonsense", " select 'open"}) {
        EXPECT_EQ(failureOf([&] { execute(first + second); }), number(Failure::StatementFailed)) << second;
        EXPECT_EQ(failureOf([&] { (void)query(first + second); }), number(Failure::StatementFailed))
            << second;
    }
    EXPECT_EQ(countOf("t"), 0);
}

TEST_P(EngineContract, NoStatementAtAllFails) {
    for (const char* sql : {"", "  ", ";"}) {
        EXPECT_EQ(failureOf([&] { execute(sql); }), number(Failure::StatementFailed)) << '"' << sql << '"';
        EXPECT_EQ(failureOf([&] { (void)query(sql); }), number(Failure::StatementFailed))
            << '"' << sql << '"';
    }
}

TEST_P(EngineContract, AZeroByteDoesNotEndAStatement) {
    execute("create table t (a " + engine->types().text + ")");
    execute("insert into t (a) values('1')");
    const std::string sql = std::string("delete from t") + '\0' + " where a='2'";
    EXPECT_EQ(failureOf([&] { execute(sql); }), number(Failure::StatementFailed));
    EXPECT_EQ(countOf("t"), 1);
}

// ---- failures

TEST_P(EngineContract, AFaultyStatementFails) {
    execute("create table t (a " + engine->types().text + ")");
    for (const char* sql :
         {"select * from nowhere", "select b from t", "selec 1", "select * from t where a='x",
          "select * from t where a in ()x", "insert into t (b) values('x')"}) {
        EXPECT_EQ(failureOf([&] { execute(sql); }), number(Failure::StatementFailed)) << sql;
        EXPECT_EQ(failureOf([&] { (void)query(sql); }), number(Failure::StatementFailed)) << sql;
    }
}

TEST_P(EngineContract, AnUnknownNameInDoubleQuotesIsNoText) {
    execute("create table t (a " + engine->types().text + ")");
    EXPECT_EQ(failureOf([&] { (void)query("select * from t where a=\"nobody\""); }),
              number(Failure::StatementFailed));
}

TEST_P(EngineContract, AnEmptyListIsASyntaxFailure) {
    makeInfoTable();
    const std::string select = "select * from s_infotable where tblname ";
    for (const char* list : {"in ()", "in()", "IN ( )", "not in (\t\r\n)", "in (/* nothing */)",
                             "='A01' or otherprop in ()", "in ('A01') and tblname in ()"}) {
        try {
            (void)query(select + list);
            ADD_FAILURE() << "nothing was raised for " << list;
        } catch (const Error& error) {
            EXPECT_EQ(error.number(), number(Failure::StatementFailed)) << list;
            EXPECT_TRUE(error.description().starts_with("语句执行失败：")) << error.description();
        }
    }
    EXPECT_EQ(failureOf([&] { execute("delete from s_infotable where tblname not in ()"); }),
              number(Failure::StatementFailed));
    EXPECT_EQ(countOf("s_infotable"), 4);
}

TEST_P(EngineContract, AnEmptyListInATextIsNone) {
    makeInfoTable();
    EXPECT_EQ(cell("select 'in ()' from s_infotable where tblname='A01'"), Value("in ()"));
    EXPECT_EQ(cell("select 'it''s in ()' from s_infotable where tblname='A01'"), Value("it's in ()"));
    EXPECT_EQ(column("select tblname as \"in ()\" from s_infotable where tblname in ('in ()','A01')"),
              std::vector<std::string>{"A01"});
}

TEST_P(EngineContract, ACommentIsRefusedBeforeAnythingRuns) {
    makeInfoTable();
    // What a text with a quote would make of a change of one row.
    for (const char* sql :
         {"update s_infotable set tbldesc='x' -- ' where tblname='A01'",
          "update s_infotable set tbldesc='x' /* ' where tblname='A01' */",
          "delete from s_infotable -- where tblname='A01'", "-- nothing", "/* nothing */"}) {
        EXPECT_EQ(failureOf([&] { execute(sql); }), number(Failure::StatementFailed)) << sql;
    }
    EXPECT_EQ(countOf("s_infotable"), 4);
    EXPECT_EQ(cell("select count(*) from s_infotable where tbldesc='x'").toLong(), 0);
}

TEST_P(EngineContract, OtherQuotesAndParametersCannotHideACondition) {
    makeInfoTable();
    // In each of them an engine may see a quote, or its end, where the dialect sees none.
    for (const char* text : {"x',orderfield=$a(')--", "x',orderfield=@a(')--", "x',orderfield=:a(')--",
                             "x'||E'\\'' --", "x'||e'\\'' --", "x'||1E'\\'' --", "x'||$$'$$ --",
                             "x'||$a$'$a$ --", "x'||(array['a]'])[1] --", "x',orderfield=?||'"}) {
        const std::string sql =
            std::string("update s_infotable set tbldesc='").append(text).append("' where tblname='A01'");
        EXPECT_EQ(failureOf([&] { execute(sql); }), number(Failure::StatementFailed)) << sql;
    }
    EXPECT_EQ(cell("select count(*) from s_infotable where tbldesc like 'x%'").toLong(), 0);
}

TEST_P(EngineContract, TheMarksOfOtherQuotesAndParametersInATextAreNone) {
    makeInfoTable();
    constexpr std::string_view text = R"(E\ $$ $a$ [1] `b` ? :c @d $e #f)";
    EXPECT_EQ(cell(std::string("select '").append(text).append("' from s_infotable where tblname='A01'")),
              Value(text));
}

TEST_P(EngineContract, TheMarksOfACommentInATextOrANameAreNone) {
    makeInfoTable();
    EXPECT_EQ(cell("select '-- it''s /* one */' from s_infotable where tblname='A01'"),
              Value("-- it's /* one */"));
    EXPECT_EQ(column("select tblname as \"a--b\" from s_infotable where tblname='A01'"),
              std::vector<std::string>{"A01"});
}

TEST_P(EngineContract, TheDescriptionIsChineseWithTheEnginesMessageBehindIt) {
    try {
        execute("delete from nowhere");
        FAIL() << "nothing was raised";
    } catch (const Error& error) {
        const std::string expected = "语句执行失败：";
        EXPECT_EQ(error.description().substr(0, expected.size()), expected);
        EXPECT_NE(error.description().find("nowhere"), std::string::npos) << error.description();
    }
}

TEST_P(EngineContract, AStatementAfterAFailedOneRuns) {
    EXPECT_EQ(failureOf([&] { execute("select * from nowhere"); }), number(Failure::StatementFailed));
    EXPECT_EQ(cell("select 1").toLong(), 1);
}

TEST_P(EngineContract, AViolatedConstraintIsToldApart) {
    const auto types = engine->types();
    execute("create table t (a " + types.text + " not null primary key, n " + types.integer +
            " check (n > 0))");
    execute("insert into t (a,n) values('x',1)");
    for (const char* sql : {"insert into t (a,n) values('x',1)", "insert into t (a,n) values('X',1)",
                            "insert into t (a,n) values(null,1)", "update t set n=0"})
        EXPECT_EQ(failureOf([&] { execute(sql); }), number(Failure::ConstraintFailed)) << sql;
    EXPECT_EQ(countOf("t"), 1);
}

TEST_P(EngineContract, NothingOfAFailedStatementIsKept) {
    const auto types = engine->types();
    execute("create table source (a " + types.text + ", n " + types.integer + " not null)");
    execute("insert into source values('x',1)");
    execute("insert into source values('y',2)");
    execute("insert into source values('x',3)");
    execute("create table t (a " + types.text + " not null primary key)");
    EXPECT_EQ(failureOf([&] { execute("insert into t select a from source order by n"); }),
              number(Failure::ConstraintFailed));
    EXPECT_EQ(countOf("t"), 0);
    execute("insert into t values('y')");
    EXPECT_EQ(column("select a from t"), std::vector<std::string>{"y"});
}

TEST_P(EngineContract, AClosedConnectionRaisesInvalidConnection) {
    connection->close();
    EXPECT_FALSE(connection->isOpen());
    EXPECT_EQ(failureOf([&] { execute("select 1"); }), number(Failure::InvalidConnection));
    EXPECT_EQ(failureOf([&] { (void)query("select 1"); }), number(Failure::InvalidConnection));
    EXPECT_NO_THROW(connection->close());
}

// ---- rows and values

TEST_P(EngineContract, AStatementWithoutRowsAnswersTheEmptyRowSet) {
    execute("create table t (a " + engine->types().text + ")");
    EXPECT_TRUE(query("insert into t (a) values('x')").empty());
    EXPECT_EQ(countOf("t"), 1);
}

TEST_P(EngineContract, AnEmptyAnswerHasItsColumns) {
    execute("create table t (A00 " + engine->types().text + ", A0101 " + engine->types().text + ")");
    const auto rows = query("select * from t");
    EXPECT_TRUE(rows.empty());
    EXPECT_EQ(rows.findColumn("A00"), 0U);
    EXPECT_EQ(rows.findColumn("a0101"), 1U);
}

TEST_P(EngineContract, ExecuteDropsTheRowsOfAQuery) {
    makeInfoTable();
    EXPECT_NO_THROW(execute("select * from s_infotable"));
    EXPECT_NO_THROW(execute("drop table s_infotable")); // no cursor was left on it
}

TEST_P(EngineContract, NullsAndEmptyTextsAreTwoThings) {
    execute("create table t (n " + engine->types().integer + " not null, a " + engine->types().text + ")");
    execute("insert into t (n,a) values(1,null)");
    execute("insert into t (n,a) values(2,'')");
    EXPECT_EQ(query("select a from t order by n").at(0, 0), Value(Null{}));
    EXPECT_EQ(query("select a from t order by n").at(1, 0), Value(""));
    EXPECT_EQ(column("select n from t where a<>'x' order by n"), std::vector<std::string>{"2"});
    EXPECT_EQ(column("select n from t where a is null order by n"), std::vector<std::string>{"1"});
}

TEST_P(EngineContract, IntegersComeBack) {
    execute("create table t (n " + engine->types().integer + ")");
    for (const std::int32_t value :
         {0, 1, -1, std::numeric_limits<std::int32_t>::max(), std::numeric_limits<std::int32_t>::min()}) {
        execute("delete from t");
        execute("insert into t (n) values(" + std::to_string(value) + ")");
        EXPECT_EQ(cell("select n from t"), Value(value));
    }
}

TEST_P(EngineContract, RealsComeBack) {
    execute("create table t (x " + engine->types().real + ")");
    for (const char* text : {"0.1", "-2.5", "123456.789", "0.0000001", "5", "0"}) {
        execute("delete from t");
        execute(std::string("insert into t (x) values(") + text + ")");
        EXPECT_EQ(cell("select x from t"), Value(std::stod(text))) << text;
    }
}

TEST_P(EngineContract, TextThatLooksLikeANumberOrADateStaysText) {
    execute("create table t (a " + engine->types().text + ")");
    for (const char* text :
         {"2026.10", "007", "199003", "1990-03", "1990-03-01 08:00:00", "true", "1e3", " x "}) {
        execute("delete from t");
        execute(std::string("insert into t (a) values('") + text + "')");
        EXPECT_EQ(cell("select a from t"), Value(text)) << text;
    }
}

TEST_P(EngineContract, DoubledQuotesAreOneInTheText) {
    execute("create table t (a " + engine->types().text + ")");
    execute("insert into t (a) values('O''Hara \\ \"x\"')");
    EXPECT_EQ(cell("select a from t"), Value("O'Hara \\ \"x\""));
}

TEST_P(EngineContract, LargeTextsComeBackWhole) {
    constexpr int repeats = 100'000;
    std::string text;
    for (int i = 0; i < repeats; ++i)
        text += "简历𠮷a";
    execute("create table t (a " + engine->types().longText + ")");
    execute("insert into t (a) values('" + text + "')");
    EXPECT_TRUE(cell("select a from t") == Value(text));
    EXPECT_EQ(cell("select len(a) from t").toLong(), 4 * repeats);
}

TEST_P(EngineContract, BooleanColumnsReadAsBooleans) {
    makeInfoTable();
    EXPECT_EQ(cell(" select Property from s_infotable  where TblName ='A01'"), Value(true));
    EXPECT_EQ(cell(" select Property from s_infotable  where TblName ='A02'"), Value(false));
    EXPECT_TRUE(cell(" select Property from s_infotable  where TblName ='n02'").isNull());
    EXPECT_EQ(query("select * from s_infotable where tblname='A01'").at(0, "property"), Value(true));
}

TEST_P(EngineContract, NumbersBesideBooleansStayNumbers) {
    makeInfoTable();
    const auto rows =
        query("select maxnumber, count(*) as n from s_infotable where Property=true group by maxnumber");
    EXPECT_TRUE(rows.at(0, "maxnumber").isNull());
    EXPECT_EQ(rows.at(0, "n"), Value(1));
}

// ---- identities

TEST_P(EngineContract, AnIdentityIsMadeOnInsert) {
    const auto types = engine->types();
    execute("create table S_GUID (id " + types.identity + ", val " + types.text + ")");
    const auto next = [&] {
        execute(" delete from S_GUID ");
        execute("insert into S_GUID(val) values('a')");
        return cell("select id from S_GUID where val='a'").toText();
    };
    const auto first = next();
    const auto second = next();
    EXPECT_EQ(first.size(), 38U);
    EXPECT_EQ(first.front(), '{');
    EXPECT_EQ(first.back(), '}');
    EXPECT_NE(first, second);
    EXPECT_EQ(countOf("S_GUID"), 1);
}

} // namespace quillmere::data
