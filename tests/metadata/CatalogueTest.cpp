#include "metadata/Catalogue.h"

#include "support/FailureNumber.h"
#include "support/TestDatabase.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillmere {
namespace {

using Statements = std::vector<std::string>;

class CatalogueTest : public testing::Test {
protected:
    void SetUp() override {
        db.createCatalogue();
        db.addSet({.tblName = "A01", .property = true});
        db.addSet({.tblName = "A02", .property = false});
        db.addSet({.tblName = "A03", .property = std::nullopt});
    }

    test::TestDatabase db;
};

TEST_F(CatalogueTest, ASetIsMultipleWhenItsPropertyIsFalse) {
    EXPECT_TRUE(GetIsMult("A02"));
    EXPECT_FALSE(GetIsMult("A01"));
    EXPECT_EQ(db.statements(), (Statements{" select Property from s_infotable  where TblName ='A02'",
                                           " select Property from s_infotable  where TblName ='A01'"}));
}

TEST_F(CatalogueTest, ASetThatIsNotListedIsSingle) { EXPECT_FALSE(GetIsMult("X01")); }

TEST_F(CatalogueTest, ANullPropertyIsAFaultOfTheCatalogue) {
    EXPECT_EQ(failureOf([] { (void)GetIsMult("A03"); }), number(Failure::InvalidUseOfNull));
}

TEST_F(CatalogueTest, AFailingStatementReachesTheCaller) {
    db.failing().failAfter(1, "断开");
    EXPECT_EQ(failureOf([] { (void)GetIsMult("A01"); }), number(Failure::StatementFailed));
}

TEST_F(CatalogueTest, TheGeneralReadStandsOnTheFirstRowUnderEveryLockKind) {
    for (const int lockKind : {0, 1, 2, 3, 99}) {
        const auto records = OpenRecordset("select tblname from s_infotable order by tblname", lockKind);
        EXPECT_EQ(records->State(), 1) << lockKind;
        EXPECT_EQ(records->RecordCount(), 3) << lockKind;
        EXPECT_EQ(records->Fields("TBLNAME").toText(), "A01") << lockKind;
    }
}

TEST_F(CatalogueTest, TheGeneralReadOfNoRowsStandsAtBothEnds) {
    const auto records = OpenRecordset("select * from s_infotable where tblname='X'");
    EXPECT_TRUE(records->BOF());
    EXPECT_TRUE(records->EOF_());
}

} // namespace
} // namespace quillmere
