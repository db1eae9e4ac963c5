#include "platform/ui/Jpeg.h"

#include "support/PhotoFolder.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace quillmere::ui {
namespace {

using namespace std::string_view_literals;

constexpr std::string_view start = "\xFF\xD8"sv;
constexpr std::string_view frame = "\xFF\xC0\x00\x0B\x08\x00\x08\x00\x08\x01\x01\x11\x00"sv;
constexpr std::string_view progressive = "\xFF\xC2\x00\x0B\x08\x00\x08\x00\x08\x01\x01\x11\x00"sv;
constexpr std::string_view comment = "\xFF\xFE\x00\x04hi"sv;
constexpr std::string_view tables = "\xFF\xC4\x00\x05\x01\x02\x03"sv;
constexpr std::string_view scan = "\xFF\xDA\x00\x08\x01\x01\x00\x00\x3F\x00"sv;
constexpr std::string_view data = "\x3F"sv;
constexpr std::string_view end = "\xFF\xD9"sv;

struct Row {
    const char* name;
    bool isJpeg;
    std::vector<std::string_view> parts;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

class JpegTable : public testing::TestWithParam<Row> {};

TEST_P(JpegTable, IsToldByItsStructure) {
    std::string content;
    for (const std::string_view part : GetParam().parts)
        content += part;
    EXPECT_EQ(isJpeg(content), GetParam().isJpeg);
}

INSTANTIATE_TEST_SUITE_P(
    Structures, JpegTable,
    testing::Values(Row{"Baseline", true, {start, frame, scan, data, end}},
                    Row{"Progressive", true, {start, progressive, scan, data, end}},
                    Row{"CommentsAndTables", true, {start, comment, tables, frame, tables, scan, data, end}},
                    Row{"FillBytes", true, {start, "\xFF\xFF"sv, frame, scan, data, end}},
                    Row{"FillBytesBeforeTheStart", false, {"\xFF\xFF"sv, start, frame, scan, data, end}},
                    Row{"SomethingBehindTheEnd", true, {start, frame, scan, data, end, "more"sv}},
                    Row{"BrokenOffWithinTheScan", true, {start, frame, scan, data}}, Row{"Empty", false, {}},
                    Row{"Text", false, {"no image"sv}},
                    Row{"Bitmap", false, {"BM\x36\x00"sv, frame, scan, end}},
                    Row{"PortableGraphics", false, {"\x89PNG\r\n\x1A\n"sv}}, Row{"StartOnly", false, {start}},
                    Row{"OneByte", false, {"\xFF"sv}}, Row{"StartAndEnd", false, {start, end}},
                    Row{"NoFrame", false, {start, tables, scan, end}},
                    Row{"EndBeforeTheScan", false, {start, frame, end, scan}},
                    Row{"NoScan", false, {start, frame, tables}},
                    Row{"BrokenOffBeforeTheScan", false, {start, "\xFF\xC0\x00\x0B\x08"sv}},
                    Row{"BrokenOffInALength", false, {start, "\xFF\xC0\x00"sv}},
                    Row{"ALengthThatHoldsNotEvenItself", false, {start, "\xFF\xC0\x00\x01"sv, scan}},
                    Row{"JunkBetweenTheSegments", false, {start, frame, "junk"sv, scan, end}},
                    Row{"AZeroBehindTheMarkersBeginning", false, {start, frame, "\xFF\x00"sv, scan, end}}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(JpegTest, ATestsPhotoIsOne) {
    constexpr std::size_t size = 5000;
    EXPECT_TRUE(isJpeg(test::jpegOf()));
    EXPECT_TRUE(isJpeg(test::jpegOf(size)));
    EXPECT_EQ(test::jpegOf(size).size(), size);
}

} // namespace
} // namespace quillmere::ui
