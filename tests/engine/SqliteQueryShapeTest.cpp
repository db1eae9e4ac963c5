#include "SqliteBench.h"

#include "../support/FailureNumber.h"
#include "adapters/sqlite/QueryShape.h"

#include <gtest/gtest.h>

namespace quillmere::sqlite {
namespace {

struct ShapeRow {
    const char* name;
    const char* sql;
    const char* shape;
    std::vector<std::string> texts;
};

class QueryShapeOf : public testing::TestWithParam<ShapeRow> {};

TEST_P(QueryShapeOf, TakesOutTheTextsOfTheCondition) {
    const QueryShape shape = shapeOf(GetParam().sql);
    EXPECT_EQ(shape.sql, GetParam().shape);
    EXPECT_EQ(shape.texts, GetParam().texts);
}

INSTANTIATE_TEST_SUITE_P(
    , QueryShapeOf,
    testing::Values(
        ShapeRow{"ALookup", "select a from t where b='x'", "select a from t where b=?", {"x"}},
        ShapeRow{"WhateverCase", "SELECT a FROM t WHERE b ='x'", "SELECT a FROM t WHERE b =?", {"x"}},
        ShapeRow{"SeveralInTheirOrder",
                 "select a from t where b='x' and c>='y' or d=5",
                 "select a from t where b=? and c>=? or d=5",
                 {"x", "y"}},
        ShapeRow{"ADoubledQuote", "select a from t where b='it''s'", "select a from t where b=?", {"it's"}},
        ShapeRow{"NothingButAQuote", "select a from t where b=''''", "select a from t where b=?", {"'"}},
        ShapeRow{"AnEmptyText", "select a from t where b=''", "select a from t where b=?", {""}},
        ShapeRow{"WhatIsOrderedStays",
                 "select a from t where b='x' order by b='y'",
                 "select a from t where b=? order by b='y'",
                 {"x"}},
        ShapeRow{"InASubquery",
                 "select a from t where b in (select c from u where d='x')",
                 "select a from t where b in (select c from u where d=?)",
                 {"x"}}));

INSTANTIATE_TEST_SUITE_P(
    StaysWhole, QueryShapeOf,
    testing::Values(
        ShapeRow{"AnItemsText", "select a='x' from t", "select a='x' from t", {}},
        ShapeRow{"AList", "select a from t where b in ('x','y')", "select a from t where b in ('x','y')", {}},
        ShapeRow{"APattern", "select a from t where b like 'x%'", "select a from t where b like 'x%'", {}},
        ShapeRow{"AName", "select a from t where b=\"c\"", "select a from t where b=\"c\"", {}},
        ShapeRow{"ABlob", "select a from t where b=x'00'", "select a from t where b=x'00'", {}},
        ShapeRow{"AnEndlessText", "select a from t where b='x''", "select a from t where b='x''", {}},
        ShapeRow{"WithAParameter",
                 "select a from t where b=? and c='x'",
                 "select a from t where b=? and c='x'",
                 {}},
        ShapeRow{"AnUpdate", "update t set a='x' where b='y'", "update t set a='x' where b='y'", {}}));

using SqliteQueriesOfOneShape = SqliteBench;

TEST_F(SqliteQueriesOfOneShape, EachAnswerByItsOwnText) {
    connection->execute("create table names (code text collate nocase, name text)");
    connection->execute("insert into names values ('a','first'),('b','second'),('it''s','third')");
    const auto nameOf = [&](const std::string& code) {
        return connection->query("select name from names where code='" + code + "'");
    };
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(nameOf("a").at(0, 0), data::Value("first"));
        EXPECT_EQ(nameOf("B").at(0, 0), data::Value("second"));
        EXPECT_EQ(nameOf("it''s").at(0, 0), data::Value("third"));
        EXPECT_TRUE(nameOf("").empty());
    }
}

TEST_F(SqliteQueriesOfOneShape, ATextMeetsANumberAsItDidInTheStatement) {
    connection->execute("create table numbers (i integer, r real, t text)");
    connection->execute("insert into numbers values (7,7.5,'7')");
    for (const char* equal : {"i='7'", "i='7.0'", "r='7.5'", "t='7'"})
        EXPECT_EQ(connection->query("select 1 from numbers where " + std::string(equal)).rowCount(), 1U)
            << equal;
    for (const char* unequal : {"t='7.0'", "i+0='7'", "r='x'"})
        EXPECT_TRUE(connection->query("select 1 from numbers where " + std::string(unequal)).empty())
            << unequal;
}

TEST_F(SqliteQueriesOfOneShape, AFailureTellsOfTheStatementAsItStands) {
    for (int round = 0; round < 2; ++round) {
        try {
            (void)connection->query("select a from t where nowhere='x' and b= 'y' 'z'");
            ADD_FAILURE() << "a faulty statement ran";
        } catch (const Error& failure) {
            EXPECT_EQ(failure.number(), number(Failure::StatementFailed));
            EXPECT_NE(failure.description().find("near \"'z'\""), std::string::npos) << failure.description();
        }
    }
}

TEST_F(SqliteQueriesOfOneShape, ANulInATextIsRefusedEvenWhenTheShapeIsKept) {
    (void)connection->query("select a from t where a='x'");
    const std::string withNul("select a from t where a='x\0y'", 29);
    EXPECT_EQ(failureOf([&] { (void)connection->query(withNul); }), number(Failure::StatementFailed));
}

TEST_F(SqliteQueriesOfOneShape, AreNotAnsweredForAStatementThatReadsLikeTheirShape) {
    EXPECT_EQ(connection->query("select a from t where a='x'").rowCount(), 1U);
    EXPECT_EQ(failureOf([&] { (void)connection->query("select a from t where a=?"); }),
              number(Failure::StatementFailed));
}

TEST_F(SqliteQueriesOfOneShape, SeeAChangedTable) {
    EXPECT_EQ(connection->query("select * from t where a='x'").columns().size(), 2U);
    connection->execute("alter table t add column c text");
    EXPECT_EQ(connection->query("select * from t where a='x'").columns().size(), 3U);
    EXPECT_TRUE(connection->query("select * from t where a='other'").empty());
}

} // namespace
} // namespace quillmere::sqlite
