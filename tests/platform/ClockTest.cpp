#include "platform/convert/Clock.h"

#include <gtest/gtest.h>

#include <ctime>

namespace quillmere::clock {
namespace {

class ClockTest : public testing::Test {
protected:
    void TearDown() override { fix(std::nullopt); }
};

/// Seconds since the epoch of a local time.
std::time_t secondsOf(const convert::DateTime& moment) {
    std::tm parts{};
    parts.tm_year = moment.year - 1900;
    parts.tm_mon = moment.month - 1;
    parts.tm_mday = moment.day;
    parts.tm_hour = moment.hour;
    parts.tm_min = moment.minute;
    parts.tm_sec = moment.second;
    parts.tm_isdst = -1;
    return std::mktime(&parts);
}

TEST_F(ClockTest, AFixedTimeStandsStill) {
    const convert::DateTime moment{2026, 11, 21, 9, 30, 0};
    fix(moment);
    EXPECT_EQ(now(), moment);
    EXPECT_EQ(now(), moment);
}

TEST_F(ClockTest, TheLastFixedTimeCounts) {
    fix(convert::DateTime{2026, 11, 21});
    fix(convert::DateTime{2027, 1, 1});
    EXPECT_EQ(now(), (convert::DateTime{2027, 1, 1}));
}

TEST_F(ClockTest, WithoutAFixedTimeItIsTheMachinesLocalTime) {
    fix(convert::DateTime{1990, 3, 5});
    fix(std::nullopt);
    const std::time_t before = std::time(nullptr);
    const std::time_t seen = secondsOf(now());
    EXPECT_GE(seen, before);
    EXPECT_LE(seen, std::time(nullptr));
}

} // namespace
} // namespace quillmere::clock
