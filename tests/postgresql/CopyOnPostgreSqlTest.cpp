#include "../copy/CopyBench.h"
#include "../copy/PlayedOnCopy.h"
#include "TestServer.h"

#include "platform/Error.h"
#include "sample/OutputFile.h"

#include <quillmere/PostgreSql.h>

namespace quillmere::postgresql {
namespace {

using copy::Status;
using copy::test::Folder;
using copy::test::Outcome;
using copy::test::rowsOf;
using copy::test::run;

/// Databases for copies, and a folder with the sample register in a file.
class CopyOnPostgreSql : public PostgreSqlBench {
protected:
    void SetUp() override {
        PostgreSqlBench::SetUp();
        if (IsSkipped()) return;
        sample::Options options;
        options.persons = 60;
        options.units = 12;
        sample::buildFile(folder.file("register.db"), options, false);
        for (const std::string& name : databases)
            connection->execute("create database " + name + " template template0");
    }
    void TearDown() override {
        for (const std::string& name : databases)
            if (connection) connection->execute("drop database if exists " + name + " with (force)");
    }

    [[nodiscard]] static std::string addressOf(const std::string& database) {
        return TestServer::addressWith("", "", database);
    }
    [[nodiscard]] std::string file(const std::string& name) const { return folder.file(name); }
    void execute(std::string_view sql) const { sqlite::open({.path = file("register.db")})->execute(sql); }

    /// There and back through both databases; the end is "back.db".
    void copyAround() const {
        const std::vector<std::string> stations{file("register.db"), addressOf("first_copy"),
                                                addressOf("second_copy"), file("back.db")};
        std::vector<std::string> lines;
        for (std::size_t i = 0; i + 1 < stations.size(); ++i) {
            const Outcome copied = run({stations[i], stations[i + 1]});
            ASSERT_EQ(copied.status, Status::Copied) << copied.complaints;
            if (i != 0) {
                EXPECT_EQ(copy::test::tableLines(copied.out), lines);
            }
            lines = copy::test::tableLines(copied.out);
        }
    }

    const std::vector<std::string> databases{"first_copy", "second_copy"};
    Folder folder;
};

/// As `rowsOf`, the names in small letters: the server keeps them so.
std::vector<std::string> foldedRowsOf(const std::string& file) {
    std::vector<std::string> rows = rowsOf(file);
    for (std::string& row : rows)
        row = text::lower(row);
    return rows;
}

TEST_F(CopyOnPostgreSql, ThereAndBackEveryRowIsTheSameAndInItsOrder) {
    copyAround();
    EXPECT_GT(rowsOf(file("back.db")).size(), 5000U);
    EXPECT_EQ(rowsOf(file("back.db")), rowsOf(file("register.db")));
}

TEST_F(CopyOnPostgreSql, WhatARegisterHasBeyondTheDeliveredComesBackToo) {
    execute("alter table A01 add column A0188 varchar(20)");
    execute("update A01 set A0188='a\\b''c' || char(9) || char(10) || '张'");
    execute("create table A77 (A00 text, A7799 integer, A7701 double, A7702 boolean)");
    execute("insert into A77 values ('k', 1, 2.5, true), ('k', 2, null, false), ('', 3, 1e300, null)");
    execute("create table \"own notes\" (\"no.\" bigint)");
    execute("insert into \"own notes\" values (9007199254740993)");
    copyAround();
    EXPECT_EQ(foldedRowsOf(file("back.db")), foldedRowsOf(file("register.db")));
    const auto onServer = openPostgreSql(addressOf("second_copy"));
    EXPECT_EQ(onServer->query("select A7701 from A77 where A00='K' and A7702").rowCount(), 1U);
    EXPECT_EQ(onServer->query("select 1 from pg_indexes where indexname='ix_a77_a00'").rowCount(), 1U);
}

TEST_F(CopyOnPostgreSql, ATargetThatIsNotEmptyIsRefusedAndKept) {
    const auto target = postgresql::open({.address = addressOf("first_copy")});
    for (const char* thing : {"create table data.own (a text)", "create view data.own as select 1 as a"}) {
        target->execute("create schema if not exists data");
        target->execute(thing);
        const Outcome refused = run({file("register.db"), addressOf("first_copy")});
        EXPECT_EQ(refused.status, Status::Failed);
        EXPECT_NE(refused.complaints.find("目标不是空的：模式 data 中已有 own"), std::string::npos)
            << refused.complaints;
        EXPECT_NO_THROW((void)target->query("select * from data.own"));
        target->execute("drop schema data cascade");
    }
}

TEST_F(CopyOnPostgreSql, TheSourceItselfIsRefusedByWhateverAddress) {
    ASSERT_EQ(run({file("register.db"), addressOf("first_copy")}).status, Status::Copied);
    for (const char* further : {"", "?application_name=x"}) {
        const Outcome refused = run({addressOf("first_copy"), addressOf("first_copy") + further});
        EXPECT_EQ(refused.status, Status::Failed);
        EXPECT_NE(refused.complaints.find("同一个数据库"), std::string::npos) << refused.complaints;
        EXPECT_EQ(refused.complaints.find("p%40ss"), std::string::npos);
    }
}

TEST_F(CopyOnPostgreSql, ADatabaseWithoutRegisterIsNoSource) {
    const Outcome refused = run({addressOf("first_copy"), file("back.db")});
    EXPECT_EQ(refused.status, Status::Failed);
    EXPECT_TRUE(refused.complaints.starts_with("quillmere-copy：postgresql:…：")) << refused.complaints;
    EXPECT_FALSE(std::filesystem::exists(file("back.db")));
}

TEST_F(CopyOnPostgreSql, ABrokenCopyLeavesNoTables) {
    // The engine without types takes this; the server does not.
    execute("alter table A02 rename to A02Delivered");
    execute("create table A02 as select * from A02Delivered");
    execute("update A02 set A0299='x' where _rowid_=(select max(_rowid_) from A02)");
    const Outcome broken = run({file("register.db"), addressOf("first_copy")});
    EXPECT_EQ(broken.status, Status::Failed);
    EXPECT_NE(broken.complaints.find("没有复制。A02："), std::string::npos) << broken.complaints;
    const auto target = postgresql::open({.address = addressOf("first_copy")});
    EXPECT_TRUE(target->query("select 1 from pg_tables where tablename='a01'").empty());
    EXPECT_TRUE(target->query("select 1 from pg_namespace where nspname='data_unfinished'").empty());
    EXPECT_THROW((void)openPostgreSql(addressOf("first_copy")), Error);
}

TEST_F(CopyOnPostgreSql, ScenariosPlayAlikeOnTheCopy) {
    for (const char* script : copy::test::scripts) {
        connection->execute("drop database if exists second_copy with (force)");
        connection->execute("create database second_copy template template0");
        std::filesystem::remove(file("first.db"));
        copy::test::MovedEngine engine(file("first.db"), [](const std::string& from) {
            const Outcome copied = run({from, addressOf("second_copy")});
            EXPECT_EQ(copied.status, Status::Copied) << copied.complaints;
            return openPostgreSql(addressOf("second_copy"));
        });
        copy::test::expectItPlaysAlike(script, engine);
    }
}

} // namespace
} // namespace quillmere::postgresql
