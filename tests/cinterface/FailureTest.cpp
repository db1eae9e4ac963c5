#include "cinterface/Host.h"

#include <thread>

namespace quillmere::cinterface {
namespace {

using FailureTest = EntryTest;

TEST_F(FailureTest, IsNoneAtFirst) {
    const Told failure = told(entry);
    EXPECT_EQ(0, failure.number);
    EXPECT_EQ("", failure.source);
    EXPECT_EQ("", failure.description);
}

TEST_F(FailureTest, IsThatOfTheLastCallOnTheHandle) {
    ASSERT_EQ(QUILLMERE_OVERFLOW, quillmere_set_ZZtype(entry, 70000));
    EXPECT_EQ(QUILLMERE_OVERFLOW, told(entry).number);
    EXPECT_EQ("Quillmere", told(entry).source);
    EXPECT_EQ("溢出", told(entry).description);
    ASSERT_EQ(QUILLMERE_OK, quillmere_set_ZZtype(entry, 7));
    EXPECT_EQ(0, told(entry).number);
    EXPECT_EQ("", told(entry).source);
    EXPECT_EQ("", told(entry).description);
}

TEST_F(FailureTest, IsKeptApartForEachHandle) {
    quillmere_entry* other = nullptr;
    ASSERT_EQ(QUILLMERE_OK, quillmere_create(&other));
    ASSERT_EQ(QUILLMERE_OVERFLOW, quillmere_set_ZZtype(entry, 70000));
    ASSERT_EQ(QUILLMERE_INVALID_CALL, quillmere_set_personID(other, nullptr));
    EXPECT_EQ(QUILLMERE_OVERFLOW, told(entry).number);
    EXPECT_EQ(QUILLMERE_INVALID_CALL, told(other).number);
    EXPECT_EQ(0, told(nullptr).number);
    EXPECT_EQ(QUILLMERE_OK, quillmere_release(other));
}

TEST_F(FailureTest, MayBeAskedForInParts) {
    ASSERT_EQ(QUILLMERE_OVERFLOW, quillmere_set_ZZtype(entry, 70000));
    std::int32_t number = 0;
    const char* description = nullptr;
    EXPECT_EQ(QUILLMERE_OK, quillmere_failure(entry, nullptr, nullptr, nullptr));
    EXPECT_EQ(QUILLMERE_OK, quillmere_failure(entry, &number, nullptr, nullptr));
    EXPECT_EQ(QUILLMERE_OK, quillmere_failure(entry, nullptr, nullptr, &description));
    EXPECT_EQ(QUILLMERE_OVERFLOW, number);
    EXPECT_STREQ("溢出", description);
}

TEST_F(FailureTest, WithoutAHandleIsKeptForEachThread) {
    ASSERT_EQ(QUILLMERE_INVALID_CALL, quillmere_create(nullptr));
    EXPECT_EQ("参数 entry 为空（NULL）。", told(nullptr).description);
    Told elsewhere{-1, "", ""};
    std::thread([&] { elsewhere = told(nullptr); }).join();
    EXPECT_EQ(0, elsewhere.number);
    EXPECT_EQ(QUILLMERE_INVALID_CALL, told(nullptr).number);
}

TEST_F(FailureTest, OfAskingForTheVersionIsNoPlaceToPutIt) {
    const char* version = nullptr;
    EXPECT_EQ(QUILLMERE_OK, quillmere_version(&version));
    EXPECT_STREQ(QUILLMERE_PROJECT_VERSION, version);
    EXPECT_EQ(QUILLMERE_INVALID_CALL, quillmere_version(nullptr));
    EXPECT_EQ("参数 version 为空（NULL）。", told(nullptr).description);
}

} // namespace
} // namespace quillmere::cinterface
