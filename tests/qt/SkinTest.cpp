#include "adapters/qt/Skin.h"
#include "adapters/qt/Icons.h"
#include "adapters/qt/SkinText.h"
#include "adapters/qt/Style.h"
#include "qt/MaintenanceTest.h"
#include "qt/SkinFiles.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QToolButton>

#include <stdexcept>

namespace quillmere::test {

namespace {

/// What is told on stderr while it lives.
class Notes {
public:
    Notes() : before_(qInstallMessageHandler(keep)) { kept().clear(); }
    Notes(const Notes&) = delete;
    Notes& operator=(const Notes&) = delete;
    ~Notes() { qInstallMessageHandler(before_); }

    /// Those of the toolkit; the platform has remarks of its own.
    [[nodiscard]] static QStringList told() { return kept().filter(QStringLiteral("Quillmere")); }

private:
    static QStringList& kept() {
        static QStringList notes;
        return notes;
    }
    static void keep(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text) {
        kept() << text;
    }

    QtMessageHandler before_;
};

class SkinTest : public MaintenanceTest {
protected:
    void maintainIn(const QString& skin, const std::function<void(frmPersonWh&)>& work) {
        screen.person.onForm([&](ui::Form& form) { work(static_cast<frmPersonWh&>(form)); }, "frmPersonWh");
        IUserCtrl host;
        host.setConnection(connection);
        host.setOperationType(4);
        host.setZZtype(1);
        host.setPersonID(personKey);
        host.setSkinPath(skin.toStdString());
        (void)host.ShowPersonWh();
    }

    [[nodiscard]] QString write(const QByteArray& content) const {
        QString path = folder.filePath(QStringLiteral("own.qss"));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly)) throw std::runtime_error("cannot write");
        file.write(content);
        return path;
    }

    /// A pixel of the ground beside the panel's card.
    static QColor groundPixel() {
        QWidget& window = windowNamed("frmPersonWh");
        const QImage picture = window.grab().toImage();
        return picture.pixelColor(picture.width() - 4, picture.height() - 4);
    }

    static QColor declared(const QString& path, const char* name) {
        return qt::readSkin(textOf(path)).colours.value(QLatin1String(name));
    }

    const QString light = skinFile("light.qss");
    const QString dark = skinFile("dark.qss");
    QTemporaryDir folder;
};

TEST_F(SkinTest, AnEmptyPathGivesTheLightSkinWithoutANote) {
    const Notes notes;
    maintainIn({}, [&](frmPersonWh&) {
        EXPECT_EQ(declared(light, "ground"), groundPixel());
        EXPECT_EQ(declared(light, "text"), windowNamed("frmPersonWh").palette().color(QPalette::WindowText));
    });
    EXPECT_EQ(QStringList(), Notes::told());
}

TEST_F(SkinTest, TheLightSkinCarriedInsideIsTheFile) {
    EXPECT_EQ(qt::Skin(textOf(light)).colours().accent, qt::Skin::light().colours().accent);
    EXPECT_TRUE(qt::Skin::light().faults().isEmpty());
    // Laid over itself its rules come twice.
    const QString once = qt::Skin::light().sheet();
    EXPECT_EQ(once + once, qt::Skin(textOf(light)).sheet());
}

TEST_F(SkinTest, AMissingFileIsToldByNameAndTheLightSkinIsWorn) {
    const QString missing = folder.filePath(QStringLiteral("没有.qss"));
    const Notes notes;
    bool opened = false;
    maintainIn(missing, [&](frmPersonWh&) {
        opened = true;
        EXPECT_EQ(declared(light, "ground"), groundPixel());
    });
    EXPECT_TRUE(opened);
    ASSERT_EQ(1, Notes::told().size());
    EXPECT_EQ(QStringLiteral("Quillmere: no skin can be read from ") + missing, Notes::told().front());
}

TEST_F(SkinTest, WhatIsNoTextIsToldAndTheLightSkinIsWorn) {
    for (const QString& path : {folder.path(), write(QByteArray("\xFF\xFE\x00 { }", 8))}) {
        const Notes notes;
        EXPECT_EQ(qt::Skin::light().sheet(), qt::Skin::fromFile(path.toStdString()).sheet());
        ASSERT_EQ(1, Notes::told().size());
        EXPECT_TRUE(Notes::told().front().endsWith(path));
    }
}

TEST_F(SkinTest, TheDarkSkinIsWornByTheWindowAndItsParts) {
    const Notes notes;
    maintainIn(dark, [&](frmPersonWh&) {
        const QPalette colours = windowNamed("frmPersonWh").palette();
        EXPECT_EQ(declared(dark, "ground"), groundPixel());
        EXPECT_EQ(declared(dark, "ground"), colours.color(QPalette::Window));
        EXPECT_EQ(declared(dark, "text"), colours.color(QPalette::Text));
        EXPECT_EQ(declared(dark, "accent"), colours.color(QPalette::Highlight));
        EXPECT_EQ(declared(dark, "disabledText"), colours.color(QPalette::Disabled, QPalette::Text));
        EXPECT_EQ(declared(dark, "text"), widgetNamed("A01_A0101_v").palette().color(QPalette::Text));
        const auto& save = widgetNamed<QToolButton>("TbMain_Save");
        const QImage icon = save.icon().pixmap(QSize(18, 18), 1.0).toImage();
        const QColor ink = declared(dark, "icon");
        bool inked = false;
        for (int y = 0; y < icon.height(); ++y) {
            for (int x = 0; x < icon.width(); ++x)
                inked = inked || icon.pixelColor(x, y) == ink;
        }
        EXPECT_TRUE(inked);
    });
    EXPECT_EQ(QStringList(), Notes::told());
}

