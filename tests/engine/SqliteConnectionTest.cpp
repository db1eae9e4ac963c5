#include "adapters/sqlite/SqliteConnection.h"
#include "../support/FailureNumber.h"
#include "SqliteFolder.h"
#include "SqliteTypes.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace quillmere::sqlite {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

/// A database in a folder of its own, with one table `t`.
class SqliteFile : public SqliteFolder {
protected:
    [[nodiscard]] OpenOptions options(bool create = false) const {
        return {.path = path(), .create = create, .busyTimeout = 50ms};
    }

    /// Makes the file with the table `t` and one row, and leaves it closed.
    void makeDatabase(bool writeAheadLog = true) const {
        auto with = options(true);
        with.writeAheadLog = writeAheadLog;
        const auto connection = open(with);
        connection->execute("create table t (a text collate nocase primary key)");
        connection->execute("insert into t values('first')");
    }

    static std::int32_t count(data::Connection& connection) {
        return connection.query("select count(*) from t").at(0, 0).toLong();
    }
};

/// Runs `action` in a process of its own, which is killed `after` it has begun, or which ends by
/// itself. True when it was killed.
bool killedWhile(const std::function<void()>& action, std::chrono::milliseconds after) {
    const pid_t child = fork();
    if (child == 0) {
        action();
        _exit(0);
    }
    std::this_thread::sleep_for(after);
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

// ---- opening

TEST_F(SqliteFile, AMissingFileRaisesFileNotFoundAndIsNotMade) {
    EXPECT_EQ(failureOf([&] { (void)open(options()); }), number(Failure::FileNotFound));
    EXPECT_EQ(descriptionOf([&] { (void)open(options()); }), "找不到数据库文件：" + path());
    EXPECT_FALSE(fs::exists(path()));
}

TEST_F(SqliteFile, AnEmptyPathRaisesFileNotFound) {
    EXPECT_EQ(failureOf([] { (void)open({.path = ""}); }), number(Failure::FileNotFound));
    EXPECT_EQ(failureOf([] { (void)open({.path = "", .create = true}); }), number(Failure::FileNotFound));
}

TEST_F(SqliteFile, AFileIsMadeWhenAsked) {
    const auto connection = open(options(true));
    EXPECT_TRUE(connection->isOpen());
    EXPECT_TRUE(fs::exists(path()));
}

TEST_F(SqliteFile, AnExistingFileKeepsItsRows) {
    makeDatabase();
    EXPECT_EQ(count(*open(options())), 1);
    EXPECT_EQ(count(*open(options(true))), 1);
}

TEST_F(SqliteFile, APathMayHoldChinese) {
    const OpenOptions chinese{.path = path("人才 库.db"), .create = true};
    open(chinese)->execute("create table t (a text)");
    EXPECT_TRUE(fs::exists(folder / "人才 库.db"));
}

TEST_F(SqliteFile, APathThatSqliteGivesAMeaningIsAFile) {
    const auto before = fs::current_path();
    fs::current_path(folder);
    for (const char* name : {":memory:", "file:x?mode=memory"}) {
        open({.path = name, .create = true})->execute("create table t (a text)");
        EXPECT_TRUE(fs::exists(folder / name)) << name;
    }
    fs::current_path(before);
}

TEST_F(SqliteFile, AFileThatIsNoDatabaseFails) {
    std::ofstream(path()) << std::string(4096, 'x');
    EXPECT_EQ(failureOf([&] { (void)open(options()); }), number(Failure::Unspecified));
    EXPECT_EQ(descriptionOf([&] { (void)open(options()); }), "文件不是数据库：file is not a database");
}

TEST_F(SqliteFile, AFolderCannotBeOpened) {
    const OpenOptions folderItself{.path = folder};
    EXPECT_EQ(failureOf([&] { (void)open(folderItself); }), number(Failure::Unspecified));
    EXPECT_EQ(descriptionOf([&] { (void)open(folderItself); }),
              "打不开数据库文件：unable to open database file");
}

// ---- read-only files and full disks

TEST_F(SqliteFile, AReadOnlyFileIsReadAndNotWritten) {
    makeDatabase();
    forbidWriting(path());
    const OrdinaryUser user;
    const auto connection = open(options());
    EXPECT_EQ(count(*connection), 1);
    const auto insert = [&] { connection->execute("insert into t values('x')"); };
    EXPECT_EQ(failureOf(insert), number(Failure::Unspecified));
    EXPECT_EQ(descriptionOf(insert), "数据库是只读的，不能写入：attempt to write a readonly database");
    EXPECT_EQ(count(*connection), 1);
}

TEST_F(SqliteFile, AFullDiskFailsAndKeepsNothingOfTheStatement) {
    makeDatabase();
    const auto connection = open(options());
    connection->execute("pragma max_page_count=8");
    const auto insert = [&] {
        connection->execute("insert into t values('" + std::string(100'000, 'x') + "')");
    };
    EXPECT_EQ(failureOf(insert), number(Failure::Unspecified));
    EXPECT_EQ(descriptionOf(insert), "磁盘已满，数据没有保存：database or disk is full");
    EXPECT_EQ(count(*connection), 1);
}

// ---- several users of one file

TEST_F(SqliteFile, AStatementWaitsForAnotherWriterAndThenFails) {
    makeDatabase();
    const auto first = open(options());
    const auto second = open(options());
    first->execute("begin immediate");
    const auto insert = [&] { second->execute("insert into t values('x')"); };
    const auto begun = std::chrono::steady_clock::now();
    EXPECT_EQ(failureOf(insert), number(Failure::Unspecified));
    EXPECT_GE(std::chrono::steady_clock::now() - begun, 50ms);
    EXPECT_EQ(descriptionOf(insert), "数据库正被其他程序使用，请稍后再试：database is locked");
    first->execute("commit");
    EXPECT_NO_THROW(insert());
}

TEST_F(SqliteFile, AStatementThatWaitedLongEnoughRuns) {
    makeDatabase();
    const auto first = open(options());
    auto patient = options();
    patient.busyTimeout = 10s;
    const auto second = open(patient);
    first->execute("begin immediate");
    std::thread other([&] {
        std::this_thread::sleep_for(30ms);
        first->execute("commit");
    });
    EXPECT_NO_THROW(second->execute("insert into t values('x')"));
    other.join();
}

TEST_F(SqliteFile, ReadersAndAWriterDoNotWaitForEachOther) {
    makeDatabase();
    const auto first = open(options());
    const auto second = open(options());
    first->execute("begin immediate");
    first->execute("insert into t values('x')");
    EXPECT_EQ(count(*second), 1);
    first->execute("commit");
    EXPECT_EQ(count(*second), 2);
}

TEST_F(SqliteFile, AKeptQuerySeesWhatAnotherProgramDidToItsTable) {
    makeDatabase();
    const auto first = open(options());
    const auto second = open(options());
    const char* sql = "select * from t";
    EXPECT_EQ(first->query(sql).columns(), (std::vector<std::string>{"a"}));
    second->execute("alter table t add column b boolean default 1");
    const auto rows = first->query(sql);
    EXPECT_EQ(rows.columns(), (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(rows.at(0, "b"), data::Value(true));
}

TEST_F(SqliteFile, AQueryLeavesNoLock) {
    makeDatabase(false);
    auto plain = options();
    plain.writeAheadLog = false; // here an open cursor would keep the writer out
    const auto reader = open(plain);
    const auto writer = open(plain);
    (void)reader->query("select * from t");
    reader->execute("select * from t");
    EXPECT_EQ(failureOf([&] { reader->execute("insert into t select a from t"); }),
              number(Failure::ConstraintFailed));
    EXPECT_NO_THROW(writer->execute("insert into t values('x')"));
}

// ---- the log

TEST_F(SqliteFile, AWriteAheadLogIsKeptUnlessTurnedOff) {
    const auto mode = [](data::Connection& connection) {
        return connection.query("pragma journal_mode").at(0, 0).toText();
    };
    EXPECT_EQ(mode(*open(options(true))), "wal");
    auto plain = options();
    plain.writeAheadLog = false;
    EXPECT_EQ(mode(*open(plain)), "delete");
}

TEST_F(SqliteFile, ClosingLeavesOneFileOnly) {
    makeDatabase();
    const auto connection = open(options());
    connection->execute("insert into t values('x')");
    EXPECT_TRUE(fs::exists(path() + "-wal"));
    connection->close();
    EXPECT_FALSE(fs::exists(path() + "-wal"));
    EXPECT_FALSE(fs::exists(path() + "-shm"));
}

TEST_F(SqliteFile, AKilledProcessLeavesEachStatementWhole) {
    makeDatabase();
    open(options())->execute("create table rows (batch integer, n integer)");
    const bool killed = killedWhile(
        [&] {
            const auto connection = open(options());
            for (int batch = 1;; ++batch)
                connection->execute(
                    "with recursive c(n) as (select 1 union all select n+1 from c where n<500) "
                    "insert into rows select " +
                    std::to_string(batch) + ", n from c");
        },
        300ms);
    EXPECT_TRUE(killed);
    const auto after = open(options());
    const auto batches = after->query("select batch, count(*) from rows group by batch");
    EXPECT_GT(batches.rowCount(), 0U);
    for (std::size_t i = 0; i < batches.rowCount(); ++i)
        EXPECT_EQ(batches.at(i, 1).toLong(), 500) << "batch " << i;
    EXPECT_EQ(after->query("pragma integrity_check").at(0, 0), data::Value("ok"));
}

} // namespace
} // namespace quillmere::sqlite
