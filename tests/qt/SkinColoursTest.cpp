#include "adapters/qt/Skin.h"
#include "adapters/qt/SkinText.h"
#include "qt/SkinFiles.h"

#include <gtest/gtest.h>

#include <QColor>

#include <algorithm>
#include <cmath>

namespace quillmere::test {

namespace {

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
