#include "TestServer.h"

#include "adapters/journal/JournalReader.h"
#include "engine/SqliteFolder.h"
#include "journal/Program.h"
#include "platform/data/ObservedConnections.h"
#include "sample/postgresql/OutputDatabase.h"

#include <quillmere/Journal.h>
#include <quillmere/PostgreSql.h>

#include <algorithm>
#include <sstream>

namespace quillmere::postgresql {
namespace {

using Lines = std::vector<std::string>;

/// The sample register in a database of its own, worked on through a journal.
class JournalOnPostgreSql : public sqlite::SqliteFolder {
protected:
    void SetUp() override {
        if (!TestServer::isThere()) GTEST_SKIP() << TestServer::reason();
        server = open({.address = TestServer::address()});
        server->execute("drop database if exists journaled with (force)");
        server->execute("create database journaled template template0");
        sample::Options options;
        options.persons = 2;
        options.units = 1;
        options.engine = sample::Engine::PostgreSql;
        plain = sample::buildDatabase(address(), options, false);
        person = plain->query("select A00 from A01 where A0199=1").at(0, 0).toText();
        plain->execute("delete from A02");
        for (const char* study : {"1,'1999-09','甲''s 𠮷\n',''", "2,'2003-09',null,'b\\c'"})
            plain->execute("insert into A02 (A00,A0299,A0201,A0203,A0204) values ('" + person + "'," + study +
                           ")");
        recorded = std::make_shared<data::RecordingConnection>(openPostgreSql(address()));
        kept = journaled(recorded,
                         {.file = file(), .who = "clerk", .complain = [this](const std::string& words) {
                              complaints.push_back(words);
                          }});
    }
    void TearDown() override {
        plain.reset();
        kept.reset();
        recorded.reset();
        if (server) server->execute("drop database if exists journaled with (force)");
    }

    [[nodiscard]] static std::string address() { return TestServer::addressWith("", "", "journaled"); }
    [[nodiscard]] std::string file() const { return path("register.journal"); }

    /// The rows of a table with the kinds of their values, sorted.
    [[nodiscard]] Lines rowsOf(const std::string& table) const {
        const data::RowSet rows = plain->query("select * from " + table);
        Lines lines;
        for (std::size_t row = 0; row < rows.rowCount(); ++row) {
            std::string line;
            for (const data::Value& value : rows.row(row))
                line += "|" + std::to_string(value.raw().index()) + ":" + value.toTextOrEmpty();
            lines.push_back(line);
        }
        std::ranges::sort(lines);
        return lines;
    }

    /// What the program printed; it has to succeed.
    [[nodiscard]] std::string run(const Lines& words) const {
        std::ostringstream out;
        std::ostringstream failed;
        EXPECT_EQ(recovery::runProgram(words, out, failed), recovery::Status::Done)
            << failed.str() << out.str();
        return out.str();
    }
    [[nodiscard]] std::string restore(const Lines& entries) const {
        Lines words{"restore", file()};
        words.insert(words.end(), entries.begin(), entries.end());
        words.push_back(address());
        return run(words);
    }

    std::shared_ptr<PostgreSqlConnection> server;
    std::shared_ptr<data::Connection> plain;
    std::shared_ptr<data::RecordingConnection> recorded;
    std::shared_ptr<data::Connection> kept;
    std::string person;
    Lines complaints;
};

TEST_F(JournalOnPostgreSql, WhatWasDeletedAndChangedComesBackAsItWas) {
    const Lines studies = rowsOf("A02");
    const Lines persons = rowsOf("A01");
    const Lines projects = rowsOf("P01");
    kept->execute("delete from A02 where A00='" + person + "'  and A0299 = 2");
    kept->execute("update A02 set A0203 = 'x' where A00='" + person + "'");
    kept->execute("update A01 set A0101 = 'x',A0138 = null where A00='" + person + "'");
    kept->execute("delete from P01 where A00='" + person + "'");
    kept->execute("delete from A01 where A00='" + person + "' ");
    EXPECT_NE(rowsOf("A01"), persons);
    EXPECT_NE(rowsOf("A02"), studies);
    EXPECT_EQ(complaints, Lines());
    const std::string listed = run({"list", file(), "--identity", person});
    EXPECT_EQ(std::ranges::count(listed, '\n'), 6) << listed;
    const std::string told = restore({"1", "2", "3", "4", "5"});
    EXPECT_NE(told.find("恢复了 5 行，本来就在的 0 行，没有恢复的 0 行。"), std::string::npos) << told;
    EXPECT_EQ(rowsOf("A02"), studies);
    EXPECT_EQ(rowsOf("A01"), persons);
    EXPECT_EQ(rowsOf("P01"), projects);
}

TEST_F(JournalOnPostgreSql, TheJournalReadsBetweenAndChangesNoStatement) {
    const Lines statements{"delete from A02 where A00='" + person + "'  and A0299 = 2",
                           "insert into A02( A00 ,A0299,A0203) values('" + person + "','2','新')",
                           "update A02 set A0299 = A0299 +200 where a00='" + person + "'"};
    for (const std::string& statement : statements)
        kept->execute(statement);
    Lines ran = recorded->statements();
    EXPECT_EQ(std::erase_if(ran, [](const std::string& sql) { return sql.ends_with(" limit 1001"); }), 2U);
    EXPECT_EQ(ran, statements);
    const journal::Journal journal = journal::readJournal(file());
    ASSERT_EQ(journal.entries.size(), 3U);
    EXPECT_EQ(journal.entries[2].entry.rows.rowCount(), 2U);
}

TEST_F(JournalOnPostgreSql, AFailureIsTheOneOfTheServer) {
    const auto failureOf = [&](data::Connection& connection, const std::string& sql) -> std::string {
        try {
            connection.execute(sql);
        } catch (const std::exception& failure) {
            return failure.what();
        }
        return {};
    };
    for (const char* sql :
         {"delete from nothing where a=1", "update A02 set A0299='x'", "delete from A02 where",
          "update A02 set A0299=1", "delete from A02; delete from A01", "delete from A02 -- x"}) {
        const std::string told = failureOf(*kept, sql);
        EXPECT_NE(told, "") << sql;
        EXPECT_EQ(told, failureOf(*plain, sql));
    }
    EXPECT_EQ(rowsOf("A02").size(), 2U);
}

TEST_F(JournalOnPostgreSql, ANumberThatIsTakenGivesWayToTheNext) {
    kept->execute("delete from A02 where A00='" + person + "' and A0299=1");
    plain->execute("insert into A02 (A00,A0299,A0203) values ('" + person + "',1,'别的')");
    EXPECT_NE(restore({"1"}).find("恢复为序号 3"), std::string::npos);
    EXPECT_EQ(rowsOf("A02").size(), 3U);
}

} // namespace
} // namespace quillmere::postgresql
