#include "sample/photos/Portrait.h"

#include "sample/photos/JpegWriter.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <set>
#include <string>
#include <vector>

// The header wants FILE and size_t to be there.
#include <jpeglib.h>

namespace quillmere::sample {
namespace {

constexpr int quality = 85;

bool sameColour(Colour a, Colour b) { return a.red == b.red && a.green == b.green && a.blue == b.blue; }

/// What a decoder makes of the bytes; `warnings` counts what it complains of.
struct Decoded {
    unsigned width = 0;
    unsigned height = 0;
    int components = 0;
    bool progressive = false;
    long warnings = 0;
    std::vector<unsigned char> bytes;
};

Decoded decode(const std::string& file) {
    jpeg_decompress_struct reader{};
    jpeg_error_mgr errors{};
    reader.err = jpeg_std_error(&errors);
    jpeg_create_decompress(&reader);
    jpeg_mem_src(&reader, reinterpret_cast<const unsigned char*>(file.data()),
                 static_cast<unsigned long>(file.size()));
    jpeg_read_header(&reader, TRUE);
    jpeg_start_decompress(&reader);
    Decoded decoded{reader.output_width,
                    reader.output_height,
                    reader.output_components,
                    reader.progressive_mode == TRUE,
                    0,
                    {}};
    const std::size_t row = std::size_t{reader.output_width} * 3;
    decoded.bytes.resize(row * reader.output_height);
    while (reader.output_scanline < reader.output_height) {
        unsigned char* line = decoded.bytes.data() + row * reader.output_scanline;
        jpeg_read_scanlines(&reader, &line, 1);
    }
    jpeg_finish_decompress(&reader);
    decoded.warnings = errors.num_warnings;
    jpeg_destroy_decompress(&reader);
    return decoded;
}

TEST(Portrait, IsABaselineJpegOfTheSizeOfAnIdentityPhoto) {
    const std::string file = jpegOf(drawPortrait({true, 40, 7}), quality);
    EXPECT_EQ(file.substr(0, 3), "\xFF\xD8\xFF");
    EXPECT_EQ(file.substr(file.size() - 2), "\xFF\xD9");
    const Decoded decoded = decode(file);
    EXPECT_EQ(decoded.width, 295U);
    EXPECT_EQ(decoded.height, 413U);
    EXPECT_EQ(decoded.components, 3);
    EXPECT_FALSE(decoded.progressive);
    EXPECT_EQ(decoded.warnings, 0);
}

TEST(Portrait, DecodesToWhatWasDrawn) {
    const Picture drawn = drawPortrait({false, 33, 11});
    const Decoded decoded = decode(jpegOf(drawn, quality));
    ASSERT_EQ(decoded.bytes.size(), drawn.bytes().size());
    double difference = 0;
    for (std::size_t i = 0; i < decoded.bytes.size(); ++i)
        difference += std::abs(decoded.bytes[i] - drawn.bytes()[i]);
    EXPECT_LT(difference / static_cast<double>(decoded.bytes.size()), 3);
}

TEST(Portrait, StaysSmallWhoeverSits) {
    for (std::uint64_t looks = 0; looks < 40; ++looks) {
        const Sitter sitter{looks % 2 == 0, 25 + static_cast<int>(looks), looks};
        EXPECT_LT(jpegOf(drawPortrait(sitter), quality).size(), 40U * 1024) << looks;
    }
}

TEST(Portrait, TheSameSitterLooksTheSameAndOthersDoNot) {
    std::set<std::vector<std::uint8_t>> seen;
    for (std::uint64_t looks = 0; looks < 20; ++looks)
        seen.insert(drawPortrait({true, 40, looks}).bytes());
    EXPECT_EQ(seen.size(), 20U);
    EXPECT_EQ(drawPortrait({true, 40, 3}).bytes(), drawPortrait({true, 40, 3}).bytes());
    EXPECT_NE(drawPortrait({true, 40, 3}).bytes(), drawPortrait({false, 40, 3}).bytes());
}

TEST(Portrait, HasAHeadBeforeAGround) {
    const Picture drawn = drawPortrait({true, 40, 5});
    const Colour corner = drawn.at(2, 2);
    EXPECT_FALSE(sameColour(drawn.at(portraitWidth / 2, 190), corner));
    EXPECT_FALSE(sameColour(drawn.at(portraitWidth / 2, 405), corner));
}

TEST(Picture, ShapesCoverWhatTheySay) {
    const Colour ground{0, 0, 0};
    const Colour red{255, 0, 0};
    Picture picture(40, 40);
    picture.fill(ground, ground);
    picture.paint(ellipse(20, 20, 10, 5), red);
    EXPECT_TRUE(sameColour(picture.at(20, 20), red));
    EXPECT_TRUE(sameColour(picture.at(12, 20), red));
    EXPECT_TRUE(sameColour(picture.at(20, 27), ground));
    picture.fill(ground, ground);
    picture.paint(without(box(5, 5, 35, 35), box(10, 10, 30, 30)), red);
    EXPECT_TRUE(sameColour(picture.at(7, 20), red));
    EXPECT_TRUE(sameColour(picture.at(20, 20), ground));
    EXPECT_TRUE(sameColour(picture.at(2, 2), ground));
    picture.fill(ground, ground);
    picture.paint(triangle(5, 5, 35, 5, 20, 35), red);
    EXPECT_TRUE(sameColour(picture.at(20, 10), red));
    EXPECT_TRUE(sameColour(picture.at(5, 30), ground));
}

TEST(Picture, ShapesBeyondTheEdgeAreCutOff) {
    Picture picture(10, 10);
    picture.paint(ellipse(0, 0, 100, 100), {1, 2, 3});
    picture.paint(box(-50, -50, -20, -20), {9, 9, 9});
    EXPECT_TRUE(sameColour(picture.at(9, 9), {1, 2, 3}));
}

} // namespace
} // namespace quillmere::sample
