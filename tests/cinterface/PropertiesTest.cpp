#include "cinterface/Host.h"

#include <limits>

namespace quillmere::cinterface {
namespace {

struct NumberProperty {
    const char* name;
    quillmere_status (*set)(quillmere_entry*, std::int64_t);
    quillmere_status (*get)(quillmere_entry*, std::int16_t*);
};

struct TextProperty {
    const char* name;
    quillmere_status (*set)(quillmere_entry*, const char*);
    quillmere_status (*get)(quillmere_entry*, const char**);
};

const NumberProperty numbers[] = {
    {"OperationType", quillmere_set_OperationType, quillmere_get_OperationType},
    {"ZZtype", quillmere_set_ZZtype, quillmere_get_ZZtype},
    {"PersonType", quillmere_set_PersonType, quillmere_get_PersonType},
};

const TextProperty texts[] = {
    {"PhotoPath", quillmere_set_PhotoPath, quillmere_get_PhotoPath},
    {"personID", quillmere_set_personID, quillmere_get_personID},
    {"UnitCode", quillmere_set_UnitCode, quillmere_get_UnitCode},
    {"SkinPath", quillmere_set_SkinPath, quillmere_get_SkinPath},
};

template <class Property>
class PropertyTest : public EntryTest, public testing::WithParamInterface<Property> {};

constexpr auto nameOf = [](const auto& row) { return std::string(row.param.name); };

class NumberPropertyTest : public PropertyTest<NumberProperty> {
protected:
    quillmere_status set(std::int64_t value) { return GetParam().set(entry, value); }
    int get() {
        std::int16_t value = -1;
        EXPECT_EQ(QUILLMERE_OK, GetParam().get(entry, &value));
        return value;
    }
};

class TextPropertyTest : public PropertyTest<TextProperty> {
protected:
    quillmere_status set(const char* value) { return GetParam().set(entry, value); }
    const char* get() {
        const char* value = nullptr;
        EXPECT_EQ(QUILLMERE_OK, GetParam().get(entry, &value));
        return value;
    }
};

INSTANTIATE_TEST_SUITE_P(Of, NumberPropertyTest, testing::ValuesIn(numbers), nameOf);
INSTANTIATE_TEST_SUITE_P(Of, TextPropertyTest, testing::ValuesIn(texts), nameOf);

TEST_P(NumberPropertyTest, IsNoughtAtFirst) { EXPECT_EQ(0, get()); }

TEST_P(NumberPropertyTest, KeepsWhatHasAPlaceIn16Bits) {
    for (const int value : {4, -1, 32767, -32768}) {
        EXPECT_EQ(QUILLMERE_OK, set(value));
        EXPECT_EQ(value, get());
    }
}

TEST_P(NumberPropertyTest, RefusesWhatHasNoPlaceIn16BitsAndKeepsWhatItHad) {
    using Widest = std::numeric_limits<std::int64_t>;
    ASSERT_EQ(QUILLMERE_OK, set(3));
    for (const std::int64_t value :
         {std::int64_t{32768}, std::int64_t{-32769}, std::int64_t{1} << 32, Widest::max(), Widest::min()}) {
        EXPECT_EQ(QUILLMERE_OVERFLOW, set(value));
        EXPECT_EQ("溢出", told(entry).description);
        EXPECT_EQ(3, get());
    }
}

TEST_P(NumberPropertyTest, RefusesNoPlaceToPutIt) {
    EXPECT_EQ(QUILLMERE_INVALID_CALL, GetParam().get(entry, nullptr));
    EXPECT_EQ("参数 value 为空（NULL）。", told(entry).description);
}

TEST_P(TextPropertyTest, IsEmptyAtFirst) { EXPECT_STREQ("", get()); }

TEST_P(TextPropertyTest, KeepsACopyOfWhatItIsGiven) {
    char text[] = "照片/张三 😀";
    EXPECT_EQ(QUILLMERE_OK, set(text));
    text[0] = 'x';
    EXPECT_STREQ("照片/张三 😀", get());
    EXPECT_EQ(QUILLMERE_OK, set(""));
    EXPECT_STREQ("", get());
}

TEST_P(TextPropertyTest, TakesALongText) {
    const std::string text(1'000'000, 'x');
    EXPECT_EQ(QUILLMERE_OK, set(text.c_str()));
    EXPECT_EQ(text, get());
}

TEST_P(TextPropertyTest, TakesItsOwnText) {
    ASSERT_EQ(QUILLMERE_OK, set("a text that is too long to be kept in place"));
    EXPECT_EQ(QUILLMERE_OK, set(get()));
    EXPECT_STREQ("a text that is too long to be kept in place", get());
}

TEST_P(TextPropertyTest, LivesWhileOthersAreSet) {
    ASSERT_EQ(QUILLMERE_OK, set("a text that is too long to be kept in place"));
    const char* kept = get();
    for (const TextProperty& other : texts) {
        if (other.set == GetParam().set) continue;
        EXPECT_EQ(QUILLMERE_OK, other.set(entry, "another"));
    }
    EXPECT_STREQ("a text that is too long to be kept in place", kept);
}

TEST_P(TextPropertyTest, RefusesWhatIsNoUtf8AndKeepsWhatItHad) {
    ASSERT_EQ(QUILLMERE_OK, set("张三"));
    // A lone byte, a cut character, an overlong form, half a pair, beyond Unicode, another encoding.
    for (const char* text :
         {"\xFF", "\xE5\xBC", "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xD5\xC5\xC8\xFD"}) {
        EXPECT_EQ(QUILLMERE_INVALID_CALL, set(text));
        EXPECT_EQ("参数 value 不是 UTF-8 文本。", told(entry).description);
        EXPECT_STREQ("张三", get());
    }
}

TEST_P(TextPropertyTest, RefusesNull) {
    ASSERT_EQ(QUILLMERE_OK, set("张三"));
    EXPECT_EQ(QUILLMERE_INVALID_CALL, set(nullptr));
    EXPECT_EQ("参数 value 为空（NULL）。", told(entry).description);
    EXPECT_STREQ("张三", get());
    EXPECT_EQ(QUILLMERE_INVALID_CALL, GetParam().get(entry, nullptr));
    EXPECT_EQ("参数 value 为空（NULL）。", told(entry).description);
}

} // namespace
} // namespace quillmere::cinterface
