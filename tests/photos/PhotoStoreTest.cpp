#include "photos/PhotoStore.h"

#include "platform/ui/Image.h"
#include "platform/ui/Label.h"
#include "support/BrokenFiles.h"
#include "support/FailureNumber.h"
#include "support/PhotoFolder.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace quillmere {
namespace {

namespace fs = std::filesystem;

class PhotoStoreTest : public testing::Test {
protected:
    std::string makePhoto(const std::string& personID) const {
        return folder.write(personID + ".jpg", test::jpegOf());
    }

    test::PhotoFolder folder;
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
    EXPECT_TRUE(PhotoFileExists(photoPath(folder.name(), "p1")));
    EXPECT_TRUE(PhotoFileExists(photoPath(folder.name() + "\\", "p1")));
    EXPECT_FALSE(PhotoFileExists(photoPath(folder.name(), "p2")));
}

TEST_F(PhotoStoreTest, TheImageShowsTheFile) {
    makePhoto("p1");
    ui::Image image("imgPerson");
    LoadPersonPhoto(image, photoPath(folder.name(), "p1"));
    EXPECT_EQ(image.Picture(), photoPath(folder.name(), "p1"));
}

TEST_F(PhotoStoreTest, AReplacedFileIsShownAnewUnderTheSamePath) {
    struct View final : ui::ControlView {
        void changed(ui::Property property) override { loads += property == ui::Property::Picture ? 1 : 0; }
        int loads = 0;
    } view;
    ui::Image image("imgPerson");
    image.setView(&view);
    makePhoto("p1");
    LoadPersonPhoto(image, photoPath(folder.name(), "p1"));
    LoadPersonPhoto(image, photoPath(folder.name(), "p1"));
    EXPECT_EQ(view.loads, 2);
}

TEST_F(PhotoStoreTest, AFileThatIsNoImageIsAFailureAndTheImageKeepsWhatItShowed) {
    folder.write("p1.jpg", "no image");
    ui::Image image("imgPerson");
    image.setPicture("earlier");
    const std::string path = photoPath(folder.name(), "p1");
    EXPECT_EQ(failureOf([&] { LoadPersonPhoto(image, path); }), number(Failure::InvalidPicture));
    EXPECT_EQ(image.Picture(), "earlier");
}

TEST_F(PhotoStoreTest, WithoutAFileTheImageKeepsWhatItShowed) {
    ui::Image image("imgPerson");
    image.setPicture("earlier");
    LoadPersonPhoto(image, photoPath(folder.name(), "p1"));
    EXPECT_EQ(image.Picture(), "earlier");
}

TEST_F(PhotoStoreTest, AnImageOfAnotherNameIsLeftAlone) {
    makePhoto("p1");
    ui::Image image("imgUnit");
    LoadPersonPhoto(image, photoPath(folder.name(), "p1"));
    EXPECT_EQ(image.Picture(), "");
}

TEST_F(PhotoStoreTest, AWidgetOfThatNameThatIsNoImageIsAFailure) {
    makePhoto("p1");
    ui::Label label("imgPerson");
    const std::string path = photoPath(folder.name(), "p1");
    EXPECT_EQ(failureOf([&] { LoadPersonPhoto(label, path); }), number(Failure::MemberNotFound));
}

TEST_F(PhotoStoreTest, DeletingRemovesThatPersonsFileOnly) {
    makePhoto("p1");
    makePhoto("p2");
    DeletePersonPhoto("p1", folder.name());
    EXPECT_FALSE(folder.has("p1.jpg"));
    EXPECT_TRUE(folder.has("p2.jpg"));
}

TEST_F(PhotoStoreTest, DeletingAReadOnlyPhotoSucceeds) {
    makePhoto("p1");
    fs::permissions(folder / "p1.jpg", fs::perms::owner_read);
    DeletePersonPhoto("p1", folder.name());
    EXPECT_FALSE(folder.has("p1.jpg"));
}

TEST_F(PhotoStoreTest, DeletingWithoutAPhotoDoesNothing) {
    DeletePersonPhoto("nobody", folder.name());
    DeletePersonPhoto("nobody", folder.name() + "/missing");
    EXPECT_TRUE(person.boxes().empty());
}

TEST_F(PhotoStoreTest, AFailingDeleteWarnsAndTheCallerGoesOn) {
    makePhoto("p1");
    test::BrokenFiles files;
    files.removeFails = "拒绝的权限";
    person.expectBox("拒绝的权限", "人员照片删除");
    DeletePersonPhoto("p1", folder.name());
    EXPECT_TRUE(folder.has("p1.jpg"));
    ASSERT_EQ(person.boxes().size(), 1U);
    EXPECT_EQ(person.boxes()[0].buttons, ui::Buttons::Ok);
    EXPECT_EQ(person.boxes()[0].icon, ui::Icon::Warning);
}

TEST_F(PhotoStoreTest, AFailureToFindThePhotoToDeleteWarnsToo) {
    test::BrokenFiles files;
    files.existsFails = "网络中断";
    person.expectBox("网络中断", "人员照片删除");
    DeletePersonPhoto("p1", folder.name());
}

} // namespace
} // namespace quillmere
