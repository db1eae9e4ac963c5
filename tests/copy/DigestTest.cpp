#include "copy/Digest.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <optional>
#include <string>

namespace quillmere::copy {
namespace {

using Text = std::optional<std::string>;
using Rows = std::initializer_list<std::initializer_list<Text>>;

Digest digestOf(Rows rows) {
    Digest digest;
    for (const auto& row : rows) {
        for (const Text& cell : row)
            digest.addCell(cell);
        digest.endRow();
    }
    return digest;
}

TEST(Digest, DoesNotHangOnTheOrderOfRows) {
    EXPECT_EQ(digestOf({{"a", "1"}, {"b", "2"}, {"c", {}}}), digestOf({{"c", {}}, {"a", "1"}, {"b", "2"}}));
}

TEST(Digest, DiffersWhereRowsDiffer) {
    struct Case {
        const char* what;
        Digest one;
        Digest other;
    };
    const Case cases[] = {
        {"a character", digestOf({{"张三"}}), digestOf({{"张四"}})},
        {"its case", digestOf({{"a"}}), digestOf({{"A"}})},
        {"null and the empty text", digestOf({{Text{}}}), digestOf({{""}})},
        {"where a cell ends", digestOf({{"ab", "c"}}), digestOf({{"a", "bc"}})},
        {"cells that changed places", digestOf({{"1", "2"}}), digestOf({{"2", "1"}})},
        {"cells that changed rows", digestOf({{"1", "2"}, {"3", "4"}}), digestOf({{"1", "4"}, {"3", "2"}})},
        {"a row twice", digestOf({{"1"}}), digestOf({{"1"}, {"1"}})},
        {"two rows twice", digestOf({{"1"}, {"1"}, {"2"}}), digestOf({{"1"}, {"2"}, {"2"}})},
    };
    for (const Case& row : cases) {
        EXPECT_NE(row.one.shown(), row.other.shown()) << row.what;
        EXPECT_FALSE(row.one == row.other) << row.what;
    }
}

TEST(Digest, IsSixteenDigits) {
    EXPECT_EQ(digestOf({}).shown(), "0000000000000000");
    EXPECT_EQ(digestOf({{"a"}}).shown().size(), 16U);
    EXPECT_EQ(digestOf({{"a"}, {"b"}}).rows(), 2U);
}

} // namespace
} // namespace quillmere::copy
