#include "sample/OutputFile.h"

#include "adapters/sqlite/SqliteConnection.h"
#include "platform/Error.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace quillmere::sample {
namespace {

namespace fs = std::filesystem;

class OutputFile : public testing::Test {
protected:
    void SetUp() override {
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        folder_ = fs::path(testing::TempDir()) / (std::string("quillmere-sample-") + test->name());
        fs::remove_all(folder_);
        fs::create_directories(folder_);
    }
    void TearDown() override { fs::remove_all(folder_); }

    [[nodiscard]] std::string path(const std::string& name) const { return (folder_ / name).string(); }
    [[nodiscard]] std::vector<std::string> files() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder_))
            names.push_back(entry.path().filename().string());
        return names;
    }
    static void write(const std::string& file, const std::string& text) { std::ofstream(file) << text; }
    static std::string read(const std::string& file) {
        std::ifstream stream(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

private:
    fs::path folder_;
};

constexpr Options small{.persons = 2, .units = 1};

TEST_F(OutputFile, HoldsTheRegisterAndLeavesNoOtherFile) {
    buildFile(path("r.db"), small, false);
    EXPECT_EQ(files(), std::vector<std::string>{"r.db"});
    const auto connection = sqlite::open({.path = path("r.db"), .writeAheadLog = false});
    EXPECT_EQ(connection->query("select count(*) from A01").at(0, std::size_t{0}).toLong(), 2);
}

TEST_F(OutputFile, FileThatIsThereIsKeptWithoutForce) {
    write(path("r.db"), "mine");
    EXPECT_THROW(buildFile(path("r.db"), small, false), Error);
    EXPECT_EQ(read(path("r.db")), "mine");
}

TEST_F(OutputFile, FileThatIsThereIsReplacedWithForce) {
    write(path("r.db"), "old");
    buildFile(path("r.db"), small, true);
    EXPECT_EQ(read(path("r.db")).substr(0, 15), "SQLite format 3");
}

TEST_F(OutputFile, FailureKeepsTheFileThatWasThere) {
    write(path("r.db"), "old");
    EXPECT_THROW(buildFile(path("r.db"), {.persons = -1}, true), Error);
    EXPECT_EQ(read(path("r.db")), "old");
    EXPECT_EQ(files(), std::vector<std::string>{"r.db"});
}

TEST_F(OutputFile, FolderThatIsNotThereIsAFailure) {
    EXPECT_THROW(buildFile(path("none/r.db"), small, false), Error);
}

} // namespace
} // namespace quillmere::sample
