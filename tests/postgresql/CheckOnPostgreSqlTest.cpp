#include "TestServer.h"
#include "check/CheckRun.h"
#include "check/PostgreSqlIndexes.h"
#include "sample/SampleRegister.h"

#include <string>
#include <vector>

namespace quillmere::postgresql {
namespace {

/// The sample register, to be broken and checked.
class CheckOnPostgreSql : public PostgreSqlBench {
protected:
    void SetUp() override {
        PostgreSqlBench::SetUp();
        if (IsSkipped()) return;
        sample::Options options;
        options.persons = 60;
        options.engine = sample::Engine::PostgreSql;
        sample::build(*connection, options);
    }

    [[nodiscard]] std::vector<std::string> findings() const {
        std::vector<std::string> ids;
        for (const check::Finding& finding :
             check::checkRegister(connection, check::PostgreSqlIndexes()).sorted()) {
            ids.push_back(std::string(finding.kind->id) + " " + finding.table + " " + finding.detail);
        }
        return ids;
    }
};

using Lines = std::vector<std::string>;

TEST_F(CheckOnPostgreSql, TheSampleRegisterIsClean) { EXPECT_EQ(findings(), Lines{}); }

TEST_F(CheckOnPostgreSql, FaultsOfCatalogueDataAndIndexesAreFound) {
    connection->execute("update s_infoitem set ItemDesc='奖励 名称' where ItemName='A0902'");
    connection->execute("update s_infotable set orderfield='A0201x' where tblname='A02'");
    connection->execute("update A01 set A0104='x' where A0199=1");
    connection->execute("update A09 set A0999=0 where A0999=1 and A00=(select min(A00) from A09)");
    connection->execute("drop table E06");
    connection->execute("drop index UX_A10_A00");
    const Lines found = findings();
    ASSERT_EQ(found.size(), 6U);
    EXPECT_EQ(found[0], "table-missing E06 ");
    EXPECT_EQ(found[1], "desc-not-heading s_infoitem ItemDesc 是“奖励 名称”");
    EXPECT_EQ(found[2], "orderfield-invalid s_infotable orderfield 是“A0201x”");
    EXPECT_EQ(found[3], "data-code-unknown A01 DM_XB 中没有 1 个代码：x（1 条记录）");
    EXPECT_TRUE(found[4].starts_with("sequence-below-one A09 1 处：")) << found[4];
    EXPECT_EQ(found[5], "index-missing A10 ");
}

} // namespace
} // namespace quillmere::postgresql
