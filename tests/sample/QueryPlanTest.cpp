#include "SampleDatabase.h"

#include "metadata/Globals.h"
#include "platform/text/Text.h"
#include "sample/Catalogue.h"
#include "support/StatementsInUse.h"

#include <gtest/gtest.h>

#include <set>

namespace quillmere::sample {
namespace {

using test::countOf;
using test::defaultRegister;

/// The list of the reference host, which asks in SQLite's own words.
constexpr const char* statementsOfTheHost[] = {
    "select * from A01 order by A0199 desc limit 200 offset 400",
    "select * from B01 order by B0199 desc limit 200 offset 400",
    "select distinct A01.rowid from P01 cross join A01 where A01.A00=P01.A00 and P01.P0123='02' order by "
    "A01.rowid desc",
};

/// Tables whose size does not grow with the register: reading one whole costs next to nothing.
const std::set<std::string> smallTables{"s_infotable", "ZZStyle", "S_GUID"};

/// Fails for each step of the statement's plan that reads a whole table without an index.
void expectIndexed(const std::string& statement) {
    const data::RowSet plan = defaultRegister().query("explain query plan " + statement);
    for (std::size_t row = 0; row < plan.rowCount(); ++row) {
        const std::string step = plan.at(row, "detail").toText();
        if (!step.starts_with("SCAN ") || step.find("INDEX") != std::string::npos) continue;
        EXPECT_TRUE(smallTables.contains(text::split(step, " ").at(1))) << statement << ": " << step;
    }
}

class QueryPlan : public testing::TestWithParam<const char*> {};

TEST_P(QueryPlan, FindsAnIndex) { expectIndexed(GetParam()); }

INSTANTIATE_TEST_SUITE_P(InUse, QueryPlan, testing::ValuesIn(quillmere::test::statementsInUse));
INSTANTIATE_TEST_SUITE_P(OfTheHost, QueryPlan, testing::ValuesIn(statementsOfTheHost));

TEST(QueryPlans, AWholeTableIsSeenAsSuch) {
    // Else the tests here could not fail.
    const data::RowSet plan =
        defaultRegister().query("explain query plan select * from A01 where A0128='10012345678'");
    EXPECT_EQ(plan.at(0, "detail").toText(), "SCAN A01");
}

TEST(QueryPlans, TablesReadWholeStaySmall) {
    for (const std::string& table : smallTables)
        EXPECT_LE(countOf(defaultRegister(), "select count(*) from " + table), 100) << table;
}

TEST(QueryPlans, StatementsThatEverySetSharesFindItsIndex) {
    for (const SetRow& set : informationSets()) {
        for (const std::string& statement : quillmere::test::statementsOfSet(set))
            expectIndexed(statement);
    }
}

TEST(QueryPlans, ProjectNumbersOfADayAreCountedThroughTheWholeTable) {
    // An index on mid(...) would shut the file to every program that does not know the function.
    const data::RowSet plan =
        defaultRegister().query("explain query plan select * from P01 where mid(P0120,5,6)='260115'");
    EXPECT_EQ(plan.at(0, "detail").toText(), "SCAN P01");
}

TEST(QueryPlans, GridsFindTheIndexOfTheirSetAndOfEveryCodeTable) {
    publishConnection(test::sharedDefaultRegister());
    for (const SetRow& set : informationSets())
        expectIndexed(quillmere::test::gridStatementOf(set));
    publishConnection(nullptr);
}

} // namespace
} // namespace quillmere::sample
