#include "photos/PhotoStore.h"

#include "platform/ui/Image.h"
#include "platform/ui/Label.h"
#include "support/FailureNumber.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace quillmere {
namespace {

namespace fs = std::filesystem;

class PhotoStoreTest : public testing::Test {
protected:
    void SetUp() override {
        folder = fs::temp_directory_path() /
                 ("photos-" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
        fs::remove_all(folder);
        fs::create_directories(folder);
    }
    void TearDown() override { fs::remove_all(folder); }

    fs::path makePhoto(const std::string& personID) {
        const fs::path file = folder / (personID + ".jpg");
        std::ofstream(file) << "picture";
        return file;
    }

    fs::path folder;
    test::ScriptedPerson person;
};

TEST_F(PhotoStoreTest, APathIsFolderBackslashIdentityAndEnding) {
    EXPECT_EQ(photoPath("C:\\photos", "p1"), "C:\\photos\\p1.jpg");
}

TEST_F(PhotoStoreTest, ATrailingSeparatorIsDoubled) {
    EXPECT_EQ(photoPath("C:\\photos\\", "p1"), "C:\\photos\\\\p1.jpg");
}

TEST_F(PhotoStoreTest, APhotoIsFoundUnderThePathAsTheSystemFormsIt) {
    makePhoto("p1");
    EXPECT_TRUE(PhotoFileExists(photoPath(folder.string(), "p1")));
    EXPECT_TRUE(PhotoFileExists(photoPath(folder.string() + "\\", "p1")));
    EXPECT_FALSE(PhotoFileExists(photoPath(folder.string(), "p2")));
}

TEST_F(PhotoStoreTest, TheImageShowsTheFile) {
    makePhoto("p1");
    ui::Image image("imgPerson");
    LoadPersonPhoto(image, photoPath(folder.string(), "p1"));
    EXPECT_EQ(image.Picture(), photoPath(folder.string(), "p1"));
}

TEST_F(PhotoStoreTest, WithoutAFileTheImageKeepsWhatItShowed) {
    ui::Image image("imgPerson");
    image.setPicture("earlier");
    LoadPersonPhoto(image, photoPath(folder.string(), "p1"));
    EXPECT_EQ(image.Picture(), "earlier");
}

TEST_F(PhotoStoreTest, AnImageOfAnotherNameIsLeftAlone) {
    makePhoto("p1");
    ui::Image image("imgUnit");
    LoadPersonPhoto(image, photoPath(folder.string(), "p1"));
    EXPECT_EQ(image.Picture(), "");
}

TEST_F(PhotoStoreTest, AWidgetOfThatNameThatIsNoImageIsAFailure) {
    makePhoto("p1");
    ui::Label label("imgPerson");
    const std::string path = photoPath(folder.string(), "p1");
    EXPECT_EQ(failureOf([&] { LoadPersonPhoto(label, path); }), number(Failure::MemberNotFound));
}

TEST_F(PhotoStoreTest, DeletingRemovesThatPersonsFileOnly) {
    const fs::path first = makePhoto("p1");
    const fs::path second = makePhoto("p2");
    DeletePersonPhoto("p1", folder.string());
    EXPECT_FALSE(fs::exists(first));
    EXPECT_TRUE(fs::exists(second));
}

TEST_F(PhotoStoreTest, DeletingAReadOnlyPhotoSucceeds) {
    const fs::path file = makePhoto("p1");
    fs::permissions(file, fs::perms::owner_read);
    DeletePersonPhoto("p1", folder.string());
    EXPECT_FALSE(fs::exists(file));
}

TEST_F(PhotoStoreTest, DeletingWithoutAPhotoDoesNothing) {
    DeletePersonPhoto("nobody", folder.string());
    DeletePersonPhoto("nobody", (folder / "missing").string());
    EXPECT_TRUE(person.boxes().empty());
}

/// Makes the test an ordinary user for as long as it lives: the superuser may delete everything.
class OrdinaryUser {
public:
    OrdinaryUser() : before_(geteuid()) {
        constexpr uid_t nobody = 65534;
        if (before_ == 0 && seteuid(nobody) != 0) throw std::runtime_error("seteuid");
    }
    ~OrdinaryUser() {
        if (geteuid() != before_ && seteuid(before_) != 0) ADD_FAILURE() << "seteuid";
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    uid_t before_;
};

TEST_F(PhotoStoreTest, AFailingDeleteWarnsAndTheCallerGoesOn) {
    const fs::path file = makePhoto("p1");
    constexpr auto readOnly = fs::perms::owner_read | fs::perms::owner_exec | fs::perms::group_read |
                              fs::perms::group_exec | fs::perms::others_read | fs::perms::others_exec;
    fs::permissions(folder, readOnly);
    person.answerAnyBox(ui::Answer::No);
    {
        const OrdinaryUser user;
        DeletePersonPhoto("p1", folder.string());
    }
    fs::permissions(folder, fs::perms::owner_all);
    EXPECT_TRUE(fs::exists(file));
    ASSERT_EQ(person.boxes().size(), 1U);
    EXPECT_EQ(person.boxes()[0].title, "人员照片删除");
    EXPECT_EQ(person.boxes()[0].text, descriptionOf(Failure::PermissionDenied));
    EXPECT_EQ(person.boxes()[0].buttons, ui::Buttons::Ok);
    EXPECT_EQ(person.boxes()[0].icon, ui::Icon::Warning);
}

} // namespace
} // namespace quillmere
