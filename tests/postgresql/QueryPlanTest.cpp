#include "QueryPlanRegister.h"
#include "platform/Error.h"
#include "support/StatementsInUse.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <vector>

// The server's own choice of plan, on tables with enough rows that an index pays.

namespace quillmere::postgresql {
namespace {

/// A statement that reads a table whole, however large it is, and why that is borne.
struct Scan {
    const char* table;
    const char* part;
    const char* reason;
};

constexpr Scan scans[] = {
    {"s_infotable", "", "about 70 rows, whatever the register holds"},
    {"s_infoitem", "", "the catalogue of fields: about 500 rows, whatever the register holds"},
    {"ts_setcustomize", "", "a row for each sponsorship type"},
    {"zzstyle", "", "one row"},
    {"s_guid", "", "one row for each session"},
    {"s_codetabledefine", "", "a row for each code table"},
    {"s_codelevdefine", "", "a row for each level of a code table"},
    {"dm_", "", "code tables: the largest has about 3000 rows, whatever the register holds"},
    {"p01", "mid(P0120,5,6)=", "the projects of a day are counted; not run while clerks maintain records"},
};

const Scan* findScan(const std::string& table, const std::string& statement) {
    const auto* found = std::ranges::find_if(scans, [&](const Scan& scan) {
        return table.starts_with(scan.table) && statement.find(scan.part) != std::string::npos;
    });
    return found == std::end(scans) ? nullptr : found;
}

class QueryPlans : public testing::Test {
protected:
    static void SetUpTestSuite() {
        if (TestServer::isThere()) made = std::make_unique<LargeRegister>(0);
    }
    static void TearDownTestSuite() { made.reset(); }
    void SetUp() override {
        if (!TestServer::isThere()) GTEST_SKIP() << TestServer::reason();
    }

    static void expectIndexed(const std::string& statement) {
        for (const std::string& table : made->tablesOf(statement, "Seq Scan"))
            EXPECT_NE(findScan(table, statement), nullptr) << table << " is read whole: " << statement;
    }

    static std::unique_ptr<LargeRegister> made;
};

std::unique_ptr<LargeRegister> QueryPlans::made;

TEST_F(QueryPlans, StatementsInUseFindAnIndex) {
    for (const char* statement : test::statementsInUse)
        expectIndexed(statement);
}

TEST_F(QueryPlans, StatementsThatEverySetSharesFindItsIndex) {
    for (const sample::SetRow& set : sample::informationSets()) {
        for (const std::string& statement : test::statementsOfSet(set))
            expectIndexed(statement);
    }
}

TEST_F(QueryPlans, GridsFindTheIndexOfTheirSet) {
    for (const sample::SetRow& set : sample::informationSets())
        expectIndexed(test::gridStatementOf(set));
}

/// What the transcripts of the scenarios show of the traffic.
std::set<std::string> recordedStatements() {
    constexpr std::string_view mark = "SQL |";
    std::set<std::string> statements;
    for (const auto& file :
         std::filesystem::recursive_directory_iterator(QUILLMERE_SOURCE_DIR "/tests/scenarios")) {
        if (file.path().extension() != ".out") continue;
        std::ifstream stream(file.path());
        for (std::string line; std::getline(stream, line);) {
            if (line.starts_with(mark) && line.ends_with("|"))
                statements.insert(line.substr(mark.size(), line.size() - mark.size() - 1));
        }
    }
    return statements;
}

TEST_F(QueryPlans, StatementsThatScenariosRecordedFindAnIndex) {
    std::size_t planned = 0;
    const std::set<std::string> statements = recordedStatements();
    for (const std::string& statement : statements) {
        try {
            expectIndexed(statement);
            ++planned;
        } catch (const Error&) {
            // A few scenarios show statements that fail.
        }
    }
    EXPECT_GT(planned, 300U);
    EXPECT_LT(statements.size() - planned, 10U);
}

TEST_F(QueryPlans, ATableThatIsReadWholeIsSeenAsSuch) {
    // Else the tests here could not fail.
    EXPECT_EQ(made->tablesOf("select * from A01 where A0128='10012345678'", "Seq Scan"),
              std::set<std::string>{"a01"});
    EXPECT_EQ(made->tablesOf("select * from P01 where mid(P0120,5,6)='260115'", "Seq Scan"),
              std::set<std::string>{"p01"});
}

TEST_F(QueryPlans, TablesReadWholeDoNotGrowWithTheRegister) {
    const data::RowSet tables = made->connection().query(
        "select relname, reltuples::integer from pg_class join pg_namespace on pg_namespace.oid=relnamespace "
        "where nspname=current_schema() and relkind='r'");
    std::size_t small = 0;
    for (std::size_t row = 0; row < tables.rowCount(); ++row) {
        const Scan* scan = findScan(tables.at(row, 0).toText(), "");
        if (scan == nullptr) continue;
        EXPECT_LT(tables.at(row, 1).toLong(), 5000) << tables.at(row, 0).toText();
        ++small;
    }
    EXPECT_GT(small, 20U);
}

} // namespace
} // namespace quillmere::postgresql
