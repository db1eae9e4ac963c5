#include "Calling.h"

#include "component/automation/ErrorText.h"
#include "component/automation/Failures.h"
#include "component/automation/GuidText.h"
#include "platform/Error.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <functional>
#include <new>
#include <stdexcept>

// The binary shapes at the boundary: texts, values, ids, result codes.

namespace quillmere::component::test {
namespace {

TEST(Shapes, HaveTheSizesOfThePlatform) {
    EXPECT_EQ(sizeof(HRESULT), 4U);
    EXPECT_EQ(sizeof(LONG), 4U);
    EXPECT_EQ(sizeof(ULONG), 4U);
    EXPECT_EQ(sizeof(OLECHAR), 2U);
    EXPECT_EQ(sizeof(GUID), 16U);
    EXPECT_EQ(sizeof(VARIANT), 8 + 2 * sizeof(void*));
    EXPECT_EQ(offsetof(VARIANT, bstrVal), 8U);
    EXPECT_EQ(offsetof(DISPPARAMS, cArgs), 2 * sizeof(void*));
    EXPECT_EQ(sizeof(EXCEPINFO), 8 * sizeof(void*));
}

TEST(Texts, CarryTheirLengthInBytesBeforeThem) {
    const WideText units{u'a', 0, u'b'};
    BSTR text = SysAllocStringLen(units.data(), 3);
    std::uint32_t prefix = 0;
    std::memcpy(&prefix, reinterpret_cast<const char*>(text) - 4, sizeof prefix);
    EXPECT_EQ(prefix, 6U);
    EXPECT_EQ(SysStringLen(text), 3U);
    EXPECT_EQ(SysStringByteLen(text), 6U);
    EXPECT_EQ(viewOf(text), WideView(units));
    EXPECT_EQ(text[3], 0);
    SysFreeString(text);
    EXPECT_EQ(SysStringLen(nullptr), 0U);
    EXPECT_EQ(SysAllocString(nullptr), nullptr);
    SysFreeString(nullptr);
}

TEST(Texts, AnAbsurdLengthIsNoMemory) { EXPECT_EQ(SysAllocStringLen(nullptr, 0xFFFFFFFF), nullptr); }

TEST(Texts, GoToUtf16AndBack) {
    for (const char* text : {"", "abc", "姓名", "𠀀x", "\xEF\xBF\xBD"})
        EXPECT_EQ(toUtf8(toUtf16(text)), text);
    EXPECT_EQ(toUtf16("𠀀"), (WideText{0xD840, 0xDC00}));
    EXPECT_EQ(toUtf8(WideText{0xD840}), "\xEF\xBF\xBD") << "half a character";
    EXPECT_EQ(toUtf8(WideText{0xDC00, 0xD840}), "\xEF\xBF\xBD\xEF\xBF\xBD");
    EXPECT_EQ(toUtf8(WideText{0xD840, u'x'}), "\xEF\xBF\xBDx");
}

TEST(Ids, AreWrittenAndRead) {
    const GUID id{0x01234567, 0x89AB, 0xCDEF, {1, 2, 3, 4, 5, 6, 7, 0xF8}};
    EXPECT_EQ(guidText(id), "01234567-89AB-CDEF-0102-0304050607F8");
    const auto read = parseGuid("01234567-89ab-cdef-0102-0304050607f8");
    ASSERT_TRUE(read);
    EXPECT_TRUE(IsEqualGUID(*read, id));
    for (const char* text : {"", "01234567", "01234567-89AB-CDEF-0102-0304050607F",
                             "01234567x89AB-CDEF-0102-030405"
                             "0607F8",
                             "0123456G-89AB-CDEF-0102-0304050607F8"})
        EXPECT_FALSE(parseGuid(text)) << text;
}

TEST(ResultCodes, CarryTheNumbersOfFailures) {
    for (const Failure failure : {Failure::Overflow, Failure::ObjectClosed, Failure::StatementFailed}) {
        const int number = static_cast<int>(failure);
        EXPECT_EQ(numberOf(resultCodeOf(number)), number);
        EXPECT_TRUE(FAILED(resultCodeOf(number)));
    }
    EXPECT_EQ(resultCodeOf(3704), static_cast<HRESULT>(0x800A0E78));
    EXPECT_EQ(resultCodeOf(-2147217900), static_cast<HRESULT>(0x80040E14));
    EXPECT_EQ(numberOf(E_FAIL), -2147467259);
}

HRESULT outcomeOf(const std::function<void()>& action) { return guarded(action); }

TEST(ResultCodes, StandForEveryKindOfException) {
    EXPECT_EQ(outcomeOf([] {}), S_OK);
    EXPECT_EQ(outcomeOf([] { throw Error(Failure::Overflow); }), static_cast<HRESULT>(0x800A0006));
    EXPECT_EQ(takeErrorText().description, "溢出");
    EXPECT_EQ(outcomeOf([] { throw std::bad_alloc(); }), E_OUTOFMEMORY);
    EXPECT_EQ(outcomeOf([] { throw std::runtime_error("words"); }), E_FAIL);
    EXPECT_EQ(takeErrorText().description, "words");
    EXPECT_EQ(outcomeOf([] { throw 1; }), E_UNEXPECTED);
    EXPECT_EQ(takeErrorText().source, "Quillmere");
}

} // namespace
} // namespace quillmere::component::test
