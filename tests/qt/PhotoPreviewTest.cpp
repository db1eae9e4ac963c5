#include "photos/frmPicturePreview.h"
#include "platform/Error.h"
#include "platform/ui/Jpeg.h"
#include "qt/RealPerson.h"
#include "support/FailureNumber.h"
#include "support/PhotoFolder.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QImage>
#include <QLabel>
#include <QScreen>

namespace quillmere::test {

namespace {

class PhotoPreviewTest : public testing::Test {
protected:
    PhotoPreviewTest() { preview.PersonKey = "p1"; }

    /// Writes the person's photo: red, of that size.
    void writePhoto(int width, int height) const {
        QImage picture(width, height, QImage::Format_RGB32);
        picture.fill(Qt::red);
        ASSERT_TRUE(picture.save(QString::fromStdString((folder / "p1.jpg").string()), "JPEG"));
    }

    static QRect placeOf(std::string_view name) {
        const QWidget& widget = widgetNamed(name);
        return {widget.mapTo(widget.window(), QPoint()), widget.size()};
    }

    PhotoFolder folder;
    frmPicturePreview preview{folder.name()};
    Screen screen;
};

bool isReddish(const QColor& colour) {
    return colour.red() > 200 && colour.green() < 50 && colour.blue() < 50;
}

} // namespace

TEST_F(PhotoPreviewTest, ThePicturesStandSideBySideWithTheirCaptionsBelowAndTheButtonsUnderAll) {
    screen.show(preview, [](ui::Form&) {
        const QRect old = placeOf("imgOld");
        const QRect chosen = placeOf("imgNew");
        EXPECT_EQ(old.size(), chosen.size());
        EXPECT_EQ(old.top(), chosen.top());
        EXPECT_LT(old.right(), chosen.left());
        EXPECT_GT(placeOf("lblOldPicture").top(), old.bottom());
        EXPECT_GT(placeOf("lblNewPicture").top(), chosen.bottom());
        EXPECT_EQ(placeOf("lblNewPicture").center().x(), chosen.center().x());
        for (const char* button : {"cmdSelPic", "cmdOK", "cmdCancel"})
            EXPECT_GT(placeOf(button).top(), placeOf("lblOldPicture").bottom()) << button;
    });
}

TEST_F(PhotoPreviewTest, TheDialogStandsInTheMiddleOfTheScreenWhereverTheWindowBelowIs) {
    const auto lookAtIt = [](ui::Form&) {
        // The window system's frame moves the window by its width.
        constexpr int frameWidth = 4;
        const QPoint middle = windowNamed("frmPicturePreview").geometry().center();
        const QPoint wanted = QGuiApplication::primaryScreen()->availableGeometry().center();
        EXPECT_NEAR(middle.x(), wanted.x(), frameWidth);
        EXPECT_NEAR(middle.y(), wanted.y(), frameWidth);
    };
    ui::Form below("frmBelow", "below");
    screen.show(below, [&](ui::Form&) {
        windowNamed("frmBelow").move(0, 0);
        screen.person.onForm(lookAtIt, "frmPicturePreview");
        screen.toolkit.desktop().showModal(preview);
    });
}

TEST_F(PhotoPreviewTest, AWidePhotoIsShownWholeInItsOwnProportions) {
    writePhoto(400, 100);
    screen.show(preview, [](ui::Form&) {
        const QImage shown = widgetNamed("imgOld").grab().toImage();
        const int middle = shown.width() / 2;
        int height = 0;
        for (int y = 0; y < shown.height(); ++y)
            height += isReddish(shown.pixelColor(middle, y)) ? 1 : 0;
        int width = 0;
        for (int x = 0; x < shown.width(); ++x)
            width += isReddish(shown.pixelColor(x, shown.height() / 2)) ? 1 : 0;
        EXPECT_GT(width, shown.width() * 9 / 10);
        EXPECT_NEAR(width, height * 4, 8);
    });
}

TEST_F(PhotoPreviewTest, AFileThatOnlyLooksLikeAJpegIsNotFound) {
    std::string picture = jpegOf();
    // Without the tables that its frame names nothing can be decoded.
    picture.erase(2, 69);
    ASSERT_TRUE(ui::isJpeg(picture));
    folder.write("p1.jpg", picture);
    screen.show(preview, [&](ui::Form&) {
        EXPECT_EQ(widgetNamed<QLabel>("lblOldPicture").text(), QStringLiteral("没有找到照片"));
        EXPECT_FALSE(preview.OldPath.empty());
    });
}

TEST_F(PhotoPreviewTest, WhatNoToolkitTakesForAJpegIsRefusedThoughItCouldBeDecoded) {
    QImage picture(8, 8, QImage::Format_RGB32);
    picture.fill(Qt::red);
    const QString path = QString::fromStdString((folder / "a.jpg").string());
    ASSERT_TRUE(picture.save(path, "PNG"));
    ui::Image image("img");
    EXPECT_EQ(failureOf([&] { screen.toolkit.desktop().showPicture(image, path.toStdString()); }),
              number(Failure::InvalidPicture));
}

} // namespace quillmere::test
