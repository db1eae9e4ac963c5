#include "adapters/sqlite/SqliteConnection.h"
#include "engine/SqliteFolder.h"
#include "faults/RegisterFile.h"
#include "faults/RunTest.h"
#include "panels/A1ctrlUser.h"
#include "support/FailureNumber.h"

#include <chrono>

// A register in a file that cannot be written: what a clerk is told, what stays, and that work goes on
// when it can.

namespace quillmere::test {
namespace {

using namespace std::chrono_literals;

class FileFaults : public RunTest {
protected:
    FileFaults() {
        const auto made = openFile(true);
        makeSmallRegister(*made);
        for (const char* study : studies)
            made->execute(study);
    }

    [[nodiscard]] std::shared_ptr<data::Connection> openFile(bool create = false, bool log = true) const {
        return sqlite::open(
            {.path = file.path(), .create = create, .busyTimeout = 20ms, .writeAheadLog = log});
    }

    /// Not a page more than there is, and the pages of a table full with rows of others.
    static void fill(data::Connection& connection, const std::string& table) {
        connection.execute("pragma max_page_count=" +
                           connection.query("pragma page_count").at(0, 0).toText());
        int row = 0;
        for (const std::size_t size : {2000U, 200U, 1U}) {
            const std::string text(size, 'f');
            const auto add = [&] {
                connection.execute("insert into " + table + " (A00," + table + "01) values ('" +
                                   std::to_string(++row) + "','" + text + "')");
            };
            while (!failureOf(add))
                continue;
        }
    }

    RegisterFile file;
};

constexpr auto fullDisk = "磁盘已满，数据没有保存：database or disk is full";
constexpr auto readOnly = "数据库是只读的，不能写入：attempt to write a readonly database";
constexpr auto locked = "数据库正被其他程序使用，请稍后再试：database is locked";

TEST_F(FileFaults, OnAFullDiskASaveIsToldAndASaveWithRoomStoresWhatStillStandsInThePanel) {
    const auto connection = openFile();
    const std::string longText(250, 'x');
    run(connection, [&](frmPersonWh& window) {
        open(window, "创新点及主要业绩");
        type(window, "A10_A1001_v", longText);
        fill(*connection, "A10");
        const Lines before = allRows(*connection);
        for (int attempt = 0; attempt < 2; ++attempt) {
            person.expectBox(fullDisk, saveTitle);
            press(window, "Save");
            EXPECT_EQ(text(window, "A10_A1001_v"), longText);
            EXPECT_TRUE(window.GetUserCtrl()->WhInfo.IsChange);
            EXPECT_FALSE(window.IsSaved);
            EXPECT_EQ(allRows(*connection), before);
        }
        connection->execute("pragma max_page_count=1000000");
        press(window, "Save");
        EXPECT_TRUE(window.IsSaved);
        EXPECT_EQ(text(window, "A10_A1001_v"), longText);
    });
    EXPECT_EQ(openFile()->query("select A1001 from A10 where A00 like '1111%'").at(0, 0).toText(), longText);
}

TEST_F(FileFaults, AReadOnlyFileIsShownAndASaveIsToldWithTheRowsAsTheyWere) {
    file.forbidWriting();
    const sqlite::OrdinaryUser user;
    const auto connection = openFile();
    const Lines before = allRows(*connection);
    EXPECT_FALSE(run(connection, [&](frmPersonWh& window) {
        open(window, studiesItem);
        type(window, "A02_A0203_v", "丁");
        person.expectBox(readOnly, saveTitle);
        press(window, "Save");
        EXPECT_EQ(text(window, "A02_A0203_v"), "丁");
        EXPECT_TRUE(window.GetUserCtrl()->WhInfo.IsChange);
    }));
    EXPECT_EQ(allRows(*connection), before);
}

TEST_F(FileFaults, AReadOnlyFileEndsARunThatNeedsANewIdentity) {
    file.forbidWriting();
    const sqlite::OrdinaryUser user;
    IUserCtrl host;
    host.setConnection(openFile());
    host.setPersonID("nobody-00000000-0000-0000-0000-000000000000");
    try {
        (void)host.ShowPersonWh();
        FAIL() << "a new record on a read-only file";
    } catch (const Error& error) {
        EXPECT_EQ(error.description(), readOnly);
    }
    EXPECT_FALSE(frmPersonWh::defaultInstance().isLoaded());
}

TEST_F(FileFaults, WhileAnotherProgramWritesASaveIsToldAndTheNextOneStores) {
    const auto connection = openFile();
    const auto other = openFile();
    run(connection, [&](frmPersonWh& window) {
        open(window, studiesItem);
        type(window, "A02_A0203_v", "丁");
        const Lines before = allRows(*connection);
        other->execute("begin immediate");
        person.expectBox(locked, saveTitle);
        press(window, "Save");
        EXPECT_EQ(allRows(*connection), before);
        EXPECT_EQ(text(window, "A02_A0203_v"), "丁");
        other->execute("commit");
        press(window, "Save");
        EXPECT_TRUE(window.IsSaved);
    });
    EXPECT_EQ(openFile()->query("select A0203 from A02 where A0299=1").at(0, 0).toText(), "丁");
    EXPECT_EQ(openFile()->query("select count(*) from A02").at(0, 0).toLong(), 3);
}

TEST_F(FileFaults, WhileAnotherProgramKeepsTheWholeFileAClickEndsTheRunAndAnotherRunOpens) {
    // Without a log a writer keeps readers out too.
    const auto connection = openFile(false, false);
    const auto other = openFile(false, false);
    try {
        run(connection, [&](frmPersonWh& window) {
            other->execute("begin exclusive");
            open(window, studiesItem);
        });
        FAIL() << "a panel of a file that cannot be read";
    } catch (const Error& error) {
        EXPECT_EQ(error.description(), locked);
    }
    EXPECT_FALSE(frmPersonWh::defaultInstance().isLoaded());
    other->execute("rollback");
    run(connection, [&](frmPersonWh& window) {
        open(window, studiesItem);
        EXPECT_EQ(text(window, "A02_A0203_v"), "甲");
    });
}

} // namespace
} // namespace quillmere::test
