#include "JournalBench.h"

#include "platform/Error.h"
#include "support/FailureNumber.h"

#include <stdexcept>

namespace quillmere::journal {
namespace {

class JournalConnectionTest : public JournalBench {};

TEST_F(JournalConnectionTest, ADeleteKeepsTheRowsThatItRemoves) {
    kept().execute("delete from A02 where A00='p'");
    EXPECT_EQ(engine->query("select * from A02").rowCount(), 1U);
    const KeptEntry found = only();
    EXPECT_EQ(found.number, 1U);
    EXPECT_EQ(found.entry.time, "2026-11-21 09:30:00");
    EXPECT_EQ(found.entry.who, "clerk");
    EXPECT_EQ(found.entry.kind, Kind::Delete);
    EXPECT_EQ(found.entry.table, "A02");
    EXPECT_EQ(found.entry.statement, "delete from A02 where A00='p'");
    EXPECT_EQ(found.entry.rows.columns(), (Lines{"A00", "A0299", "A0203", "A0204", "A0205"}));
    EXPECT_EQ(linesOf(found.entry.rows), (Lines{"4:p|2:1|4:甲|1:True|3:1.5", "4:p|2:2|4:乙|1:False|0:"}));
    ASSERT_TRUE(found.outcome);
    EXPECT_FALSE(found.outcome->failure);
    EXPECT_EQ(complaints, Lines());
}

TEST_F(JournalConnectionTest, AnUpdateKeepsTheRowsAsTheyWere) {
    kept().execute("update A02 set A0299 = A0299 +200 where a00='P' and A0299 = 2");
    EXPECT_EQ(linesOf(only().entry.rows), Lines{"4:p|2:2|4:乙|1:False|0:"});
    EXPECT_EQ(engine->query("select A0299 from A02 where A0203='乙'").at(0, 0), data::Value(202));
}

TEST_F(JournalConnectionTest, AnInsertIsKeptAsItsStatement) {
    kept().execute("insert into A02 (A00) values ('r')");
    const KeptEntry found = only();
    EXPECT_EQ(found.entry.kind, Kind::Insert);
    EXPECT_EQ(found.entry.statement, "insert into A02 (A00) values ('r')");
    EXPECT_TRUE(found.entry.rows.empty());
    EXPECT_EQ(inner->statements(), Lines{"insert into A02 (A00) values ('r')"});
}

TEST_F(JournalConnectionTest, AChangeOfTheTablesIsKeptAsItsStatement) {
    kept().execute("create table B77 (A00 text)");
    kept().execute("drop table B77");
    const Journal journal = read();
    ASSERT_EQ(journal.entries.size(), 2U);
    EXPECT_EQ(journal.entries[1].entry.kind, Kind::Other);
    EXPECT_EQ(journal.entries[1].entry.statement, "drop table B77");
    EXPECT_EQ(complaints, Lines());
}

TEST_F(JournalConnectionTest, AQueryGoesThroughAndLeavesNoTrace) {
    EXPECT_EQ(kept().query(" select * from A02 where A00='p'").rowCount(), 2U);
    kept().execute("select 1");
    EXPECT_EQ(inner->statements(), (Lines{" select * from A02 where A00='p'", "select 1"}));
    EXPECT_FALSE(std::filesystem::exists(file()));
}

TEST_F(JournalConnectionTest, AStatementThatWritesAndGivesRowsGivesThem) {
    const data::RowSet rows = kept().query("delete from A02 where A00='q' returning A0203");
    EXPECT_EQ(linesOf(rows), Lines{"4:it's"});
    EXPECT_EQ(linesOf(only().entry.rows), Lines{"4:q|2:1|4:it's|0:|3:0.1"});
}

TEST_F(JournalConnectionTest, AFailureComesBackUnchangedAndIsKept) {
    failing->failOn("delete from", "断线");
    try {
        kept().execute("delete from A02 where A00='p'");
        FAIL() << "no failure";
    } catch (const Error& failure) {
        EXPECT_EQ(failure.number(), number(Failure::StatementFailed));
        EXPECT_EQ(failure.description(), "断线");
    }
    const KeptEntry found = only();
    EXPECT_EQ(found.entry.rows.rowCount(), 2U);
    ASSERT_TRUE(found.outcome && found.outcome->failure);
    EXPECT_EQ(*found.outcome->failure, "断线");
}

TEST_F(JournalConnectionTest, AStatementThatIsRefusedReachesTheEngineAlone) {
    for (const char* sql :
         {"delete from A02; delete from A02", "delete from A02 -- all", "delete from A02 /* x"}) {
        inner->clear();
        EXPECT_EQ(failureOf([&] { kept().execute(sql); }), failureOf([&] { engine->execute(sql); })) << sql;
        EXPECT_EQ(inner->statements(), Lines{sql});
    }
    EXPECT_EQ(engine->query("select * from A02").rowCount(), 3U);
    EXPECT_FALSE(std::filesystem::exists(file()));
}

TEST_F(JournalConnectionTest, WhatIsWrongWithAStatementIsToldByTheEngineAsWithoutTheJournal) {
    for (const char* sql :
         {"delete from Nothing where a=1", "update A02 set X='1'", "delete from A02 where X=1",
          "delete from A02 where A00 in ()", "update A02 set A0203='x", "delete from A02 where"}) {
        std::string expected;
        try {
            engine->execute(sql);
        } catch (const Error& failure) {
            expected = failure.description();
        }
        EXPECT_NE(expected, "") << sql;
        try {
            kept().execute(sql);
            ADD_FAILURE() << sql;
        } catch (const Error& failure) {
            EXPECT_EQ(failure.description(), expected);
        }
    }
}

TEST_F(JournalConnectionTest, RowsThatCannotBeReadAreToldAndTheStatementRuns) {
    failing->failOn("select * from A02 where (", "断线");
    kept().execute("delete from A02 where A00='p'");
    EXPECT_EQ(engine->query("select * from A02").rowCount(), 1U);
    EXPECT_EQ(complaints, Lines{"改动前的行没有记入恢复日志：断线"});
    EXPECT_EQ(only().entry.trouble, "断线");
}

TEST_F(JournalConnectionTest, RowsThatCannotBeToldAreToldToBeMissing) {
    engine->execute("create table B (A00 text)");
    kept().execute("update A02 set A0203='x' from B where A02.A00=B.A00");
    EXPECT_EQ(complaints, Lines{"改动前的行没有记入恢复日志：看不出语句涉及哪些行"});
    EXPECT_NE(only().entry.trouble, "");
    ASSERT_TRUE(only().outcome);
}

TEST_F(JournalConnectionTest, ManyRowsAreKeptUpToABoundAndTheRestIsCounted) {
    engine->execute("delete from A02");
    engine->execute(
        "insert into A02 (A00,A0299) with recursive n(i) as (select 1 union all select i+1 from n "
        "where i<2500) select 'p',i from n");
    kept().execute("delete from A02");
    const KeptEntry found = only();
    EXPECT_EQ(found.entry.rows.rowCount(), 1000U);
    EXPECT_EQ(found.entry.rowsLeftOut, 1500U);
    EXPECT_TRUE(engine->query("select * from A02").empty());
}

TEST_F(JournalConnectionTest, ExactlyAsManyRowsAsAnEntryHoldsAreAllKept) {
    engine->execute("delete from A02");
    engine->execute(
        "insert into A02 (A00,A0299) with recursive n(i) as (select 1 union all select i+1 from n "
        "where i<1000) select 'p',i from n");
    kept().execute("delete from A02");
    EXPECT_EQ(only().entry.rows.rowCount(), 1000U);
    EXPECT_EQ(only().entry.rowsLeftOut, 0U);
}

TEST_F(JournalConnectionTest, ALongTextIsKeptWhole) {
    const std::string text(1U << 20U, 'x');
    engine->execute("update A02 set A0203='" + text + "' where A00='q'");
    kept().execute("update A02 set A0203='" + std::string(1U << 20U, 'y') + "' where A00='q'");
    const KeptEntry found = only();
    EXPECT_EQ(found.entry.rows.at(0, "A0203"), data::Value(text));
    EXPECT_EQ(found.entry.statementBytesLeftOut, 0U);
}

TEST_F(JournalConnectionTest, WhatIsTooLongForTheFileIsCutAndCounted) {
    JournalOptions small = options();
    small.limit = 2000;
    useJournal(journaled(inner, small));
    engine->execute("update A02 set A0203='" + std::string(3000, 'x') + "' where A00='q'");
    kept().execute("update A02 set A0203='" + std::string(400, 'y') + "' where A00='q'");
    EXPECT_EQ(only().entry.rowsLeftOut, 1U);
    std::filesystem::remove(file());
    std::string statement = "insert into A02 (A0203) values ('";
    for (int i = 0; i < 500; ++i)
        statement += "汉";
    statement += "')";
    kept().execute(statement);
    const KeptEntry found = only();
    EXPECT_EQ(found.entry.statement.size() + found.entry.statementBytesLeftOut, statement.size());
    EXPECT_TRUE(found.entry.statement.ends_with("汉"));
}

TEST_F(JournalConnectionTest, TablesOfNoWorthAreLeftOut) {
    engine->execute("create table S_GUID (id text, val text)");
    kept().execute("insert into S_GUID(val) values('a')");
    kept().execute(" delete from s_guid ");
    EXPECT_EQ(inner->statements(), (Lines{"insert into S_GUID(val) values('a')", " delete from s_guid "}));
    EXPECT_FALSE(std::filesystem::exists(file()));
}

TEST_F(JournalConnectionTest, AClosedConnectionSaysSoItself) {
    kept().close();
    EXPECT_FALSE(kept().isOpen());
    inner->clear();
    EXPECT_EQ(failureOf([&] { kept().execute("delete from A02"); }), number(Failure::InvalidConnection));
    EXPECT_EQ(inner->statements(), Lines{"delete from A02"});
    EXPECT_FALSE(std::filesystem::exists(file()));
}

TEST_F(JournalConnectionTest, AJournalThatCannotBeWrittenIsToldAndTheStatementRuns) {
    JournalOptions nowhere = options();
    nowhere.file = path("no folder/register.journal");
    useJournal(journaled(inner, nowhere));
    kept().execute("delete from A02 where A00='p'");
    EXPECT_EQ(engine->query("select * from A02").rowCount(), 1U);
    ASSERT_EQ(complaints.size(), 1U);
    EXPECT_TRUE(complaints[0].starts_with("没有记入恢复日志：" + nowhere.file + "：")) << complaints[0];
}

TEST_F(JournalConnectionTest, WhatTheHostThrowsWhenItIsToldChangesNothing) {
    JournalOptions nowhere = options();
    nowhere.file = path("no folder/register.journal");
    nowhere.complain = [](const std::string&) { throw std::runtime_error("of the host"); };
    useJournal(journaled(inner, nowhere));
    EXPECT_NO_THROW(kept().execute("delete from A02 where A00='p'"));
    nowhere.complain = {};
    useJournal(journaled(inner, nowhere));
    EXPECT_NO_THROW(kept().execute("delete from A02 where A00='q'"));
    EXPECT_TRUE(engine->query("select * from A02").empty());
}

} // namespace
} // namespace quillmere::journal
