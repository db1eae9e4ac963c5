#include "CopyBench.h"

#include "address/RegisterAddress.h"
#include "copy/Progress.h"
#include "copy/SqliteStore.h"
#include "copy/Targets.h"
#include "platform/Error.h"
#include "platform/data/ObservedConnections.h"
#include "sample/SampleRegister.h"

namespace quillmere::copy::test {
namespace {

/// The sample register behind a connection that can break.
class BrokenCopy : public testing::Test {
protected:
    void SetUp() override {
        engine = sqlite::openInMemory();
        sample::Options options;
        options.persons = 60;
        options.units = 12;
        sample::build(*engine, options);
        breaking = std::make_shared<data::FailingConnection>(engine);
        recorder = std::make_shared<data::RecordingConnection>(breaking);
    }

    void copy() {
        SqliteStore source(*recorder);
        Progress progress(nullptr);
        (void)copyTo({.onServer = false, .way = folder.file("copy.db")}, source, progress);
    }

    Folder folder;
    std::shared_ptr<data::Connection> engine;
    std::shared_ptr<data::FailingConnection> breaking;
    std::shared_ptr<data::RecordingConnection> recorder;
};

TEST_F(BrokenCopy, LeavesNothingWhereverItBroke) {
    copy();
    const int statements = static_cast<int>(recorder->statements().size());
    ASSERT_GT(statements, 300);
    std::filesystem::remove(folder.file("copy.db"));
    // The last one ends the reading, when all is there.
    for (int broken = 1; broken < statements; broken += statements / 12) {
        breaking->failAfter(broken, "断了");
        EXPECT_THROW(copy(), Error) << broken;
        EXPECT_TRUE(folder.names().empty()) << broken;
    }
}

TEST_F(BrokenCopy, TellsTheTableThatItBrokeIn) {
    breaking->failOn("from \"A02\" where", "断了");
    try {
        copy();
        FAIL() << "it did not break";
    } catch (const Error& failure) {
        EXPECT_EQ(failure.description(), "A02：断了");
    }
}

TEST_F(BrokenCopy, TheSourceIsFreeAgain) {
    breaking->failOn("from \"A02\" where", "断了");
    EXPECT_THROW(copy(), Error);
    EXPECT_NO_THROW(engine->execute("begin"));
}

TEST_F(BrokenCopy, WhatIsUnderWayHasAnotherName) {
    bool seen = false;
    data::RecordingConnection watched(engine, [&](std::string_view sql) {
        if (sql.find("\"ZZStyle\"") == std::string_view::npos) return;
        seen = true;
        EXPECT_FALSE(std::filesystem::exists(folder.file("copy.db")));
        EXPECT_TRUE(std::filesystem::exists(folder.file("copy.db.unfinished")));
    });
    SqliteStore source(watched);
    Progress progress(nullptr);
    (void)copyToFile(folder.file("copy.db"), source, progress);
    EXPECT_TRUE(seen);
    EXPECT_EQ(folder.names(), std::vector<std::string>{"copy.db"});
}

TEST_F(BrokenCopy, RowsThatChangedOnTheWayAreFoundOut) {
    const auto other = sqlite::openInMemory();
    SqliteStore source(*engine);
    SqliteStore target(*other);
    Progress progress(nullptr);
    const Summary summary = copyRegister(source, target, progress);
    const Table table = *findTable(target.tables(), "A01");
    TablePair pair{table, table, {}};
    for (const Column& column : table.columns)
        pair.columns.push_back({column.name, column.name, column.kind.value()});
    std::ranges::sort(pair.columns, {}, &ColumnPair::target);
    Digest expected;
    for (const CopiedTable& copied : summary.tables)
        if (copied.name == "A01") expected = copied.digest;

    EXPECT_NO_THROW(compareTable(pair, expected, target, progress));
    for (const char* damage : {"update A01 set A0101='别人' where A00=(select max(A00) from A01)",
                               "delete from A01 where A00=(select max(A00) from A01)"}) {
        other->execute("begin");
        other->execute(damage);
        EXPECT_THROW(compareTable(pair, expected, target, progress), Error) << damage;
        other->execute("rollback");
    }
}

} // namespace
} // namespace quillmere::copy::test
