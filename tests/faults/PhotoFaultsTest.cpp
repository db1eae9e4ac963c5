#include "faults/RunTest.h"
#include "platform/ui/CommandButton.h"
#include "platform/ui/Image.h"
#include "platform/ui/Label.h"
#include "support/PhotoFolder.h"
#include "support/TestDatabase.h"

#include <filesystem>

// Photo files that fail during a run: a folder that is not there or cannot be written, pictures that are
// cut short, and files that others replace while the dialog is open.

namespace quillmere::test {
namespace {

namespace fs = std::filesystem;

class PhotoFaults : public RunTest {
protected:
    PhotoFaults() {
        makeSmallRegister(database.engine());
        photoFolder = photos.name();
    }

    /// Opens the dialog from the person's panel, chooses a file and goes on.
    void update(frmPersonWh& window, const std::string& file, const ScriptedPerson::Work& confirm) {
        person.chooseFile(file);
        person.onForm(
            [confirm](ui::Form& dialog) {
                dialog.click(controlOf<ui::CommandButton>(dialog, "cmdSelPic"));
                confirm(dialog);
            },
            "frmPicturePreview");
        ASSERT_TRUE(window.click(controlOf<ui::CommandButton>(window, "cmdAddPhoto")));
    }

    static void confirm(ui::Form& dialog) { dialog.click(controlOf<ui::CommandButton>(dialog, "cmdOK")); }
    static std::string caption(const ui::Form& dialog, std::string_view label) {
        return controlOf<ui::Label>(dialog, label).Caption();
    }
    static std::string picture(const frmPersonWh& window) {
        return controlOf<ui::Image>(window, "imgPerson").Picture();
    }

    /// The chosen file is replaced in the open dialog, then confirmed.
    void updateReplaced(frmPersonWh& window, const std::string& content) {
        update(window, photos.write("chosen.jpg", jpegOf()), [&](ui::Form& dialog) {
            EXPECT_EQ(caption(dialog, "lblNewPicture"), "新照片");
            photos.write("chosen.jpg", content);
            confirm(dialog);
            EXPECT_FALSE(dialog.isOpen());
        });
    }

    TestDatabase database;
    PhotoFolder photos;
    const std::string photo = std::string(thePerson) + ".jpg";
};

TEST_F(PhotoFaults, AFolderThatIsNotThereShowsNoPhotoAndIsToldWhenOneIsStored) {
    photoFolder = photos.name() + "/missing";
    run(database.connection(), [&](frmPersonWh& window) {
        EXPECT_EQ(picture(window), "");
        person.expectBox("更新此人员的照片出错！原因是：路径未找到");
        update(window, photos.write("chosen.jpg", jpegOf()), [&](ui::Form& dialog) {
            confirm(dialog);
            EXPECT_TRUE(dialog.isOpen());
        });
        EXPECT_EQ(picture(window), "");
        // The record is saved all the same.
        type(window, "A01_A0101_v", "秦志");
        person.expectBox("保存成功!", "提示");
        press(window, "Save");
    });
    EXPECT_FALSE(fs::exists(photoFolder));
    EXPECT_EQ(database.cell("select A0101 from A01"), "秦志");
}

TEST_F(PhotoFaults, APhotoCutShortIsNotShownAndDoesNotKeepTheRecordFromOpening) {
    const std::string whole = jpegOf();
    photos.write(photo, whole.substr(0, whole.size() / 2));
    run(database.connection(), [&](frmPersonWh& window) {
        EXPECT_EQ(picture(window), "");
        EXPECT_EQ(text(window, "A01_A0101_v"), "秦志明");
        person.onForm([&](ui::Form& dialog) { EXPECT_EQ(caption(dialog, "lblOldPicture"), "没有找到照片"); },
                      "frmPicturePreview");
        ASSERT_TRUE(window.click(controlOf<ui::CommandButton>(window, "cmdAddPhoto")));
    });
}

TEST_F(PhotoFaults, AChosenFileCutShortBeforeItsScanIsNotFoundAndNotStored) {
    const std::string whole = jpegOf();
    const std::size_t scan = whole.find("\xFF\xDA");
    run(database.connection(), [&](frmPersonWh& window) {
        for (std::size_t size = 0; size <= scan; ++size) {
            update(window, photos.write("cut.jpg", whole.substr(0, size)), [&](ui::Form& dialog) {
                EXPECT_EQ(caption(dialog, "lblNewPicture"), "没有找到照片") << size;
                confirm(dialog);
            });
            EXPECT_FALSE(photos.has(photo)) << size;
        }
    });
}

TEST_F(PhotoFaults, AChosenFileCutShortWithinItsScanIsStoredSinceThereIsSomethingToShow) {
    const std::string cut = jpegOf().substr(0, jpegOf().size() - 2);
    run(database.connection(), [&](frmPersonWh& window) {
        update(window, photos.write("cut.jpg", cut), [&](ui::Form& dialog) {
            EXPECT_EQ(caption(dialog, "lblNewPicture"), "新照片");
            confirm(dialog);
        });
    });
    EXPECT_EQ(photos.content(photo), cut);
}

TEST_F(PhotoFaults, AFileReplacedByAnotherPictureWhileTheDialogIsOpenIsStoredAsItIsNow) {
    run(database.connection(), [&](frmPersonWh& window) {
        updateReplaced(window, jpegOf(5000));
        EXPECT_EQ(photos.content(photo), jpegOf(5000));
        EXPECT_NE(picture(window), "");
    });
}

TEST_F(PhotoFaults, AFileReplacedByNoPictureWhileTheDialogIsOpenIsStoredAndItsShowingTold) {
    run(database.connection(), [&](frmPersonWh& window) {
        person.expectBox("更新照片出错！原因是：无效图片", "更新照片");
        updateReplaced(window, "no picture");
        EXPECT_EQ(photos.content(photo), "no picture");
        EXPECT_EQ(picture(window), "");
    });
}

TEST_F(PhotoFaults, APhotoThatAnotherRemovedWhileTheDialogIsOpenIsAskedAboutAndWrittenAnew) {
    photos.write(photo, jpegOf());
    run(database.connection(), [&](frmPersonWh& window) {
        person.expectBox("确定替换现有照片文件吗？", "照片预览", ui::Answer::Yes);
        update(window, photos.write("chosen.jpg", jpegOf(700)), [&](ui::Form& dialog) {
            fs::remove(photos / photo);
            confirm(dialog);
        });
    });
    EXPECT_EQ(photos.content(photo), jpegOf(700));
}

TEST_F(PhotoFaults, APhotoThatCannotBeRemovedIsToldAndThePersonIsDeletedAllTheSame) {
    // A folder of that name with something in it: no force removes it as a file, for no user.
    fs::create_directories(photos / photo);
    photos.write(photo + "/inside", "x");
    person.answerAnyBox(ui::Answer::Yes);
    run(database.connection(), [&](frmPersonWh& window) { press(window, "Delete"); });
    EXPECT_EQ(database.cell("select count(*) from A01"), "0");
    EXPECT_TRUE(photos.has(photo));
}

} // namespace
} // namespace quillmere::test