TEST_F(SkinTest, DialogsOfADarkRunAreDark) {
    maintainIn(dark, [&](frmPersonWh&) {
        screen.person.onForm(
            [&](ui::Form&) {
                QWidget& dialog = windowNamed("fmGrpCod");
                const QImage picture = dialog.grab().toImage();
                EXPECT_EQ(declared(dark, "card"), picture.pixelColor(4, 4));
            },
            "fmGrpCod");
        doubleClickOn(widgetNamed("A01_A0107_v"));
    });
}

TEST_F(SkinTest, AWindowFitsASmallScreenAndItsPanelFollows) {
    maintain([&](frmPersonWh&) {
        QWidget& window = windowNamed("frmPersonWh");
        EXPECT_TRUE(window.screen()->availableGeometry().contains(window.geometry()));
        for (const QSize& size : {QSize(683, 384), QSize(1366, 768), QSize(1280, 720)}) {
            window.resize(size);
            settle();
            EXPECT_EQ(size, window.size());
            const QWidget& area = widgetNamed("frmCtrl");
            EXPECT_EQ(size.width(), area.mapTo(&window, QPoint(area.width(), 0)).x());
            EXPECT_EQ(size.height(), area.mapTo(&window, QPoint(0, area.height())).y());
        }
    });
}

TEST_F(SkinTest, ThePictureOfAButtonIsSharpAtEveryScaleAndPaleWhenDisabled) {
    const QIcon icon = qt::icons::icon(qt::icons::Glyph::Save);
    for (const double scale : {1.0, 1.5, 2.0}) {
        const QImage drawn = icon.pixmap(QSize(18, 18), scale).toImage();
        EXPECT_EQ(QSize(18, 18) * scale, drawn.size());
        // The upright line at the left covers its pixels wholly.
        const int middle = drawn.height() * 2 / 3;
        int strongest = 0;
        for (int x = 0; x < drawn.width() / 3; ++x)
            strongest = std::max(strongest, drawn.pixelColor(x, middle).alpha());
        EXPECT_EQ(255, strongest) << scale;
    }
    const QImage pale = icon.pixmap(QSize(18, 18), 1.0, QIcon::Disabled).toImage();
    EXPECT_NE(icon.pixmap(QSize(18, 18), 1.0).toImage(), pale);
}

TEST_F(SkinTest, EachButtonAndEachGroupHasItsOwnPicture) {
    maintain([&](frmPersonWh&) {
        const QWidget& window = windowNamed("frmPersonWh");
        std::vector<QImage> seen;
        const auto look = [&](const QAbstractButton& button) {
            const QImage drawn = button.icon().pixmap(QSize(18, 18), 1.0).toImage();
            EXPECT_FALSE(drawn.isNull());
            EXPECT_EQ(0, std::count(seen.begin(), seen.end(), drawn)) << button.objectName().toStdString();
            seen.push_back(drawn);
        };
        for (const auto* button : window.findChildren<QToolButton*>()) {
            if (button->objectName().startsWith(QStringLiteral("TbMain_"))) look(*button);
        }
        for (const auto* button : window.findChildren<QPushButton*>()) {
            if (button->property("role") == "menuGroup") look(*button);
        }
        EXPECT_EQ(10U, seen.size());
    });
}

TEST_F(SkinTest, AnotherRunWearsAnotherSkin) {
    maintainIn(dark, [&](frmPersonWh&) { EXPECT_EQ(declared(dark, "ground"), groundPixel()); });
    maintainIn({}, [&](frmPersonWh&) { EXPECT_EQ(declared(light, "ground"), groundPixel()); });
    maintainIn(dark, [&](frmPersonWh&) { EXPECT_EQ(declared(dark, "ground"), groundPixel()); });
    EXPECT_EQ(declared(light, "ground"), qt::style::colours().ground);
}

TEST_F(SkinTest, TheHostsOwnWidgetsKeepTheirLook) {
    QWidget hosts;
    hosts.setWindowModality(Qt::NonModal);
    QPushButton button(QStringLiteral("主程序"), &hosts);
    hosts.show();
    settle();
    const QPalette palette = button.palette();
    const QImage inFront = hosts.grab().toImage();
    QImage behind;
    maintainIn({}, [&](frmPersonWh&) { behind = hosts.grab().toImage(); });
    maintainIn(dark, [&](frmPersonWh&) {
        EXPECT_EQ(behind, hosts.grab().toImage());
        EXPECT_EQ(palette, button.palette());
        EXPECT_EQ(QString(), qApp->styleSheet());
    });
    hosts.activateWindow();
    settle();
    EXPECT_EQ(inFront, hosts.grab().toImage());
}

TEST_F(SkinTest, ASkinThatDeclaresLittleHasTheRestFromTheLightOne) {
    const qt::Skin skin(QStringLiteral("@accent: #AA0000;\nQLabel { color: @accent; margin: 1px; }"));
    EXPECT_EQ(QColor(0xAA, 0, 0), skin.colours().accent);
    EXPECT_EQ(qt::Skin::light().colours().text, skin.colours().text);
    EXPECT_TRUE(skin.sheet().contains(QStringLiteral("QLabel { color: #aa0000; margin: 1px; }")));
    EXPECT_FALSE(skin.sheet().contains(u'@'));
    EXPECT_TRUE(skin.faults().isEmpty());
}

} // namespace

} // namespace quillmere::test
