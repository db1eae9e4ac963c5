#include "platform/data/Value.h"

#include "support/FailureNumber.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

namespace quillmere::data {
namespace {

TEST(Value, WithoutAnythingItIsNull) {
    EXPECT_TRUE(Value().isNull());
    EXPECT_EQ(Value(), Value(Null{}));
}

TEST(Value, KnowsItsKind) {
    EXPECT_TRUE(Value(true).isBoolean());
    EXPECT_TRUE(Value(1).isInteger());
    EXPECT_TRUE(Value(std::int64_t{1}).isInteger());
    EXPECT_TRUE(Value(1.5).isReal());
    EXPECT_TRUE(Value("1").isText());
    EXPECT_TRUE(Value(std::string("1")).isText());
}

TEST(Value, EqualNumbersOfDifferentKindsAreDifferentValues) {
    EXPECT_NE(Value(1), Value(1.0));
    EXPECT_NE(Value(1), Value("1"));
    EXPECT_NE(Value(""), Value());
}

TEST(ValueToText, ReadsAsAPersonDoes) {
    EXPECT_EQ(Value(true).toText(), "True");
    EXPECT_EQ(Value(false).toText(), "False");
    EXPECT_EQ(Value(-12).toText(), "-12");
    EXPECT_EQ(Value(std::numeric_limits<std::int64_t>::min()).toText(), "-9223372036854775808");
    EXPECT_EQ(Value(12.5).toText(), "12.5");
    EXPECT_EQ(Value(5.0).toText(), "5");
    EXPECT_EQ(Value("李").toText(), "李");
}

TEST(ValueToText, ANullIsAFailure) {
    EXPECT_EQ(failureOf([] { (void)Value().toText(); }), number(Failure::InvalidUseOfNull));
}

TEST(ValueToText, ANullMayReadAsEmpty) {
    EXPECT_EQ(Value().toTextOrEmpty(), "");
    EXPECT_EQ(Value(5).toTextOrEmpty(), "5");
}

TEST(ValueToBoolean, AnyNumberButNoughtIsTrue) {
    EXPECT_TRUE(Value(true).toBoolean());
    EXPECT_FALSE(Value(false).toBoolean());
    EXPECT_TRUE(Value(-1).toBoolean());
    EXPECT_TRUE(Value(2).toBoolean());
    EXPECT_FALSE(Value(0).toBoolean());
    EXPECT_TRUE(Value(0.1).toBoolean());
    EXPECT_FALSE(Value(0.0).toBoolean());
}

TEST(ValueToBoolean, ATextIsTrueFalseOrANumber) {
    EXPECT_TRUE(Value("True").toBoolean());
    EXPECT_TRUE(Value("TRUE").toBoolean());
    EXPECT_FALSE(Value("false").toBoolean());
    EXPECT_TRUE(Value("-1").toBoolean());
    EXPECT_FALSE(Value("0").toBoolean());
}

TEST(ValueToBoolean, AnyOtherTextIsATypeMismatch) {
    for (const char* text : {"", "yes", "t"})
        EXPECT_EQ(failureOf([&] { (void)Value(text).toBoolean(); }), number(Failure::TypeMismatch)) << text;
}

TEST(ValueToBoolean, ANullIsAFailure) {
    EXPECT_EQ(failureOf([] { (void)Value().toBoolean(); }), number(Failure::InvalidUseOfNull));
}

TEST(ValueToInteger16, ReadsEveryKind) {
    EXPECT_EQ(Value(true).toInteger16(), -1);
    EXPECT_EQ(Value(false).toInteger16(), 0);
    EXPECT_EQ(Value(32767).toInteger16(), 32767);
    EXPECT_EQ(Value(-32768).toInteger16(), -32768);
    EXPECT_EQ(Value(2.5).toInteger16(), 2);
    EXPECT_EQ(Value(3.5).toInteger16(), 4);
    EXPECT_EQ(Value("2000").toInteger16(), 2000);
}

TEST(ValueToInteger16, BeyondTheEdgesOf16BitsOverflows) {
    for (const Value& value : {Value(32768), Value(-32769), Value(32767.5), Value("32768")})
        EXPECT_EQ(failureOf([&] { (void)value.toInteger16(); }), number(Failure::Overflow)) << value.toText();
}

TEST(ValueToLong, ReadsEveryKind) {
    EXPECT_EQ(Value(true).toLong(), -1);
    EXPECT_EQ(Value(false).toLong(), 0);
    EXPECT_EQ(Value(32768).toLong(), 32768);
    EXPECT_EQ(Value(std::int64_t{2147483647}).toLong(), 2147483647);
    EXPECT_EQ(Value(std::int64_t{-2147483648}).toLong(), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(Value(-2.5).toLong(), -2);
    EXPECT_EQ(Value(" 1,000 ").toLong(), 1000);
}

TEST(ValueToLong, BeyondTheEdgesOf32BitsOverflows) {
    for (const Value& value : {Value(std::int64_t{2147483648}), Value(std::int64_t{-2147483649}), Value(1e10),
                               Value("2147483648")})
        EXPECT_EQ(failureOf([&] { (void)value.toLong(); }), number(Failure::Overflow)) << value.toText();
}

TEST(ValueToNumber, ATextThatIsNoNumberIsATypeMismatch) {
    for (const char* text : {"", "abc", "True"}) {
        EXPECT_EQ(failureOf([&] { (void)Value(text).toLong(); }), number(Failure::TypeMismatch)) << text;
        EXPECT_EQ(failureOf([&] { (void)Value(text).toInteger16(); }), number(Failure::TypeMismatch)) << text;
    }
}

TEST(ValueToNumber, ANullIsAFailure) {
    EXPECT_EQ(failureOf([] { (void)Value().toLong(); }), number(Failure::InvalidUseOfNull));
    EXPECT_EQ(failureOf([] { (void)Value().toInteger16(); }), number(Failure::InvalidUseOfNull));
}

} // namespace
} // namespace quillmere::data
