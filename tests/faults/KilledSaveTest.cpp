#include "adapters/sqlite/SqliteConnection.h"
#include "faults/RegisterFile.h"
#include "faults/RunTest.h"
#include "sample/Random.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

// A process that is killed while it saves: the register opens, and holds each statement whole or not at all.
// QUILLMERE_KILLS says how many processes are killed; by hand:
//   QUILLMERE_KILLS=1000 test-faults --gtest_filter='KilledSave.*'

namespace quillmere::test {
namespace {

namespace fs = std::filesystem;

/// Tells of each change when it has been made.
class Telling final : public data::Connection {
public:
    using Told = std::function<void()>;

    Telling(std::shared_ptr<data::Connection> target, Told told)
        : target_(std::move(target)), told_(std::move(told)) {}

    data::RowSet query(std::string_view sql) override { return target_->query(sql); }
    void execute(std::string_view sql) override {
        target_->execute(sql);
        told_();
    }
    [[nodiscard]] bool isOpen() const override { return target_->isOpen(); }
    void close() override { target_->close(); }

private:
    std::shared_ptr<data::Connection> target_;
    Told told_;
};

int killsAskedFor() {
    constexpr int inTheSuite = 20;
    const char* asked = std::getenv("QUILLMERE_KILLS");
    return asked == nullptr ? inTheSuite : std::atoi(asked);
}

class KilledSave : public RunTest {
protected:
    KilledSave() {
        const auto made = openFile("whole.db");
        makeSmallRegister(*made);
        for (const char* study : studies)
            made->execute(study);
    }

    [[nodiscard]] std::shared_ptr<data::Connection> openFile(const char* name) const {
        return sqlite::open({.path = file.path(name), .create = true});
    }

    /// Saves one study after the other; `told` hears of each change.
    void saveStudies(std::shared_ptr<data::Connection> connection, Telling::Told told) {
        constexpr int saves = 12;
        run(std::make_shared<Telling>(std::move(connection), std::move(told)), [](frmPersonWh& window) {
            open(window, studiesItem);
            for (int save = 0; save < saves; ++save) {
                type(window, "A02_A0203_v", "学校" + std::to_string(save));
                press(window, "Save");
            }
        });
    }

    /// The rows before any change, and behind each.
    std::vector<Lines> statesOfTheRegister() {
        const auto connection = openCopy();
        std::vector<Lines> states{allRows(*connection)};
        saveStudies(connection, [&] { states.push_back(allRows(*connection)); });
        return states;
    }

    [[nodiscard]] std::shared_ptr<data::Connection> openCopy() const {
        for (const char* ending : {"", "-wal", "-shm"})
            fs::remove(file.path("copy.db") + ending);
        fs::copy_file(file.path("whole.db"), file.path("copy.db"));
        return openFile("copy.db");
    }

    /// A process that saves and tells by a byte for each change, killed in the midst of it. How many bytes
    /// it told.
    int killWhileSaving(sample::Random& chance, std::size_t changes) {
        openCopy()->close();
        int ends[2];
        EXPECT_EQ(pipe(ends), 0);
        const pid_t child = fork();
        if (child == 0) saveInChild(ends[1]);
        close(ends[1]);
        const int awaited = chance.between(0, static_cast<int>(changes) - 1);
        int told = 0;
        char byte = 0;
        while (told < awaited && read(ends[0], &byte, 1) == 1)
            ++told;
        std::this_thread::sleep_for(std::chrono::microseconds(chance.between(0, 2000)));
        kill(child, SIGKILL);
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
        while (read(ends[0], &byte, 1) == 1)
            ++told;
        close(ends[0]);
        return told;
    }

    [[noreturn]] void saveInChild(int end) {
        saveStudies(openFile("copy.db"), [end] {
            if (write(end, "x", 1) != 1) _exit(1);
        });
        for (;;)
            pause();
    }

    RegisterFile file;
};

TEST_F(KilledSave, LeavesARegisterThatOpensWithEveryStatementWholeOrAbsent) {
    const std::vector<Lines> states = statesOfTheRegister();
    ASSERT_GT(states.size(), 60U);
    constexpr std::uint64_t seed = 20261121;
    sample::Random chance(seed);
    const int kills = killsAskedFor();
    int midway = 0;
    for (int i = 0; i < kills && !HasFailure(); ++i) {
        SCOPED_TRACE("kill " + std::to_string(i + 1));
        const auto told = static_cast<std::size_t>(killWhileSaving(chance, states.size() - 1));
        const auto after = openFile("copy.db");
        EXPECT_EQ(after->query("pragma integrity_check").at(0, 0), data::Value("ok"));
        const Lines rows = allRows(*after);
        // What was told is stored; the change on its way may be stored or not.
        const bool next = told + 1 < states.size() && rows == states[told + 1];
        EXPECT_TRUE(rows == states[told] || next) << "after " << told << " changes";
        if (told > 0 && told + 1 < states.size()) ++midway;
    }
    std::cout << kills << " processes killed, " << midway
              << " of them between the first change and the last\n";
    EXPECT_GE(midway * 2, kills);
}

} // namespace
} // namespace quillmere::test
