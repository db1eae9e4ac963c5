#include "photos/PreviewBench.h"

#include "photos/PhotoStore.h"

namespace quillmere {
namespace {

using PreviewOpeningTest = test::PreviewBench;

TEST_F(PreviewOpeningTest, ButtonsAndDialogHaveTheirCaptions) {
    EXPECT_EQ(preview->Caption(), "照片预览");
    EXPECT_EQ(test::controlOf<ui::CommandButton>(*preview, "cmdSelPic").Caption(), "选择(&S)...");
    EXPECT_EQ(test::controlOf<ui::CommandButton>(*preview, "cmdOK").Caption(), "确   定");
    EXPECT_EQ(test::controlOf<ui::CommandButton>(*preview, "cmdCancel").Caption(), "取   消");
}

TEST_F(PreviewOpeningTest, ItsControlsAreThese) {
    std::vector<std::string> names;
    for (const auto& control : preview->Controls())
        names.push_back(control->name());
    EXPECT_EQ(names, (std::vector<std::string>{"imgOld", "lblOldPicture", "imgNew", "lblNewPicture",
                                               "cmdSelPic", "cmdOK", "cmdCancel", "dlgSelPic"}));
    EXPECT_EQ(preview->find("dlgSelPic")->kind(), ui::Kind::CommonDialog);
}

TEST_F(PreviewOpeningTest, ItStandsInTheMiddleOfTheScreen) {
    open([&](ui::Form& form) {
        const ui::Rect screen = person.desktop().screen();
        EXPECT_EQ(form.geometry().left, (screen.width - form.geometry().width) / 2);
        EXPECT_EQ(form.geometry().top, (screen.height - form.geometry().height) / 2);
    });
}

TEST_F(PreviewOpeningTest, ItBeginsOnTheButtonThatSelects) {
    open([&](ui::Form& form) { EXPECT_EQ(form.ActiveControl(), form.find("cmdSelPic")); });
}

TEST_F(PreviewOpeningTest, TabGoesThroughTheButtons) {
    open([&](ui::Form& form) {
        std::vector<std::string> stops;
        for (const ui::Control* stop : form.tabOrder())
            stops.push_back(stop->name());
        EXPECT_EQ(stops, (std::vector<std::string>{"cmdSelPic", "cmdOK", "cmdCancel"}));
    });
}

TEST_F(PreviewOpeningTest, WithoutAPhotoTheOldSideSaysSo) {
    open([&](ui::Form&) {
        EXPECT_EQ(preview->OldPath, "");
        EXPECT_EQ(preview->TargetPath, folder.name() + "\\p1.jpg");
        EXPECT_EQ(label("lblOldPicture"), "当前没有照片");
        EXPECT_EQ(picture("imgOld"), "");
        EXPECT_EQ(preview->Cancelled, 1);
    });
}

TEST_F(PreviewOpeningTest, ThePhotoThatThereIsShowsOnTheOldSide) {
    folder.write("p1.jpg", oldPicture);
    open([&](ui::Form&) {
        EXPECT_EQ(preview->OldPath, folder.name() + "\\p1.jpg");
        EXPECT_EQ(preview->TargetPath, preview->OldPath);
        EXPECT_EQ(label("lblOldPicture"), "当前照片");
        EXPECT_EQ(picture("imgOld"), preview->OldPath);
    });
}

TEST_F(PreviewOpeningTest, APhotoThatIsNoImageIsNotFoundButStaysTheOldPath) {
    folder.write("p1.jpg", "no image");
    open([&](ui::Form&) {
        EXPECT_EQ(label("lblOldPicture"), "没有找到照片");
        EXPECT_EQ(preview->OldPath, folder.name() + "\\p1.jpg");
        EXPECT_EQ(picture("imgOld"), "");
    });
    EXPECT_TRUE(person.boxes().empty());
}

TEST_F(PreviewOpeningTest, AFailureToFindThePhotoIsToldAndTheDialogOpens) {
    folder.write("p1.jpg", oldPicture);
    test::BrokenFiles files;
    files.existsFails = "网络中断";
    person.expectBox("读取此人员的照片出错！原因是：网络中断");
    open([&](ui::Form&) {
        EXPECT_EQ(preview->OldPath, "");
        EXPECT_EQ(preview->TargetPath, folder.name() + "\\p1.jpg");
        EXPECT_EQ(label("lblOldPicture"), "当前没有照片");
    });
    ASSERT_EQ(person.boxes().size(), 1U);
    EXPECT_EQ(person.boxes()[0].title, "");
    EXPECT_EQ(person.boxes()[0].icon, ui::Icon::Information);
    EXPECT_EQ(person.boxes()[0].buttons, ui::Buttons::Ok);
}

TEST_F(PreviewOpeningTest, ASeparatorAtTheEndOfTheFolderIsDoubledAndThePhotoFoundAllTheSame) {
    folder.write("p1.jpg", oldPicture);
    renew(folder.name() + "\\");
    open([&](ui::Form&) {
        EXPECT_EQ(preview->OldPath, folder.name() + "\\\\p1.jpg");
        EXPECT_EQ(label("lblOldPicture"), "当前照片");
    });
}

TEST_F(PreviewOpeningTest, ItIsCancelledUntilConfirmedHoweverItStood) {
    preview->Cancelled = 0;
    open([](ui::Form&) {});
    EXPECT_EQ(preview->Cancelled, 1);
}

} // namespace
} // namespace quillmere
