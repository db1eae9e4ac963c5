#include "../support/FailureNumber.h"
#include "TestServer.h"
#include "adapters/sqlite/SqliteConnection.h"
#include "quillmere/PostgreSql.h"
#include "sample/Catalogue.h"
#include "sample/postgresql/OutputDatabase.h"

#include <algorithm>

namespace quillmere::postgresql {
namespace {

/// A database for the sample register.
class SampleOnPostgreSql : public PostgreSqlBench {
protected:
    void SetUp() override {
        PostgreSqlBench::SetUp();
        if (IsSkipped()) return;
        connection->execute("create database sample template template0");
    }
    void TearDown() override {
        if (connection) connection->execute("drop database sample with (force)");
    }

    [[nodiscard]] static std::string address() { return TestServer::addressWith("", "", "sample"); }

    static std::int32_t countOf(data::Connection& register_, const std::string& table) {
        return register_.query("select count(*) from " + table).at(0, 0).toLong();
    }
};

/// The rows of a table as lines, sorted: in which order they come is not promised.
std::vector<std::string> linesOf(data::Connection& connection, const std::string& table) {
    const auto rows = connection.query("select * from " + table);
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < rows.rowCount(); ++i) {
        std::string line;
        for (const data::Value& value : rows.row(i)) {
            const char* kind = value.isNull()      ? "null"
                               : value.isText()    ? "text"
                               : value.isBoolean() ? "bool"
                                                   : "number";
            line.append(kind).append(":").append(value.toTextOrEmpty()).append("|");
        }
        lines.push_back(std::move(line));
    }
    std::ranges::sort(lines);
    return lines;
}

TEST_F(SampleOnPostgreSql, HasTheRowsThatItHasOnSqlite) {
    sample::Options options;
    options.persons = 120;
    options.units = 15;
    const auto built = sample::buildDatabase(address(), options, false);
    const auto sqlite = sqlite::openInMemory();
    sample::build(*sqlite, options);
    std::vector<std::string> tables = sample::codeTableNames();
    for (const sample::SetRow& set : sample::informationSets())
        tables.push_back(set.name);
    for (const char* table : {"s_infotable", "s_infoitem", "TS_SetCustomize", "s_CodeTableDefine",
                              "s_CodeLevDefine", "ZZStyle", "S_GUID"})
        tables.emplace_back(table);
    std::size_t rows = 0;
    for (const std::string& table : tables) {
        const auto lines = linesOf(*built, table);
        EXPECT_EQ(lines, linesOf(*sqlite, table)) << table;
        rows += lines.size();
    }
    EXPECT_GT(rows, 5000U);
}

TEST_F(SampleOnPostgreSql, IsARegisterThatIsReplacedOnlyWhenAsked) {
    sample::Options options;
    options.persons = 3;
    options.units = 1;
    (void)sample::buildDatabase(address(), options, false);
    EXPECT_EQ(countOf(*openPostgreSql(address()), "A01"), 3);
    options.persons = 5;
    EXPECT_EQ(failureOf([&] { (void)sample::buildDatabase(address(), options, false); }),
              number(Failure::PermissionDenied));
    EXPECT_EQ(countOf(*openPostgreSql(address()), "A01"), 3);
    (void)sample::buildDatabase(address(), options, true);
    EXPECT_EQ(countOf(*openPostgreSql(address()), "A01"), 5);
}

} // namespace
} // namespace quillmere::postgresql
