#include "SqliteBench.h"

#include "../support/FailureNumber.h"

#include <filesystem>

namespace quillmere::sqlite {
namespace {

using SqliteKeptQueries = SqliteBench;

TEST_F(SqliteKeptQueries, ResultsAreNeverKept) {
    EXPECT_EQ(connection->query("select * from t").rowCount(), 1U);
    connection->execute("insert into t values('y',0)");
    EXPECT_EQ(connection->query("select * from t").rowCount(), 2U);
}

TEST_F(SqliteKeptQueries, AKeptQuerySeesANewColumn) {
    (void)connection->query("select * from t");
    connection->execute("alter table t add column c boolean default 1");
    const auto rows = connection->query("select * from t");
    EXPECT_EQ(rows.columns(), (std::vector<std::string>{"a", "b", "c"}));
    EXPECT_EQ(rows.at(0, "c"), data::Value(true));
}

TEST_F(SqliteKeptQueries, AKeptQuerySeesThatAColumnIsNoLongerABoolean) {
    const char* plain = "select b from t";
    const char* through = "select iif(b is null,null,b) as b from t";
    EXPECT_EQ(connection->query(plain).at(0, 0), data::Value(true));
    EXPECT_EQ(connection->query(through).at(0, 0), data::Value(true));
    connection->execute("drop table t");
    connection->execute("create table t (b integer)");
    connection->execute("insert into t values(1)");
    EXPECT_EQ(connection->query(plain).at(0, 0), data::Value(1));
    EXPECT_EQ(connection->query(through).at(0, 0), data::Value(1));
    connection->execute("drop table t");
    connection->execute("create table t (b boolean)");
    connection->execute("insert into t values(0)");
    connection->execute(through); // runs, and compiles again, without anyone asking for the rows
    EXPECT_EQ(connection->query(through).at(0, 0), data::Value(false));
}

TEST_F(SqliteKeptQueries, AKeptQueryFailsWhenItsTableIsGone) {
    (void)connection->query("select * from t");
    connection->execute("drop table t");
    EXPECT_EQ(failureOf([&] { (void)connection->query("select * from t"); }),
              number(Failure::StatementFailed));
    connection->execute("create table t (z text)");
    EXPECT_EQ(connection->query("select * from t").columns(), std::vector<std::string>{"z"});
}

TEST_F(SqliteKeptQueries, AQueryThatFailedWhileRunningRunsAgain) {
    const char* sql = "select mid(a,n) from t, (select 1 as n union all select 0)";
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(failureOf([&] { (void)connection->query(sql); }), number(Failure::StatementFailed));
    connection->execute("delete from t");
    EXPECT_TRUE(connection->query(sql).empty());
}

TEST_F(SqliteKeptQueries, MoreQueriesThanAreKeptAllAnswer) {
    for (int round = 0; round < 2; ++round)
        for (int i = 0; i < 300; ++i)
            EXPECT_EQ(connection->query("select " + std::to_string(i)).at(0, 0), data::Value(i));
}

TEST_F(SqliteKeptQueries, CanBeTurnedOff) {
    const auto file = std::filesystem::temp_directory_path() / ("quillmere-kept-" + std::to_string(getpid()));
    const auto none = open({.path = file, .create = true, .keptQueries = 0});
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(none->query("select 5").at(0, 0), data::Value(5));
    none->close();
    std::filesystem::remove(file);
}

} // namespace
} // namespace quillmere::sqlite
