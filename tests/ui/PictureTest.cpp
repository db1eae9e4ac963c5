#include "platform/ui/CommonDialog.h"
#include "platform/ui/Image.h"
#include "support/FailureNumber.h"
#include "support/PhotoFolder.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

namespace quillmere::ui {
namespace {

class PictureTest : public testing::Test {
protected:
    test::ScriptedPerson person;
    test::PhotoFolder folder;
    Image image{"img"};
};

TEST_F(PictureTest, AJpegIsShown) {
    const std::string path = folder.write("a.jpg", test::jpegOf());
    desktop().showPicture(image, path);
    EXPECT_EQ(image.Picture(), path);
}

TEST_F(PictureTest, WhatCannotBeShownIsAFailureAndTheImageStays) {
    image.setPicture("earlier");
    const std::string broken = folder.write("a.jpg", "no image");
    EXPECT_EQ(failureOf([&] { desktop().showPicture(image, broken); }), number(Failure::InvalidPicture));
    EXPECT_EQ(failureOf([&] { desktop().showPicture(image, folder.name() + "/missing"); }),
              number(Failure::FileNotFound));
    EXPECT_EQ(image.Picture(), "earlier");
}

TEST_F(PictureTest, AFileDialogAsksTheDesktopAndKeepsTheAnswer) {
    CommonDialog dialog("dlg");
    dialog.InitDir = "photos";
    dialog.Filter = "JPEG|*.jpg";
    person.chooseFile("a.jpg");
    dialog.ShowOpen();
    EXPECT_EQ(dialog.FileName, "a.jpg");
    ASSERT_EQ(person.fileDialogs().size(), 1U);
    EXPECT_EQ(person.fileDialogs()[0].directory, "photos");
    EXPECT_EQ(person.fileDialogs()[0].filter, "JPEG|*.jpg");
    EXPECT_FALSE(dialog.Visible());
}

TEST_F(PictureTest, ACancelledFileDialogLeavesTheName) {
    CommonDialog dialog("dlg");
    dialog.FileName = "earlier.jpg";
    person.chooseFile("");
    dialog.ShowOpen();
    EXPECT_EQ(dialog.FileName, "earlier.jpg");
}

} // namespace
} // namespace quillmere::ui
