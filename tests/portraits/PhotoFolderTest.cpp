#include "sample/photos/PhotoFolder.h"

#include "adapters/sqlite/SqliteConnection.h"
#include "platform/Error.h"
#include "sample/SampleRegister.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <string>

namespace quillmere::sample {
namespace {

namespace fs = std::filesystem;

class PhotoFolderTest : public testing::Test {
protected:
    PhotoFolderTest() { build(*connection, {.persons = 60, .units = 2}); }
    ~PhotoFolderTest() override { fs::remove_all(folder); }

    [[nodiscard]] std::set<std::string> files() const {
        std::set<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder / "photos"))
            names.insert(entry.path().filename().string());
        return names;
    }

    std::shared_ptr<data::Connection> connection = sqlite::openInMemory();
    fs::path folder =
        fs::path(testing::TempDir()) /
        ("portraits-" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
    std::string photos = (folder / "photos").string();
};

TEST_F(PhotoFolderTest, OnePersonInThreeHasAPhotoUnderTheIdentity) {
    const int written = writePhotos(*connection, photos);
    EXPECT_GE(written, 12);
    EXPECT_LE(written, 28);
    const auto names = files();
    EXPECT_EQ(static_cast<int>(names.size()), written);
    for (const std::string& name : names) {
        ASSERT_TRUE(name.ends_with(".jpg")) << name;
        const std::string key = name.substr(0, name.size() - 4);
        EXPECT_EQ(connection->query("select count(*) from A01 where A00='" + key + "'")
                      .at(0, std::size_t{0})
                      .toLong(),
                  1)
            << name;
    }
}

TEST_F(PhotoFolderTest, WritingAgainWritesTheSameAndLeavesOtherFiles) {
    const int written = writePhotos(*connection, photos);
    std::ofstream(folder / "photos" / "notes.txt") << "x";
    EXPECT_EQ(writePhotos(*connection, photos), written);
    EXPECT_EQ(static_cast<int>(files().size()), written + 1);
}

TEST_F(PhotoFolderTest, ARegisterWithoutPeopleGivesAnEmptyFolder) {
    connection->execute("delete from A01");
    EXPECT_EQ(writePhotos(*connection, photos), 0);
    EXPECT_TRUE(files().empty());
}

TEST_F(PhotoFolderTest, AFolderThatCannotBeMadeIsAFailure) {
    fs::create_directories(folder);
    std::ofstream(photos) << "a file in its place";
    EXPECT_THROW(writePhotos(*connection, photos), Error);
}

} // namespace
} // namespace quillmere::sample
