#include "platform/files/Files.h"

#include "platform/files/FileSystem.h"
#include "support/FailureNumber.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace quillmere::files {
namespace {

namespace fs = std::filesystem;

constexpr char separator = static_cast<char>(fs::path::preferred_separator);

std::string utf8(const fs::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

fs::path pathOf(std::string_view text) { return {std::u8string(text.begin(), text.end())}; }

class FilesTest : public testing::Test {
protected:
    void SetUp() override {
        const auto* info = testing::UnitTest::GetInstance()->current_test_info();
        folder_ = fs::path(testing::TempDir()) / ("quillmere-files-" + std::string(info->name()));
        fs::remove_all(folder_);
        fs::create_directories(folder_);
    }
    void TearDown() override { fs::remove_all(folder_); }

    [[nodiscard]] std::string path(std::string_view name) const {
        return utf8(folder_) + "/" + std::string(name);
    }

    void write(std::string_view name, std::string_view content) const {
        std::ofstream(pathOf(path(name)), std::ios::binary) << content;
    }
    [[nodiscard]] std::string content(std::string_view name) const {
        std::ifstream file(pathOf(path(name)), std::ios::binary);
        std::ostringstream text;
        text << file.rdbuf();
        return text.str();
    }

    fs::path folder_;
};

TEST_F(FilesTest, AFileExists) {
    EXPECT_FALSE(exists(path("a.jpg")));
    write("a.jpg", "x");
    EXPECT_TRUE(exists(path("a.jpg")));
}

TEST_F(FilesTest, AFolderIsNoFile) {
    EXPECT_FALSE(exists(path("")));
    EXPECT_FALSE(exists(""));
}

TEST_F(FilesTest, PathsMayHaveEitherSeparator) {
    fs::create_directory(folder_ / "photos");
    write("photos/a.jpg", "x");
    EXPECT_TRUE(exists(path("photos\\a.jpg")));
    EXPECT_TRUE(exists(path("photos\\\\a.jpg")));
    EXPECT_EQ(files::size(path("photos\\a.jpg")), 1U);
}

TEST_F(FilesTest, PathsAreUtf8) {
    write("李四.jpg", "abc");
    EXPECT_TRUE(exists(path("李四.jpg")));
    EXPECT_EQ(files::size(path("李四.jpg")), 3U);
}

TEST_F(FilesTest, NativeTurnsEverySeparator) {
    const std::string one(1, separator);
    EXPECT_EQ(native("a\\b/c"), "a" + one + "b" + one + "c");
    EXPECT_EQ(native("\\\\server\\x"), one + one + "server" + one + "x");
    EXPECT_EQ(native(""), "");
}

TEST_F(FilesTest, SizeIsInBytes) {
    write("empty", "");
    write("photo", std::string(307200, 'x'));
    EXPECT_EQ(files::size(path("empty")), 0U);
    EXPECT_EQ(files::size(path("photo")), 307200U);
}

TEST_F(FilesTest, AMissingFileHasNoSize) {
    EXPECT_EQ(failureOf([&] { (void)files::size(path("none")); }), number(Failure::FileNotFound));
}

TEST_F(FilesTest, RemovingTakesTheFileAway) {
    write("a", "x");
    removeForced(path("a"));
    EXPECT_FALSE(exists(path("a")));
}

TEST_F(FilesTest, RemovingTakesAReadOnlyFileToo) {
    write("a", "x");
    fs::permissions(folder_ / "a", fs::perms::owner_read);
    removeForced(path("a"));
    EXPECT_FALSE(exists(path("a")));
}

TEST_F(FilesTest, RemovingAMissingFileIsAFailure) {
    EXPECT_EQ(failureOf([&] { removeForced(path("none")); }), number(Failure::FileNotFound));
}

TEST_F(FilesTest, RemovingTakesNoFolder) {
    fs::create_directory(folder_ / "photos");
    EXPECT_EQ(failureOf([&] { removeForced(path("photos")); }), number(Failure::FileNotFound));
    EXPECT_TRUE(fs::exists(folder_ / "photos"));
}

TEST_F(FilesTest, CopyingMakesAFileOfTheSameContent) {
    write("a", std::string("x\0y", 3));
    copyOver(path("a"), path("b"));
    EXPECT_EQ(content("b"), std::string("x\0y", 3));
    EXPECT_EQ(content("a"), std::string("x\0y", 3));
}

TEST_F(FilesTest, CopyingReplacesWhatIsThere) {
    write("a", "new");
    write("b", "old and longer");
    copyOver(path("a"), path("b"));
    EXPECT_EQ(content("b"), "new");
}

TEST_F(FilesTest, CopyingAMissingFileIsAFailureAndLeavesTheTarget) {
    write("b", "old");
    EXPECT_EQ(failureOf([&] { copyOver(path("none"), path("b")); }), number(Failure::FileNotFound));
    EXPECT_EQ(content("b"), "old");
}

TEST_F(FilesTest, CopyingIntoAMissingFolderIsAFailure) {
    write("a", "x");
    EXPECT_EQ(failureOf([&] { copyOver(path("a"), path("none\\b")); }), number(Failure::PathNotFound));
}

TEST_F(FilesTest, CopyingOverAFolderIsDenied) {
    write("a", "x");
    fs::create_directory(folder_ / "photos");
    EXPECT_EQ(failureOf([&] { copyOver(path("a"), path("photos")); }), number(Failure::PermissionDenied));
}

TEST_F(FilesTest, CopyingAFileOntoItselfIsDeniedAndKeepsIt) {
    write("a", "x");
    EXPECT_EQ(failureOf([&] { copyOver(path("a"), path("a")); }), number(Failure::PermissionDenied));
    EXPECT_EQ(content("a"), "x");
}

TEST_F(FilesTest, CopyingOverAReadOnlyFileIsDeniedAndKeepsIt) {
    write("a", "new");
    write("b", "old");
    fs::permissions(folder_ / "b", fs::perms::owner_read);
    EXPECT_EQ(failureOf([&] { copyOver(path("a"), path("b")); }), number(Failure::PermissionDenied));
    EXPECT_EQ(content("b"), "old");
    // Not every system lets go of a read-only file.
    fs::permissions(folder_ / "b", fs::perms::owner_all);
}

TEST_F(FilesTest, AFileIsReadByteForByte) {
    const std::string bytes("a\0\r\n\xFFz", 6);
    write("a", bytes);
    EXPECT_EQ(read(path("a")), bytes);
    EXPECT_EQ(failureOf([&] { (void)read(path("missing")); }), number(Failure::FileNotFound));
    EXPECT_EQ(failureOf([&] { (void)read(utf8(folder_)); }), number(Failure::FileNotFound));
}

/// Other files than the machine's: each operation leaves a word.
class OtherFiles final : public FileSystem {
public:
    bool exists(std::string_view path) override { return note("exists", path), true; }
    std::uint64_t size(std::string_view path) override { return note("size", path), 7; }
    std::string read(std::string_view path) override { return note("read", path), "content"; }
    void removeForced(std::string_view path) override { note("remove", path); }
    void copyOver(std::string_view from, std::string_view to) override {
        note("copy", std::string(from) + ">" + std::string(to));
    }

    std::vector<std::string> seen;

private:
    void note(const std::string& word, std::string_view path) {
        seen.push_back(word + " " + std::string(path));
    }
};

TEST_F(FilesTest, OtherFilesCanBePutInUseAndTakenBack) {
    OtherFiles other;
    use(&other);
    EXPECT_TRUE(exists("x\\y"));
    EXPECT_EQ(files::size("a"), 7U);
    EXPECT_EQ(read("b"), "content");
    removeForced("c");
    copyOver("d", "e");
    use(nullptr);
    EXPECT_FALSE(exists(path("x")));
    EXPECT_EQ(other.seen,
              (std::vector<std::string>{"exists x\\y", "size a", "read b", "remove c", "copy d>e"}));
}

} // namespace
} // namespace quillmere::files
