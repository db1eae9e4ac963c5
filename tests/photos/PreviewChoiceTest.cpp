#include "photos/PreviewBench.h"

#include "support/FailureNumber.h"

#include <filesystem>

namespace quillmere {
namespace {

constexpr std::size_t largestFile = 307200;

class PreviewChoiceTest : public test::PreviewBench {
protected:
    std::string chosen = folder.write("new.jpg", newPicture);

    void expectNothingChosen() const {
        EXPECT_EQ(label("lblNewPicture"), "当前没有照片");
        EXPECT_EQ(preview->NewPath, "");
        EXPECT_EQ(picture("imgNew"), "");
    }
};

TEST_F(PreviewChoiceTest, BeforeAChoiceTheNewSideIsEmpty) {
    open([&](ui::Form&) { expectNothingChosen(); });
}

TEST_F(PreviewChoiceTest, AChosenFileShowsOnTheNewSide) {
    open([&](ui::Form&) {
        choose(chosen);
        EXPECT_EQ(label("lblNewPicture"), "新照片");
        EXPECT_EQ(preview->NewPath, chosen);
        EXPECT_EQ(picture("imgNew"), chosen);
        EXPECT_EQ(preview->Cancelled, 1);
    });
    EXPECT_FALSE(folder.has("p1.jpg"));
}

TEST_F(PreviewChoiceTest, TheFileDialogShowsPhotosAndBeginsAtTheOldOne) {
    folder.write("p1.jpg", oldPicture);
    open([&](ui::Form&) { choose(chosen); });
    ASSERT_EQ(person.fileDialogs().size(), 1U);
    EXPECT_EQ(person.fileDialogs()[0].filter, "图片文件 (*.jpg)|*.jpg;");
    EXPECT_EQ(person.fileDialogs()[0].directory, preview->OldPath);
    const auto& dialog = test::controlOf<ui::CommonDialog>(*preview, "dlgSelPic");
    EXPECT_EQ(dialog.Flags, 4);
}

TEST_F(PreviewChoiceTest, WithoutAPhotoTheFileDialogBeginsAnywhere) {
    open([&](ui::Form&) { choose(chosen); });
    EXPECT_EQ(person.fileDialogs()[0].directory, "");
}

TEST_F(PreviewChoiceTest, AFileOf307200BytesPasses) {
    const std::string largest = folder.write("largest.jpg", test::jpegOf(largestFile));
    open([&](ui::Form&) {
        choose(largest);
        EXPECT_EQ(label("lblNewPicture"), "新照片");
        EXPECT_EQ(preview->NewPath, largest);
    });
}

TEST_F(PreviewChoiceTest, AFileOf307201BytesIsRefusedAndTheNewSideFallsBack) {
    const std::string larger = folder.write("larger.jpg", test::jpegOf(largestFile + 1));
    open([&](ui::Form&) {
        choose(chosen);
        person.expectBox("所选照片文件不能大于300K,请重新选择", "选择照片");
        choose(larger);
        expectNothingChosen();
    });
    ASSERT_EQ(person.boxes().size(), 1U);
    EXPECT_EQ(person.boxes()[0].icon, ui::Icon::Warning);
    EXPECT_EQ(person.boxes()[0].buttons, ui::Buttons::Ok);
}

TEST_F(PreviewChoiceTest, AFileDialogThatIsCancelledTakesAnEarlierChoiceBack) {
    open([&](ui::Form&) {
        choose(chosen);
        choose("");
        expectNothingChosen();
    });
    EXPECT_TRUE(person.boxes().empty());
}

TEST_F(PreviewChoiceTest, AFileThatIsNoImageIsNotFoundAndIsNotTheChoice) {
    const std::string broken = folder.write("broken.jpg", "no image");
    open([&](ui::Form&) {
        choose(chosen);
        choose(broken);
        EXPECT_EQ(label("lblNewPicture"), "没有找到照片");
        EXPECT_EQ(preview->NewPath, "");
        // Only a cancelled choice clears the image.
        EXPECT_EQ(picture("imgNew"), chosen);
    });
    EXPECT_TRUE(person.boxes().empty());
}

TEST_F(PreviewChoiceTest, AChosenFileThatIsNotThereIsAFailureThatEndsTheDialog) {
    person.chooseFile(folder.name() + "/missing.jpg");
    EXPECT_EQ(failureOf([&] { open([&](ui::Form&) { press("cmdSelPic"); }); }),
              number(Failure::FileNotFound));
    EXPECT_FALSE(preview->isOpen());
    EXPECT_EQ(preview->Cancelled, 1);
}

} // namespace
} // namespace quillmere
