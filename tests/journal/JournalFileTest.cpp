#include "JournalBench.h"

#include "adapters/journal/JournalFile.h"
#include "platform/Error.h"

#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <functional>
#include <set>

namespace quillmere::journal {
namespace {

/// What becomes of the file, by programs and by what stands in their way.
class JournalFileTest : public JournalBench {
protected:
    [[nodiscard]] mode_t rightsOf(const std::string& name) const {
        struct stat status {};
        EXPECT_EQ(stat(name.c_str(), &status), 0) << name;
        return status.st_mode & 0777U;
    }

    /// Runs in a process of its own; its status is what `work` returns.
    static int inProcess(const std::function<int()>& work) { return waitFor(begin(work)); }
    static pid_t begin(const std::function<int()>& work) {
        const pid_t child = fork();
        if (child == 0) _exit(work());
        return child;
    }
    static int waitFor(pid_t child) {
        int status = 0;
        waitpid(child, &status, 0);
        return status;
    }

    [[nodiscard]] std::vector<std::uint64_t> numbers() const {
        std::vector<std::uint64_t> found;
        for (const KeptEntry& kept : read().entries)
            found.push_back(kept.number);
        return found;
    }

    void deleteNothing() { kept().execute("delete from A02 where A00='nobody'"); }
};

TEST_F(JournalFileTest, IsForItsOwnerAlone) {
    const mode_t before = umask(0);
    deleteNothing();
    umask(before);
    EXPECT_EQ(rightsOf(file()), 0600U);
}

TEST_F(JournalFileTest, ThatWasMadeForAGroupStaysSo) {
    write(file(), "");
    chmod(file().c_str(), 0660);
    JournalOptions small = options();
    small.limit = 700;
    useJournal(journaled(inner, small));
    for (int i = 0; i < 6; ++i)
        deleteNothing();
    EXPECT_EQ(rightsOf(file() + ".1"), 0660U);
    EXPECT_EQ(rightsOf(file()), 0660U);
}

TEST_F(JournalFileTest, GoesOnWhereItStood) {
    deleteNothing();
    useJournal(journaled(inner, options()));
    deleteNothing();
    EXPECT_EQ(numbers(), (std::vector<std::uint64_t>{1, 2}));
}

TEST_F(JournalFileTest, IsBegunAnewAtItsLimitAndNumbersGoOn) {
    JournalOptions small = options();
    small.limit = 3000;
    useJournal(journaled(inner, small));
    for (int i = 0; i < 40; ++i)
        deleteNothing();
    EXPECT_LE(std::filesystem::file_size(file()), small.limit + 100);
    EXPECT_LE(std::filesystem::file_size(file() + ".1"), small.limit + 100);
    const auto found = numbers();
    ASSERT_GT(found.size(), 10U);
    EXPECT_EQ(found.back(), 40U);
    EXPECT_EQ(found.front() + found.size() - 1, 40U);
    EXPECT_EQ(read().notes, Lines());
    for (const KeptEntry& kept : read().entries)
        EXPECT_TRUE(kept.outcome) << kept.number;
    useJournal(journaled(inner, small));
    deleteNothing();
    EXPECT_EQ(numbers().back(), 41U);
}

TEST_F(JournalFileTest, NumbersGoOnBehindAFileThatWasJustRenamed) {
    deleteNothing();
    deleteNothing();
    std::filesystem::rename(file(), file() + ".1");
    useJournal(journaled(inner, options()));
    deleteNothing();
    EXPECT_EQ(numbers(), (std::vector<std::uint64_t>{1, 2, 3}));
}

TEST_F(JournalFileTest, AFileThatWasTakenAwayIsMadeAnew) {
    deleteNothing();
    std::filesystem::remove(file());
    deleteNothing();
    EXPECT_EQ(read().entries.size(), 1U);
    EXPECT_EQ(complaints, Lines());
}

TEST_F(JournalFileTest, WhatIsWrittenBehindATornEndIsRead) {
    deleteNothing();
    const std::string whole = contents(file());
    for (const std::size_t cut : {1U, 10U, 30U}) {
        write(file(), whole.substr(0, whole.size() - cut));
        useJournal(journaled(inner, options()));
        deleteNothing();
        const Journal journal = read();
        ASSERT_EQ(journal.entries.size(), 2U) << cut;
        EXPECT_EQ(journal.entries[1].number, 2U);
        EXPECT_TRUE(journal.entries[1].outcome);
        ASSERT_EQ(journal.notes.size(), 1U) << cut;
        EXPECT_NE(journal.notes[0].find("已损坏，已跳过"), std::string::npos) << journal.notes[0];
    }
}

TEST_F(JournalFileTest, ATornEndIsNotedAsSuch) {
    deleteNothing();
    const std::string whole = contents(file());
    write(file(), whole.substr(0, whole.size() - 1));
    ASSERT_EQ(read().notes.size(), 1U);
    EXPECT_NE(read().notes[0].find("写入时中断"), std::string::npos) << read().notes[0];
    EXPECT_EQ(read().entries.size(), 1U);
}

TEST_F(JournalFileTest, SeveralProgramsAndManyTurnsLoseNoEntry) {
    constexpr int programs = 3;
    constexpr int entries = 60;
    const auto work = [this](int program) {
        JournalOptions own = options();
        // Room for a little more than all of it in two files, so that it is renamed while others write.
        own.limit = 90000;
        own.who = "program " + std::to_string(program);
        const auto connection = sqlite::openInMemory();
        connection->execute("create table A02 (A00 text)");
        const auto kept = journaled(connection, own);
        for (int i = 0; i < entries; ++i) {
            connection->execute("insert into A02 values ('" + std::string(400, 'x') + "')");
            kept->execute("delete from A02");
        }
        return complaints.empty() ? 0 : 1;
    };
    std::vector<pid_t> children;
    for (int program = 0; program < programs; ++program)
        children.push_back(begin([&, program] { return work(program); }));
    for (const pid_t child : children)
        EXPECT_EQ(waitFor(child), 0);
    EXPECT_TRUE(std::filesystem::exists(file() + ".1"));
    const Journal journal = read();
    EXPECT_EQ(journal.notes, Lines());
    ASSERT_EQ(journal.entries.size(), std::size_t{programs * entries});
    std::set<std::string> writers;
    for (std::size_t i = 0; i < journal.entries.size(); ++i) {
        EXPECT_EQ(journal.entries[i].number, i + 1);
        EXPECT_EQ(journal.entries[i].entry.rows.rowCount(), 1U);
        EXPECT_TRUE(journal.entries[i].outcome);
        writers.insert(journal.entries[i].entry.who);
    }
    EXPECT_EQ(writers.size(), std::size_t{programs});
}

TEST_F(JournalFileTest, AProgramThatIsKilledBetweenRecordAndStatementLeavesAnEntryWithoutOutcome) {
    class Killing final : public data::Connection {
    public:
        explicit Killing(std::shared_ptr<data::Connection> target) : target_(std::move(target)) {}
        data::RowSet query(std::string_view sql) override { return target_->query(sql); }
        void execute(std::string_view /*sql*/) override { (void)raise(SIGKILL); }
        [[nodiscard]] bool isOpen() const override { return true; }
        void close() override {}

    private:
        std::shared_ptr<data::Connection> target_;
    };
    const int status = inProcess([this] {
        journaled(std::make_shared<Killing>(engine), options())->execute("delete from A02 where A00='p'");
        return 0;
    });
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
    EXPECT_EQ(only().entry.rows.rowCount(), 2U);
    EXPECT_FALSE(only().outcome);
    deleteNothing();
    EXPECT_EQ(numbers(), (std::vector<std::uint64_t>{1, 2}));
}

TEST_F(JournalFileTest, WithoutRoomTheStatementRunsAndNoPieceOfARecordStays) {
    deleteNothing();
    const std::string before = contents(file());
    const int status = inProcess([&] {
        (void)std::signal(SIGXFSZ, SIG_IGN);
        // Room for a piece of the next record.
        const rlimit room{before.size() + 40, before.size() + 40};
        if (setrlimit(RLIMIT_FSIZE, &room) != 0) return 2;
        complaints.clear();
        kept().execute("delete from A02 where A00='p'");
        const bool told = complaints.size() == 1 && complaints[0].starts_with("没有记入恢复日志：");
        return told && engine->query("select * from A02").rowCount() == 1 ? 0 : 1;
    });
    EXPECT_EQ(status, 0);
    EXPECT_EQ(contents(file()), before);
}

TEST_F(JournalFileTest, AFileThatMayNotBeWrittenIsLeftAsItIsAndTheStatementRuns) {
    deleteNothing();
    const std::string before = contents(file());
    forbidWriting(file());
    {
        const sqlite::OrdinaryUser user;
        useJournal(journaled(inner, options()));
        kept().execute("delete from A02 where A00='p'");
    }
    EXPECT_EQ(engine->query("select * from A02").rowCount(), 1U);
    EXPECT_EQ(complaints.size(), 1U);
    EXPECT_EQ(contents(file()), before);
}

TEST_F(JournalFileTest, IsNoLinkAndNoDevice) {
    write(path("elsewhere"), "mine");
    std::filesystem::create_symlink(path("elsewhere"), file());
    deleteNothing();
    EXPECT_EQ(contents(path("elsewhere")), "mine");
    ASSERT_EQ(mkfifo(path("fifo").c_str(), 0600), 0);
    JournalOptions other = options();
    other.file = path("fifo");
    useJournal(journaled(inner, other));
    deleteNothing();
    EXPECT_EQ(complaints.size(), 2U);
}

TEST_F(JournalFileTest, AProgramThatStandsStillWithTheLockHoldsNobodyUp) {
    deleteNothing();
    const int lock = open(file().c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_EQ(flock(lock, LOCK_EX), 0);
    kept().execute("delete from A02 where A00='p'");
    EXPECT_EQ(engine->query("select * from A02").rowCount(), 1U);
    EXPECT_EQ(complaints.size(), 1U);
    close(lock);
    deleteNothing();
    EXPECT_EQ(complaints.size(), 1U);
    EXPECT_EQ(read().entries.size(), 2U);
}

TEST_F(JournalFileTest, ThatIsNotThereCannotBeRead) {
    EXPECT_THROW((void)readJournal(file()), Error);
    write(file(), "");
    EXPECT_TRUE(read().entries.empty());
    EXPECT_EQ(read().notes, Lines());
}

} // namespace
} // namespace quillmere::journal
