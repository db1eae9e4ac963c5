#include "scenario/Jpeg.h"

#include <gtest/gtest.h>

namespace quillmere::scenario {

namespace {

constexpr std::size_t least = 141;

/// The markers of a JPEG file in order, fill bytes passed over, up to and with the start of the scan;
/// empty when a segment does not end where the next begins.
std::string markersOf(const std::string& file) {
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(file[at]); };
    std::string markers;
    std::size_t at = 2;
    while (at + 3 < file.size()) {
        if (byte(at) != 0xFF) return {};
        while (byte(at + 1) == 0xFF)
            ++at;
        markers += file[at + 1];
        if (byte(at + 1) == 0xDA) return markers;
        at += 2U + (static_cast<std::size_t>(byte(at + 2)) << 8U) + byte(at + 3);
    }
    return {};
}

TEST(Jpeg, HasExactlyTheSizeAsked) {
    for (const std::size_t size : {least, least + 1, least + 3, least + 4, least + 5, std::size_t{2000},
                                   std::size_t{65'536}, std::size_t{65'680}, std::size_t{300'001}}) {
        const auto picture = makeJpeg(size);
        ASSERT_TRUE(picture) << size;
        EXPECT_EQ(picture->size(), size);
    }
}

TEST(Jpeg, IsAWellFormedFileAtEverySize) {
    for (std::size_t size = least; size < least + 40; ++size) {
        const std::string picture = makeJpeg(size).value_or("");
        EXPECT_TRUE(picture.starts_with("\xFF\xD8")) << size;
        EXPECT_TRUE(picture.ends_with("\xFF\xD9")) << size;
        EXPECT_TRUE(markersOf(picture).ends_with("\xDB\xC0\xC4\xC4\xDA")) << size;
    }
    EXPECT_EQ(markersOf(makeJpeg(200'000).value_or("")), "\xFE\xFE\xFE\xFE\xDB\xC0\xC4\xC4\xDA");
}

TEST(Jpeg, ThereIsNoneOfFewerBytesThanAPictureNeeds) {
    EXPECT_FALSE(makeJpeg(least - 1));
    EXPECT_FALSE(makeJpeg(0));
}

} // namespace

} // namespace quillmere::scenario
