#include "Calling.h"

#include "platform/Error.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>

// What becomes of an argument of another type than the member's: a row for each.

namespace quillmere::component::test {
namespace {

const HRESULT mismatch = DISP_E_TYPEMISMATCH;
const HRESULT overflow = DISP_E_OVERFLOW;

template <class T>
Variant raw(VARTYPE type, T VARIANT::*place, T value) {
    Variant result;
    VARIANT* inside = result.put();
    inside->vt = type;
    inside->*place = value;
    return result;
}
Variant currency(std::int64_t tenThousandths) {
    Variant result;
    result.put()->vt = VT_CY;
    const_cast<VARIANT&>(result.get()).cyVal.int64 = tenThousandths;
    return result;
}

struct Row {
    const char* what;
    std::function<Variant()> value;
    /// "-" where the type is refused, "!" where the number does not fit.
    const char* as16;
    const char* asText;
    const char* asBoolean;
};

Variant text(const char* utf8) { return Variant::of(utf8); }

const Row rows[] = {
    {"empty", [] { return Variant(); }, "0", "", "False"},
    {"null", [] { return Variant::null(); }, "-", "-", "-"},
    {"I2", [] { return Variant::of(std::int16_t{-7}); }, "-7", "-7", "True"},
    {"I4", [] { return Variant::of(std::int32_t{32767}); }, "32767", "32767", "True"},
    {"I4 above", [] { return Variant::of(std::int32_t{32768}); }, "!", "32768", "True"},
    {"I4 lowest", [] { return Variant::of(std::int32_t{-32768}); }, "-32768", "-32768", "True"},
    {"I4 below", [] { return Variant::of(std::int32_t{-32769}); }, "!", "-32769", "True"},
    {"I4 zero", [] { return Variant::of(std::int32_t{0}); }, "0", "0", "False"},
    {"I1", [] { return raw(VT_I1, &VARIANT::cVal, static_cast<char>(-1)); }, "-1", "-1", "True"},
    {"UI1", [] { return raw<std::uint8_t>(VT_UI1, &VARIANT::bVal, 255); }, "255", "255", "True"},
    {"UI2", [] { return raw<std::uint16_t>(VT_UI2, &VARIANT::uiVal, 65535); }, "!", "65535", "True"},
    {"UI4", [] { return raw<std::uint32_t>(VT_UI4, &VARIANT::ulVal, 4294967295U); }, "!", "4294967295",
     "True"},
    {"I8", [] { return raw<std::int64_t>(VT_I8, &VARIANT::llVal, -5); }, "-5", "-5", "True"},
    {"I8 lowest", [] { return raw(VT_I8, &VARIANT::llVal, std::numeric_limits<std::int64_t>::min()); }, "!",
     "-9223372036854775808", "True"},
    {"UI8", [] { return raw(VT_UI8, &VARIANT::ullVal, std::numeric_limits<std::uint64_t>::max()); }, "!",
     "18446744073709551615", "True"},
    {"INT", [] { return raw<INT>(VT_INT, &VARIANT::intVal, 9); }, "9", "9", "True"},
    {"UINT", [] { return raw<UINT>(VT_UINT, &VARIANT::uintVal, 9); }, "9", "9", "True"},
    {"R4", [] { return raw(VT_R4, &VARIANT::fltVal, 0.1F); }, "0", "0.1", "True"},
    {"R8 half to even", [] { return Variant::of(2.5); }, "2", "2.5", "True"},
    {"R8 half to even, odd", [] { return Variant::of(3.5); }, "4", "3.5", "True"},
    {"R8 above", [] { return Variant::of(32767.5); }, "!", "32767.5", "True"},
    {"R8 just fits", [] { return Variant::of(32767.4); }, "32767", "32767.4", "True"},
    {"R8 no number", [] { return Variant::of(std::numeric_limits<double>::quiet_NaN()); }, "!", "nan",
     "True"},
    {"CY", [] { return currency(12500); }, "1", "1.25", "True"},
    {"DATE", [] { return raw(VT_DATE, &VARIANT::date, 2.0); }, "2", "1900-01-01", "True"},
    {"DATE with time", [] { return raw(VT_DATE, &VARIANT::date, 36526.5); }, "!", "2000-01-01 12:00:00",
     "True"},
    {"BOOL true", [] { return Variant::of(true); }, "-1", "-1", "True"},
    {"BOOL false", [] { return Variant::of(false); }, "0", "0", "False"},
    {"BOOL of another kind of true", [] { return raw<VARIANT_BOOL>(VT_BOOL, &VARIANT::boolVal, 1); }, "1",
     "1", "True"},
    {"text", [] { return text("甲"); }, "-", "甲", "-"},
    {"text empty", [] { return text(""); }, "-", "", "-"},
    {"text number", [] { return text(" 12 "); }, "12", " 12 ", "True"},
    {"text fraction", [] { return text("1.5"); }, "2", "1.5", "True"},
    {"text zero", [] { return text("0"); }, "0", "0", "False"},
    {"text above", [] { return text("40000"); }, "!", "40000", "True"},
    {"text true", [] { return text("tRUE"); }, "-", "tRUE", "True"},
    {"text false", [] { return text("False"); }, "-", "False", "False"},
    {"no object", [] { return Variant::of(static_cast<IDispatch*>(nullptr)); }, "-", "-", "-"},
    {"error", [] { return raw<SCODE>(VT_ERROR, &VARIANT::scode, E_FAIL); }, "-", "-", "-"},
};

template <class Convert>
std::string outcome(const Row& row, Convert convert) {
    const Variant value = row.value();
    try {
        return convert(value.get());
    } catch (const Error& error) {
        return error.number() == static_cast<int>(Failure::Overflow) ? "!" : "-";
    }
}

TEST(Argument, BecomesANumberOfSixteenBits) {
    for (const Row& row : rows) {
        const auto convert = [](const VARIANT& value) { return std::to_string(toInteger16(value)); };
        EXPECT_EQ(outcome(row, convert), row.as16) << row.what;
    }
}

TEST(Argument, BecomesAText) {
    for (const Row& row : rows) {
        if (std::string_view(row.asText) == "nan") continue;
        EXPECT_EQ(outcome(row, [](const VARIANT& value) { return toText(value); }), row.asText) << row.what;
    }
}

TEST(Argument, BecomesABoolean) {
    for (const Row& row : rows) {
        const auto convert = [](const VARIANT& value) {
            return std::string(toBoolean(value) ? "True" : "False");
        };
        EXPECT_EQ(outcome(row, convert), row.asBoolean) << row.what;
    }
}

TEST(Argument, ReachesTheMemberAsTheRowsSay) {
    for (const Row& row : rows) {
        const auto entry = makeObject<UserCtrlObject>();
        const Answer put = putValue(*entry.get(), "ZZtype", row.value());
        const std::string_view expected = row.as16;
        if (expected == "-") {
            EXPECT_EQ(put.code, mismatch) << row.what;
        } else if (expected == "!") {
            EXPECT_EQ(put.code, overflow) << row.what;
        } else {
            EXPECT_EQ(put.code, S_OK) << row.what;
            EXPECT_EQ(toText(get(*entry.get(), "ZZtype").value.get()), expected) << row.what;
        }
    }
}

TEST(Argument, ByReferenceCountsAsWhatItRefersTo) {
    const auto entry = makeObject<UserCtrlObject>();
    for (const Row& row : rows) {
        const Variant inner = row.value();
        VARIANT reference{};
        reference.vt = VT_BYREF | VT_VARIANT;
        reference.pvarVal = const_cast<VARIANT*>(&inner.get());
        const Answer direct = putValue(*entry.get(), "personID", row.value());
        const Answer followed = invokeName(*entry.get(), "personID", DISPATCH_PROPERTYPUT, {&reference});
        EXPECT_EQ(followed.code, direct.code) << row.what;
    }
    std::int16_t number = 5;
    VARIANT reference{};
    reference.vt = VT_BYREF | VT_I2;
    reference.piVal = &number;
    EXPECT_EQ(toInteger16(reference), 5);
    reference.byref = nullptr;
    EXPECT_EQ(outcome(Row{"", [&] { return Variant(); }, "", "", ""},
                      [&](const VARIANT&) { return std::to_string(toInteger16(reference)); }),
              "-");
}

TEST(Argument, AnArrayIsRefused) {
    VARIANT array{};
    array.vt = VT_ARRAY | VT_I2;
    const auto entry = makeObject<UserCtrlObject>();
    EXPECT_EQ(invokeName(*entry.get(), "ZZtype", DISPATCH_PROPERTYPUT, {&array}).code, mismatch);
    EXPECT_EQ(invokeName(*entry.get(), "personID", DISPATCH_PROPERTYPUT, {&array}).code, mismatch);
}

} // namespace
} // namespace quillmere::component::test
