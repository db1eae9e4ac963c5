#include "adapters/qt/Skin.h"
#include "adapters/qt/Icons.h"
#include "adapters/qt/SkinText.h"
#include "adapters/qt/Style.h"
#include "qt/MaintenanceTest.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QToolButton>

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <vector>

namespace quillmere::test {

namespace {

QString skinFile(const char* name) { return QStringLiteral(QUILLMERE_SKINS "/") + QLatin1String(name); }

QString textOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("cannot read " + path.toStdString());
    return QString::fromUtf8(file.readAll());
}

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

/// The contrast of two colours, from 1 to 21, by the formula of the accessibility guidelines.
double contrast(const QColor& one, const QColor& other) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    const auto luminance = [&](const QColor& colour) {
        return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
               0.0722 * linear(colour.blueF());
    };
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

struct Pair {
    const char* front;
    const char* ground;
};

constexpr Pair readTexts[]{
    {"text", "ground"},
    {"text", "card"},
    {"text", "quiet"},
    {"text", "field"},
    {"text", "coded"},
    {"text", "button"},
    {"text", "buttonHover"},
    {"text", "hover"},
    {"text", "pressed"},
    {"text", "popup"},
    {"strongText", "header"},
    {"captionText", "card"},
    {"mutedText", "ground"},
    {"mutedText", "card"},
    {"mutedText", "quiet"},
    {"mutedText", "field"},
    {"disabledText", "card"},
    {"disabledText", "disabledField"},
    {"disabledText", "quiet"},
    {"disabledText", "codedDisabled"},
    {"disabledText", "ground"},
    {"lockedText", "lockedField"},
    {"nameText", "card"},
    {"accentText", "accent"},
    {"accentText", "accentHover"},
    {"accentText", "accentPressed"},
    {"selectionText", "selection"},
    {"pillText", "pill"},
    {"link", "card"},
    {"link", "pressed"},
    {"menuText", "menu"},
    {"menuText", "menuHover"},
    {"menuItemText", "menuItems"},
    {"menuOpenText", "menuOpen"},
    {"menuOpenText", "menuCurrent"},
    {"menuOpenText", "menuHover"},
};

/// Signs that are no text: what has the keyboard, pictures.
constexpr Pair seenSigns[]{
    {"focus", "card"},          {"focus", "ground"},   {"focus", "field"},    {"focus", "coded"},
    {"primaryFocus", "accent"}, {"icon", "card"},      {"menuIcon", "menu"},  {"menuMark", "menuItems"},
    {"signMark", "warning"},    {"signMark", "error"}, {"signMark", "focus"},
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

TEST(SkinTextTest, DeclarationsAreTakenOutOfTheRules) {
    const qt::SkinText skin = qt::readSkin(QStringLiteral(
        "/* @hidden: #111111; */\n@one: #102030;\n@two :red ;\nA { color: @one; }\n@three:#80FFFFFF;"));
    EXPECT_EQ(QColor(0x10, 0x20, 0x30), skin.colours.value(QStringLiteral("one")));
    EXPECT_EQ(QColor(Qt::red), skin.colours.value(QStringLiteral("two")));
    EXPECT_EQ(QColor(255, 255, 255, 128), skin.colours.value(QStringLiteral("three")));
    EXPECT_EQ(3, skin.colours.size());
    EXPECT_EQ(QStringLiteral("A { color: @one; }"), skin.rules.trimmed());
    EXPECT_TRUE(skin.faults.isEmpty());
}

TEST(SkinTextTest, WhatIsNoColourIsTold) {
    const qt::SkinText skin = qt::readSkin(QStringLiteral("@one: bluish;\n@two: #12;"));
    EXPECT_TRUE(skin.colours.isEmpty());
    EXPECT_EQ(
        QStringList({QStringLiteral("@one is no colour: bluish"), QStringLiteral("@two is no colour: #12")}),
        skin.faults);
}

TEST(SkinTextTest, NamesInRulesAreReplacedWhole) {
    QStringList faults;
    const QMap<QString, QColor> colours{{QStringLiteral("a"), QColor(1, 2, 3)},
                                        {QStringLiteral("ab"), QColor(255, 255, 255, 0)}};
    EXPECT_EQ(QStringLiteral("X { color: #010203; background: #00ffffff; }"),
              qt::withColours(QStringLiteral("X { color: @a; background: @ab; }"), colours, faults));
    EXPECT_TRUE(faults.isEmpty());
}

TEST(SkinTextTest, RulesThatCannotWorkAreLeftOutAndTold) {
    QStringList faults;
    EXPECT_EQ(QString(), qt::withColours(QStringLiteral("X { color: @nowhere; }"), {}, faults));
    EXPECT_EQ(QStringList(QStringLiteral("no colour for @nowhere, rules left out")), faults);
    for (const char* rules : {"X { color: red;", "X color: red; }", "X { Y { } }"}) {
        faults.clear();
        EXPECT_EQ(QString(), qt::withColours(QLatin1String(rules), {}, faults)) << rules;
        EXPECT_EQ(QStringList(QStringLiteral("braces that do not match, rules left out")), faults) << rules;
    }
}

TEST(SkinColoursTest, TextsCanBeReadAndSignsSeen) {
    for (const char* file : {"light.qss", "dark.qss"}) {
        const qt::Skin skin(textOf(skinFile(file)));
        const auto compare = [&](const Pair& pair, double least) {
            const QColor front = skin.colour(QLatin1String(pair.front));
            const QColor ground = skin.colour(QLatin1String(pair.ground));
            ASSERT_TRUE(front.isValid()) << pair.front;
            ASSERT_TRUE(ground.isValid()) << pair.ground;
            EXPECT_GE(contrast(front, ground), least) << file << ": " << pair.front << " on " << pair.ground;
        };
        for (const Pair& pair : readTexts)
            compare(pair, 4.5);
        for (const Pair& pair : seenSigns)
            compare(pair, 3);
    }
}

TEST(SkinColoursTest, TheContrastOfBlackAndWhiteIsTwentyOne) {
    EXPECT_DOUBLE_EQ(21, contrast(Qt::black, Qt::white));
    EXPECT_DOUBLE_EQ(1, contrast(Qt::red, Qt::red));
}

TEST(SkinColoursTest, TheDarkSkinSaysAnewEachColourOfTheLightOne) {
    const qt::SkinText one = qt::readSkin(textOf(skinFile("light.qss")));
    const qt::SkinText other = qt::readSkin(textOf(skinFile("dark.qss")));
    EXPECT_EQ(one.colours.keys(), other.colours.keys());
    EXPECT_TRUE(other.faults.isEmpty());
}

} // namespace

} // namespace quillmere::test
