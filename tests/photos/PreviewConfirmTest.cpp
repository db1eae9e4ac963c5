#include "photos/PreviewBench.h"

#include <filesystem>

namespace quillmere {
namespace {

class PreviewConfirmTest : public test::PreviewBench {
protected:
    std::string chosen = folder.write("new.jpg", newPicture);

    void expectQuestion(ui::Answer answer) {
        person.expectBox("确定替换现有照片文件吗？", "照片预览", answer);
    }

    /// Chooses the new picture and presses OK; true when the dialog closes by that.
    [[nodiscard]] bool confirmChosen() {
        bool closed = false;
        open([&](ui::Form& form) {
            choose(chosen);
            press("cmdOK");
            closed = !form.isOpen();
        });
        return closed;
    }
};

TEST_F(PreviewConfirmTest, TheFirstPhotoIsWrittenWithoutAnyQuestion) {
    EXPECT_TRUE(confirmChosen());
    EXPECT_EQ(preview->Cancelled, 0);
    EXPECT_EQ(photo(), newPicture);
    EXPECT_EQ(folder.content("new.jpg"), newPicture);
    EXPECT_TRUE(person.boxes().empty());
}

TEST_F(PreviewConfirmTest, ReplacingAPhotoAsksAndYesReplacesIt) {
    folder.write("p1.jpg", oldPicture);
    expectQuestion(ui::Answer::Yes);
    EXPECT_TRUE(confirmChosen());
    EXPECT_EQ(preview->Cancelled, 0);
    EXPECT_EQ(photo(), newPicture);
    ASSERT_EQ(person.boxes().size(), 1U);
    EXPECT_EQ(person.boxes()[0].icon, ui::Icon::Question);
    EXPECT_EQ(person.boxes()[0].buttons, ui::Buttons::YesNo);
}

TEST_F(PreviewConfirmTest, NoKeepsThePhotoAndTheDialogOpen) {
    folder.write("p1.jpg", oldPicture);
    expectQuestion(ui::Answer::No);
    open([&](ui::Form& form) {
        choose(chosen);
        press("cmdOK");
        EXPECT_TRUE(form.isOpen());
        EXPECT_EQ(preview->NewPath, chosen);
        EXPECT_EQ(preview->Cancelled, 1);
    });
    EXPECT_EQ(photo(), oldPicture);
}

TEST_F(PreviewConfirmTest, ReplacingAFileThatIsNoImageAsksTheQuestionToo) {
    folder.write("p1.jpg", "no image");
    expectQuestion(ui::Answer::Yes);
    open([&](ui::Form&) {
        EXPECT_EQ(label("lblOldPicture"), "没有找到照片");
        choose(chosen);
        press("cmdOK");
    });
    EXPECT_EQ(photo(), newPicture);
}

TEST_F(PreviewConfirmTest, WithoutAChoiceOkTouchesNoFileAndAsksNothing) {
    folder.write("p1.jpg", oldPicture);
    test::BrokenFiles files;
    files.copyFails = "copied";
    open([&](ui::Form& form) {
        press("cmdOK");
        EXPECT_FALSE(form.isOpen());
    });
    EXPECT_EQ(preview->Cancelled, 0);
    EXPECT_EQ(photo(), oldPicture);
    EXPECT_TRUE(person.boxes().empty());
}

TEST_F(PreviewConfirmTest, AFileThatVanishedMeanwhileIsPassedOverWithoutAWord) {
    open([&](ui::Form& form) {
        choose(chosen);
        std::filesystem::remove(folder / "new.jpg");
        press("cmdOK");
        EXPECT_FALSE(form.isOpen());
    });
    EXPECT_EQ(preview->Cancelled, 0);
    EXPECT_FALSE(folder.has("p1.jpg"));
    EXPECT_TRUE(person.boxes().empty());
}

TEST_F(PreviewConfirmTest, AVanishedFileStillAsksBeforeItIsPassedOver) {
    folder.write("p1.jpg", oldPicture);
    expectQuestion(ui::Answer::Yes);
    open([&](ui::Form&) {
        choose(chosen);
        std::filesystem::remove(folder / "new.jpg");
        press("cmdOK");
    });
    EXPECT_EQ(preview->Cancelled, 0);
    EXPECT_EQ(photo(), oldPicture);
}

TEST_F(PreviewConfirmTest, ACopyThatFailsIsToldAndTheDialogStaysOpen) {
    test::BrokenFiles files;
    files.copyFails = "磁盘已满";
    person.expectBox("更新此人员的照片出错！原因是：磁盘已满");
    open([&](ui::Form& form) {
        choose(chosen);
        press("cmdOK");
        EXPECT_TRUE(form.isOpen());
        EXPECT_EQ(preview->Cancelled, 1);
        EXPECT_EQ(preview->NewPath, chosen);
        files.copyFails.clear();
        press("cmdOK");
        EXPECT_FALSE(form.isOpen());
    });
    EXPECT_EQ(preview->Cancelled, 0);
    EXPECT_EQ(photo(), newPicture);
    ASSERT_EQ(person.boxes().size(), 1U);
    EXPECT_EQ(person.boxes()[0].title, "");
    EXPECT_EQ(person.boxes()[0].icon, ui::Icon::Information);
    EXPECT_EQ(person.boxes()[0].buttons, ui::Buttons::Ok);
}

TEST_F(PreviewConfirmTest, AFolderThatIsNotThereIsToldWithItsReason) {
    renew(folder.name() + "/missing");
    person.expectBox("更新此人员的照片出错！原因是：路径未找到");
    EXPECT_FALSE(confirmChosen());
    EXPECT_EQ(preview->Cancelled, 1);
}

TEST_F(PreviewConfirmTest, APhotoThatMayNotBeWrittenIsToldWithItsReason) {
    folder.write("p1.jpg", oldPicture);
    std::filesystem::permissions(folder / "p1.jpg", std::filesystem::perms::owner_read);
    expectQuestion(ui::Answer::Yes);
    person.expectBox("更新此人员的照片出错！原因是：拒绝的权限");
    EXPECT_FALSE(confirmChosen());
    EXPECT_EQ(photo(), oldPicture);
}

TEST_F(PreviewConfirmTest, CancelForgetsTheChoiceAndWritesNothing) {
    open([&](ui::Form& form) {
        choose(chosen);
        press("cmdCancel");
        EXPECT_FALSE(form.isOpen());
    });
    EXPECT_EQ(preview->NewPath, "");
    EXPECT_EQ(preview->Cancelled, 1);
    EXPECT_FALSE(folder.has("p1.jpg"));
}

TEST_F(PreviewConfirmTest, TheFrameWritesNothingEither) {
    open([&](ui::Form& form) {
        choose(chosen);
        form.closeByFrame();
    });
    EXPECT_EQ(preview->Cancelled, 1);
    EXPECT_FALSE(folder.has("p1.jpg"));
}

TEST_F(PreviewConfirmTest, AFolderNamedWithABackslashAtItsEndIsWrittenTo) {
    renew(folder.name() + "\\");
    EXPECT_TRUE(confirmChosen());
    EXPECT_EQ(preview->TargetPath, folder.name() + "\\\\p1.jpg");
    EXPECT_EQ(photo(), newPicture);
}

TEST_F(PreviewConfirmTest, TheNextShowingBeginsAfresh) {
    EXPECT_TRUE(confirmChosen());
    renew(folder.name());
    open([&](ui::Form&) {
        EXPECT_EQ(label("lblOldPicture"), "当前照片");
        EXPECT_EQ(preview->NewPath, "");
        EXPECT_EQ(preview->Cancelled, 1);
    });
}

} // namespace
} // namespace quillmere
