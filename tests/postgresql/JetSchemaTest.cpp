#include "adapters/postgresql/JetSchema.h"

#include "../support/FailureNumber.h"
#include "TestServer.h"
#include "postgresql/Administration.h"
#include "quillmere/PostgreSql.h"

#include <sstream>

namespace quillmere::postgresql {
namespace {

/// A database of its own, without the schema jet.
class BareDatabase : public PostgreSqlBench {
protected:
    void SetUp() override {
        PostgreSqlBench::SetUp();
        if (IsSkipped()) return;
        connection->execute("create database bare template template0");
        bare = open({.address = address()});
    }
    void TearDown() override {
        if (!connection) return;
        bare.reset();
        connection->execute("drop database bare with (force)");
    }

    [[nodiscard]] static std::string address() { return TestServer::addressWith("", "", "bare"); }

    std::shared_ptr<PostgreSqlConnection> bare;
};

TEST_F(BareDatabase, HasNoVersionAndThenTheNeededOne) {
    EXPECT_EQ(installedJetVersion(*bare), 0);
    installJetSchema(*bare);
    EXPECT_EQ(installedJetVersion(*bare), neededJetVersion());
    EXPECT_EQ(bare->query("select len('人才')").at(0, 0), data::Value(2));
}

TEST_F(BareDatabase, InstallingAgainChangesNothing) {
    installJetSchema(*bare);
    const auto before = bare->query("select number, installed from jet.version");
    installJetSchema(*bare);
    const auto after = bare->query("select number, installed from jet.version");
    ASSERT_EQ(after.rowCount(), before.rowCount());
    EXPECT_EQ(after.row(0), before.row(0));
}

TEST_F(BareDatabase, AnInstallationThatFailsLeavesNothing) {
    bare->execute("create schema jet");
    bare->execute("create function jet.new_guid() returns text language sql as 'select null::text'");
    EXPECT_NE(descriptionOf([&] { installJetSchema(*bare); }).find("new_guid"), std::string::npos);
    EXPECT_EQ(installedJetVersion(*bare), 0);
    bare->execute("drop function jet.new_guid()");
    installJetSchema(*bare);
    EXPECT_EQ(installedJetVersion(*bare), neededJetVersion());
}

TEST_F(BareDatabase, ANewerVersionIsLeftAlone) {
    installJetSchema(*bare);
    bare->execute("insert into jet.version (number) values (999)");
    installJetSchema(*bare);
    EXPECT_EQ(installedJetVersion(*bare), 999);
}

TEST_F(BareDatabase, ARoleThatMayOnlyReadAndWriteRowsUsesIt) {
    installJetSchema(*bare);
    bare->execute("create table data.t (a text collate jet.jet_ci, id text default jet.new_guid())");
    bare->execute("create role host login password 'h'");
    bare->execute("grant usage on schema data to host");
    bare->execute("grant select, insert, update, delete on all tables in schema data to host");
    {
        const auto host = open({.address = TestServer::addressWith("host", "h", "bare")});
        host->execute("insert into t(a) values('Plan1')");
        EXPECT_EQ(host->query("select * from t where a like 'plan%' and mid(id,1,1)='{'").rowCount(), 1U);
        EXPECT_EQ(installedJetVersion(*host), neededJetVersion());
        EXPECT_TRUE(descriptionOf([&] {
                        host->execute("drop table t");
                    }).starts_with("没有权限执行这项操作：must be owner"));
    }
    bare->execute("drop owned by host");
    bare->execute("drop role host");
}

// ---- opening a register

TEST_F(BareDatabase, IsNoRegister) {
    EXPECT_EQ(descriptionOf([] { (void)openPostgreSql(address()); }),
              "数据库中没有所需版本的 jet 模式，请先运行 quillmere-postgresql install");
    installJetSchema(*bare);
    EXPECT_EQ(descriptionOf([] { (void)openPostgreSql(address()); }),
              "数据库中没有人才信息目录（缺少表 s_infotable）");
}

TEST_F(BareDatabase, WithTheCatalogueIsARegister) {
    installJetSchema(*bare);
    bare->execute("create table data.S_InfoTable (tblname text collate jet.jet_ci)");
    bare->execute("insert into data.S_InfoTable values('A01')");
    EXPECT_EQ(openPostgreSql(address())->query("select * from s_infotable where tblname='a01'").rowCount(),
              1U);
}

// ---- the administrator's program

TEST_F(BareDatabase, IsPreparedByOneCommand) {
    std::ostringstream out;
    std::ostringstream complaints;
    const std::string needed = std::to_string(neededJetVersion());
    EXPECT_EQ(administer({"version", address()}, out, complaints), Outcome::Failed);
    EXPECT_EQ(administer({"install", address()}, out, complaints), Outcome::Done);
    EXPECT_EQ(administer({"install", address()}, out, complaints), Outcome::Done);
    EXPECT_EQ(administer({"version", address()}, out, complaints), Outcome::Done);
    EXPECT_EQ(out.str(), "installed 0, needed " + needed + "\nInstalled the schema jet, version " + needed +
                             ".\nThe schema jet is there: version " + needed + ".\ninstalled " + needed +
                             ", needed " + needed + "\n");
    EXPECT_EQ(complaints.str(), "");
}

TEST(Administration, AnythingElseIsAnsweredWithTheUsage) {
    for (const auto& words : std::vector<std::vector<std::string>>{
             {}, {"install"}, {"remove", "postgresql://server/db"}, {"install", "a", "b"}}) {
        std::ostringstream out;
        std::ostringstream complaints;
        EXPECT_EQ(administer(words, out, complaints), Outcome::Misused);
        EXPECT_TRUE(complaints.str().starts_with("usage: quillmere-postgresql install ADDRESS"));
        EXPECT_EQ(out.str(), "");
    }
    std::ostringstream out;
    EXPECT_EQ(administer({"--help"}, out, out), Outcome::Done);
    EXPECT_TRUE(out.str().starts_with("usage: quillmere-postgresql install ADDRESS"));
}

} // namespace
} // namespace quillmere::postgresql
