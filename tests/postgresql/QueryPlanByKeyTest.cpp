#include "QueryPlanRegister.h"
#include "support/StatementsInUse.h"

#include <algorithm>

// How the schema would lie on several nodes, with A00 as the key by which rows are placed. The parts of a
// partitioned table stand for the nodes: the server cuts and finds them by the same rule.

namespace quillmere::postgresql {
namespace {

constexpr std::size_t nodes = 4;

/// Statements that name no A00, and so ask every node that has rows of the table.
constexpr const char* onEveryNode[] = {
    "select count(*) from A01 where A0101 = ", "select count(*) from B01 where B0101 = ",
    "select iif(max(A0199) is null,0,max(A01", "select iif(max(B0199) is null,0,max(B01",
    "select iif(max(P0299) is null,0,max(P02", "select iif(max(P0399) is null,0,max(P03",
    "select iif(max(C0499) is null,0,max(C04",
};

bool asksEveryNode(const std::string& statement) {
    return std::ranges::any_of(onEveryNode,
                               [&](const char* beginning) { return statement.starts_with(beginning); });
}

class QueryPlansByKey : public testing::Test {
protected:
    static void SetUpTestSuite() {
        if (TestServer::isThere()) made = std::make_unique<LargeRegister>(static_cast<int>(nodes));
    }
    static void TearDownTestSuite() { made.reset(); }
    void SetUp() override {
        if (!TestServer::isThere()) GTEST_SKIP() << TestServer::reason();
    }

    /// How many parts of data tables a statement touches.
    static std::size_t nodesOf(const std::string& statement) {
        const auto tables = made->tablesOf(statement);
        return static_cast<std::size_t>(std::ranges::count_if(
            tables, [](const std::string& table) { return table.find("_part") != std::string::npos; }));
    }

    static std::unique_ptr<LargeRegister> made;
};

std::unique_ptr<LargeRegister> QueryPlansByKey::made;

TEST_F(QueryPlansByKey, StatementsOnSetsStayOnOneNode) {
    for (const sample::SetRow& set : sample::informationSets()) {
        for (const std::string& statement : test::statementsOfSet(set)) {
            // A row that moves to another key may move to another node; no command does that.
            if (statement.find("set A00=") != std::string::npos) continue;
            EXPECT_EQ(nodesOf(statement), 1U) << statement;
        }
        EXPECT_EQ(nodesOf(test::gridStatementOf(set)), 1U) << set.name;
    }
}

TEST_F(QueryPlansByKey, StatementsInUseStayOnOneNodeOrAreNamed) {
    std::size_t everywhere = 0;
    for (const std::string statement : test::statementsInUse) {
        const std::size_t touched = nodesOf(statement);
        if (asksEveryNode(statement)) {
            EXPECT_EQ(touched, nodes) << statement;
            EXPECT_TRUE(made->tablesOf(statement, "Seq Scan").empty()) << statement;
            ++everywhere;
        } else {
            // None for the catalogue and the code tables, of which every node has a copy.
            EXPECT_LE(touched, 1U) << statement;
        }
    }
    EXPECT_EQ(everywhere, std::size(onEveryNode));
}

TEST_F(QueryPlansByKey, TheRowsOfOnePersonLieTogether) {
    constexpr auto apart = "select count(*) from A01 join A02 on A02.A00=A01.A00 where "
                           "right(A01.tableoid::regclass::text,1)<>right(A02.tableoid::regclass::text,1)";
    EXPECT_EQ(
        made->connection().query("select count(*) from A01 join A02 on A02.A00=A01.A00").at(0, 0).toLong(),
        LargeRegister::rows);
    EXPECT_EQ(made->connection().query(apart).at(0, 0).toLong(), 0);
}

TEST_F(QueryPlansByKey, EveryNodeHasItsShareOfThePersons) {
    const data::RowSet shares =
        made->connection().query("select count(*) from A01 group by tableoid order by 1");
    ASSERT_EQ(shares.rowCount(), nodes);
    for (std::size_t row = 0; row < nodes; ++row)
        EXPECT_NEAR(shares.at(row, 0).toLong(), LargeRegister::rows / nodes, LargeRegister::rows / 20);
}

} // namespace
} // namespace quillmere::postgresql
