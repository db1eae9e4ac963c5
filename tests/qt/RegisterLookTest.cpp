#include "RealPerson.h"

#include "register/Look.h"

#include <QImage>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace quillmere::host {
namespace {

class RegisterLookTest : public testing::Test {
protected:
    [[nodiscard]] static QImage drawn(const QIcon& icon, int size, QIcon::Mode mode = QIcon::Normal) {
        return icon.pixmap(QSize(size, size), 1.0, mode).toImage();
    }
    [[nodiscard]] static bool isBlank(const QImage& picture) {
        QImage nothing(picture.size(), picture.format());
        nothing.fill(Qt::transparent);
        return picture == nothing;
    }

    test::Screen screen;
};

TEST_F(RegisterLookTest, TheProgramHasAnIconForEachSizeThatDesktopsShow) {
    const QIcon icon = look::programIcon();
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        EXPECT_TRUE(icon.availableSizes().contains(QSize(size, size))) << size;
        EXPECT_FALSE(isBlank(drawn(icon, size))) << size;
    }
}

TEST_F(RegisterLookTest, EachGlyphHasItsOwnDrawingThatIsPaleWhenDisabled) {
    std::vector<QImage> seen;
    for (int glyph = 0; glyph <= static_cast<int>(look::Glyph::Sample); ++glyph) {
        const QIcon icon = look::icon(static_cast<look::Glyph>(glyph));
        const QImage picture = drawn(icon, 18);
        EXPECT_FALSE(isBlank(picture)) << glyph;
        EXPECT_EQ(0, std::count(seen.begin(), seen.end(), picture)) << glyph;
        EXPECT_NE(picture, drawn(icon, 18, QIcon::Disabled)) << glyph;
        seen.push_back(picture);
    }
}

} // namespace
} // namespace quillmere::host
