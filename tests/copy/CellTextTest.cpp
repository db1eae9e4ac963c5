#include "copy/CellText.h"

#include "platform/Error.h"

#include <gtest/gtest.h>

namespace quillmere::copy {
namespace {

TEST(CellText, IsTheSameForWhatTheEnginesKeepDifferently) {
    struct Row {
        data::Value value;
        Kind kind;
        std::string text;
        std::string literal;
    };
    const Row rows[] = {
        {5.0, Kind::Number, "5", "5"},
        {5, Kind::Number, "5", "5"},
        {2.5, Kind::Number, "2.5", "2.5"},
        {-0.125, Kind::Number, "-0.125", "-0.125"},
        {std::int64_t{9007199254740993}, Kind::Whole, "9007199254740993", "9007199254740993"},
        {true, Kind::Boolean, "true", "true"},
        {1, Kind::Boolean, "true", "true"},
        {0, Kind::Boolean, "false", "false"},
        {"it's", Kind::Text, "it's", "'it''s'"},
        {"", Kind::Text, "", "''"},
        {7, Kind::Text, "7", "'7'"},
        {"x", Kind::Number, "x", "'x'"},
    };
    for (const Row& row : rows) {
        const auto text = cellText(row.value, row.kind);
        EXPECT_EQ(text, row.text);
        EXPECT_EQ(cellLiteral(row.value, row.kind, text), row.literal);
    }
}

TEST(CellText, OfANullIsNone) {
    for (const Kind kind : {Kind::Text, Kind::Boolean, Kind::Whole, Kind::Number}) {
        EXPECT_EQ(cellText(data::Null{}, kind), std::nullopt);
        EXPECT_EQ(cellLiteral(data::Null{}, kind, std::nullopt), "null");
    }
}

TEST(CellText, RefusesWhatIsNoBoolean) {
    for (const data::Value& value : {data::Value(2), data::Value(-1), data::Value("yes")})
        EXPECT_THROW((void)cellText(value, Kind::Boolean), Error) << value.toText();
}

} // namespace
} // namespace quillmere::copy
