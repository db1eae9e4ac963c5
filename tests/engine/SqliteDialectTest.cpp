#include "SqliteBench.h"

#include "../support/FailureNumber.h"
#include "platform/text/Text.h"

namespace quillmere::sqlite {
namespace {

using SqliteDialect = SqliteBench;

TEST_F(SqliteDialect, SemicolonsAtTheEndAreNoStatement) {
    EXPECT_EQ(connection->query("select 1; ;;\n ").at(0, 0), data::Value(1));
}

TEST_F(SqliteDialect, ACommentIsToldInItsOwnWords) {
    EXPECT_EQ(descriptionOf([&] { (void)connection->query("select 1 -- end"); }),
              "语句执行失败：语句中含有注释");
}

TEST_F(SqliteDialect, AParameterIsToldInItsOwnWords) {
    for (const char* sql : {"select ?", "select ?1", "select :a", "select @a", "select $a", "select $a(')"})
        EXPECT_EQ(descriptionOf([&] { (void)connection->query(sql); }), "语句执行失败：语句中含有参数")
            << sql;
}

TEST_F(SqliteDialect, AComplaintOfBytesThatAreNoCharactersIsText) {
    const std::string description = descriptionOf([&] { (void)connection->query("select \xA7"); });
    EXPECT_EQ(text::encode(text::decode(description)), description);
}

TEST_F(SqliteDialect, APragmaBesideAnotherStatementIsRefusedBeforeItActs) {
    const auto setting = [&] { return connection->query("pragma foreign_keys").at(0, 0).toLong(); };
    ASSERT_EQ(setting(), 0);
    EXPECT_EQ(failureOf([&] { connection->execute("pragma foreign_keys=on; select 1"); }),
              number(Failure::StatementFailed));
    EXPECT_EQ(failureOf([&] { connection->execute("select 1; pragma foreign_keys=on"); }),
              number(Failure::StatementFailed));
    EXPECT_EQ(setting(), 0);
    connection->execute("pragma foreign_keys=on");
    EXPECT_EQ(setting(), 1);
    connection->execute("pragma foreign_keys=off");
    EXPECT_EQ(setting(), 0);
}

TEST_F(SqliteDialect, PragmasAnswerInsideAQuery) {
    const char* sql = "select name from pragma_table_info('t')";
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(connection->query(sql).rowCount(), 2U);
}

TEST_F(SqliteDialect, ABatchIsHeldTogetherByBeginAndCommit) {
    connection->execute("begin");
    connection->execute("insert into t values('y',1)");
    connection->execute("rollback");
    EXPECT_EQ(connection->query("select * from t").rowCount(), 1U);
    connection->execute("begin");
    connection->execute("insert into t values('y',1)");
    connection->execute("commit");
    EXPECT_EQ(connection->query("select * from t").rowCount(), 2U);
}

TEST_F(SqliteDialect, TheDescriptionTellsWhichConstraintFailed) {
    connection->execute("create table c (a text primary key, b text not null, n integer check (n > 0))");
    connection->execute("insert into c values('x','x',1)");
    const auto failing = [&](const std::string& row) {
        return descriptionOf([&] { connection->execute("insert into c values(" + row + ")"); });
    };
    EXPECT_EQ(failing("'x','x',1"), "数据重复，违反唯一性约束：UNIQUE constraint failed: c.a");
    EXPECT_EQ(failing("'y',null,1"), "必填数据为空：NOT NULL constraint failed: c.b");
    EXPECT_EQ(failing("'y','y',0"), "数据不符合检查条件：CHECK constraint failed: n > 0");
}

TEST_F(SqliteDialect, AFaultySyntaxIsToldInSqlitesWords) {
    EXPECT_EQ(descriptionOf([&] { connection->execute("select x x x"); }),
              "语句执行失败：near \"x\": syntax error");
}

TEST_F(SqliteDialect, AStartBelowOneOfMidFails) {
    EXPECT_EQ(failureOf([&] { (void)connection->query("select mid('abc',0,1)"); }),
              number(Failure::StatementFailed));
    EXPECT_EQ(failureOf([&] { (void)connection->query("select mid('abc',1,-1)"); }),
              number(Failure::StatementFailed));
}

TEST_F(SqliteDialect, TheFunctionsMayStandInTheSchema) {
    connection->execute("create table p (a text check (len(a) < 12))");
    connection->execute("create index pi on p (mid(a,5,6))");
    connection->execute("insert into p values('abcd199003')");
    EXPECT_EQ(failureOf([&] { connection->execute("insert into p values('123456789012')"); }),
              number(Failure::ConstraintFailed));
    const auto plan = connection->query("explain query plan select * from p where mid(a,5,6)='199003'");
    EXPECT_NE(plan.at(0, "detail").toText().find("USING INDEX pi"), std::string::npos);
}

TEST_F(SqliteDialect, AColumnUnderAnotherNameIsABooleanAndAnExpressionIsNot) {
    const auto rows = connection->query("select b as c, iif(b,7,8) as d from t");
    EXPECT_EQ(rows.at(0, "c"), data::Value(true));
    EXPECT_EQ(rows.at(0, "d"), data::Value(7));
}

TEST_F(SqliteDialect, AnExpressionOfTwoColumnsOfOneNameIsABooleanOnlyWhenBothAre) {
    connection->execute("create table u (b integer)");
    connection->execute("insert into u values(1)");
    connection->execute("create table v (b boolean)");
    connection->execute("insert into v values(1)");
    EXPECT_EQ(connection->query("select iif(t.b is null,u.b,t.b) as b from t, u").at(0, 0), data::Value(1));
    EXPECT_EQ(connection->query("select iif(t.b is null,v.b,t.b) as b from t, v").at(0, 0),
              data::Value(true));
}

TEST_F(SqliteDialect, ALiteralBesideAStarIsNoHindrance) {
    const auto rows = connection->query("select *, iif(a='x',true,false) as c from t");
    EXPECT_EQ(rows.row(0), (std::vector<data::Value>{"x", true, 1})); // too many columns to tell
    EXPECT_EQ(connection->query("select true as yes, 1 as one from t").row(0),
              (std::vector<data::Value>{true, 1}));
}

TEST_F(SqliteDialect, AStatementAfterOneThatFailedWhileRunningRuns) {
    connection->execute("create table c (a text primary key)");
    connection->execute("insert into c values('x')");
    EXPECT_EQ(failureOf([&] { connection->execute("insert into c values('x')"); }),
              number(Failure::ConstraintFailed));
    EXPECT_NO_THROW(connection->execute("insert into c values('y')"));
    EXPECT_EQ(connection->query("select a from c order by a").rowCount(), 2U);
}

TEST_F(SqliteDialect, ABooleanIsKnownThroughAViewAndASubquery) {
    connection->execute("create view w as select a, b from t");
    EXPECT_EQ(connection->query("select b from w").at(0, 0), data::Value(true));
    EXPECT_EQ(connection->query("select iif(b is null,false,b) as b from w").at(0, 0), data::Value(true));
    EXPECT_EQ(connection->query("select b from (select b from t)").at(0, 0), data::Value(true));
}

} // namespace
} // namespace quillmere::sqlite
