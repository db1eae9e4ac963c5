#include "qt/MaintenanceTest.h"
#include "support/PhotoFolder.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QLabel>

// The small photo beside the name of the person.

namespace quillmere::test {

namespace {

class NamePhotoTest : public MaintenanceTest {
protected:
    void writePhoto(Qt::GlobalColor colour) const {
        QImage picture(120, 160, QImage::Format_RGB32);
        picture.fill(colour);
        ASSERT_TRUE(picture.save(file(), "JPEG"));
    }

    [[nodiscard]] QString file() const {
        return QString::fromStdString((folder / (personKey + ".jpg")).string());
    }

    void maintainWithPhotos(std::int16_t operationType, const std::function<void(frmPersonWh&)>& work) {
        screen.person.onForm([&](ui::Form& form) { work(static_cast<frmPersonWh&>(form)); }, "frmPersonWh");
        IUserCtrl host;
        host.setConnection(connection);
        host.setOperationType(operationType);
        host.setZZtype(1);
        host.setPersonID(personKey);
        host.setPhotoPath(folder.name());
        (void)host.ShowPersonWh();
    }

    [[nodiscard]] static QWidget& photo() {
        auto* found = windowNamed("frmPersonWh").findChild<QWidget*>(QStringLiteral("namePhoto"));
        if (found == nullptr) throw std::runtime_error("no place for a photo");
        return *found;
    }

    /// The colour in the middle of the photo on show.
    [[nodiscard]] static QColor middle() {
        const QImage drawn = photo().grab().toImage();
        return drawn.pixelColor(drawn.width() / 2, drawn.height() / 2);
    }

    PhotoFolder folder;
};

bool isReddish(const QColor& colour) {
    return colour.red() > 200 && colour.green() < 60 && colour.blue() < 60;
}

bool isBluish(const QColor& colour) {
    return colour.blue() > 200 && colour.red() < 60 && colour.green() < 60;
}

TEST_F(NamePhotoTest, StandsBeforeTheName) {
    writePhoto(Qt::red);
    maintainWithPhotos(4, [](frmPersonWh&) {
        ASSERT_TRUE(photo().isVisible());
        EXPECT_TRUE(isReddish(middle()));
        const QWidget& name = widgetNamed("labPersonName");
        EXPECT_LT(photo().mapTo(photo().window(), QPoint(photo().width(), 0)).x(),
                  name.mapTo(name.window(), QPoint()).x());
        EXPECT_GE(name.width(), name.sizeHint().width());
    });
}

TEST_F(NamePhotoTest, AMissingFileAndABrokenOneShowNothing) {
    maintainWithPhotos(4, [](frmPersonWh&) { EXPECT_FALSE(photo().isVisible()); });
    QFile broken(file());
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write("no picture");
    broken.close();
    screen.person.answerWhenAsked("无效图片", ui::Answer::Ok);
    maintainWithPhotos(1, [](frmPersonWh&) { EXPECT_FALSE(photo().isVisible()); });
}

TEST_F(NamePhotoTest, FollowsAReplacedFileAndARemovedOne) {
    writePhoto(Qt::red);
    maintainWithPhotos(4, [&](frmPersonWh& window) {
        writePhoto(Qt::blue);
        EXPECT_TRUE(isReddish(middle()));
        window.photoChanged();
        EXPECT_TRUE(isBluish(middle()));
        QFile::remove(file());
        window.photoChanged();
        EXPECT_FALSE(photo().isVisible());
    });
}

TEST_F(NamePhotoTest, ANewPersonHasNone) {
    writePhoto(Qt::red);
    maintainWithPhotos(4, [](frmPersonWh&) {
        clickOn(widgetNamed("TbMain_Add"));
        EXPECT_FALSE(photo().isVisible());
    });
}

TEST_F(NamePhotoTest, GivesItsPlaceToTheNameInANarrowWindow) {
    writePhoto(Qt::red);
    maintainWithPhotos(4, [](frmPersonWh&) {
        QWidget& window = windowNamed("frmPersonWh");
        window.resize(560, 500);
        settle();
        EXPECT_FALSE(photo().isVisible());
        window.resize(1366, 768);
        settle();
        EXPECT_TRUE(photo().isVisible());
    });
}

} // namespace

} // namespace quillmere::test
