#include "metadata/Identity.h"

#include "support/FailureNumber.h"
#include "support/TestDatabase.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillmere {
namespace {

using Statements = std::vector<std::string>;

class IdentityTest : public testing::Test {
protected:
    void SetUp() override {
        db.createCatalogue();
        db.createDataTable("A01", {"A0101"});
        db.createDataTable("B01", {"B0101"});
        db.addRow("A01", {"p1", "Wang"});
        db.addRow("B01", {"u1", "Academy"});
    }

    test::TestDatabase db;
};

TEST_F(IdentityTest, AnIdentityIsWhatTheDatabaseMadeLessItsBraces) {
    const std::string identity = NewGuid();
    EXPECT_EQ(identity.size(), 36U);
    EXPECT_EQ(db.cell("select id from S_GUID"), "{" + identity + "}");
}

TEST_F(IdentityTest, AnIdentityTakesThreeStatementsToTheLetter) {
    (void)NewGuid();
    EXPECT_EQ(db.statements(), (Statements{" delete from S_GUID ", "insert into S_GUID(val) values('a')",
                                           "select id from S_GUID where val='a'"}));
}

TEST_F(IdentityTest, TwoIdentitiesDifferAndOneRowIsLeft) {
    const std::string first = NewGuid();
    EXPECT_NE(NewGuid(), first);
    EXPECT_EQ(db.cell("select count(*) from S_GUID"), "1");
}

TEST_F(IdentityTest, StaleRowsAreClearedFirst) {
    db.run("insert into S_GUID values ('{stale}', 'a')");
    db.run("insert into S_GUID values ('{other}', 'b')");
    const std::string identity = NewGuid();
    EXPECT_EQ(db.column("select id from S_GUID"), (Statements{"{" + identity + "}"}));
}

TEST_F(IdentityTest, AFailureOfAnyStatementReachesTheCaller) {
    for (int statement = 1; statement <= 3; ++statement) {
        db.failing().failAfter(statement, "断开");
        EXPECT_EQ(failureOf([] { (void)NewGuid(); }), number(Failure::StatementFailed)) << statement;
    }
}

TEST_F(IdentityTest, APersonsNameIsLookedUpAsItStands) {
    EXPECT_TRUE(PersonNameExists("Wang"));
    EXPECT_FALSE(PersonNameExists(" Wang"));
    EXPECT_EQ(db.statements(), (Statements{"select count(*) from A01 where A0101 = 'Wang'",
                                           "select count(*) from A01 where A0101 = ' Wang'"}));
}

TEST_F(IdentityTest, AUnitsNameIsLookedUpAmongTheUnits) {
    EXPECT_TRUE(UnitNameExists("Academy"));
    EXPECT_FALSE(UnitNameExists("Wang"));
    EXPECT_EQ(db.statements()[0], "select count(*) from B01 where B0101 = 'Academy'");
}

TEST_F(IdentityTest, TheDatabaseDecidesWhetherCaseMatters) {
    EXPECT_TRUE(PersonNameExists("WANG"));
    db.run("drop table A01");
    db.run("create table A01 (A00 text, A0101 text)");
    db.addRow("A01", {"p1", "Wang"});
    EXPECT_FALSE(PersonNameExists("WANG"));
}

TEST_F(IdentityTest, ACountAbove32767Overflows) {
    db.run("insert into A01 with recursive n(i) as (select 1 union all select i+1 from n where i<32766) "
           "select 'p', 'Wang' from n");
    EXPECT_TRUE(PersonNameExists("Wang"));
    db.addRow("A01", {"p", "Wang"});
    EXPECT_EQ(failureOf([] { (void)PersonNameExists("Wang"); }), number(Failure::Overflow));
}

TEST_F(IdentityTest, AQuoteInTheNameBreaksTheStatement) {
    EXPECT_EQ(failureOf([] { (void)PersonNameExists("O'Brien"); }), number(Failure::StatementFailed));
    EXPECT_EQ(failureOf([] { (void)UnitNameExists("O'Brien"); }), number(Failure::StatementFailed));
}

} // namespace
} // namespace quillmere
