#include "panels/frmC04Checks.h"
#include "support/FailureNumber.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

struct CheckCase {
    RowFault fault;
    const char* text;
    bool refused;
};

constexpr CheckCase cases[] = {
    {RowFault::NoDate, "2026年03月", false},
    {RowFault::NoDate, "2026年13月", true},
    {RowFault::NoDate, "2026年3_月", true},
    {RowFault::NoDate, "____年__月", true},
    {RowFault::NoYear, "2026", false},
    {RowFault::NoYear, "____", true},
    {RowFault::NoYear, "26__", true},
    {RowFault::Empty, "", true},
    {RowFault::Empty, "   ", true},
    {RowFault::Empty, " a ", false},
    {RowFault::TooLarge, "99999999", false},
    {RowFault::TooLarge, "99999999.0001", true},
    {RowFault::TooLarge, "99999999.01", true},
    {RowFault::TooLarge, "100000000", true},
    {RowFault::TooLarge, " 12.5 ", false},
    {RowFault::TooLarge, "-100000000", false},
    {RowFault::TooLargeIfFilled, "", false},
    {RowFault::TooLargeIfFilled, "  ", false},
    {RowFault::TooLargeIfFilled, "99999999", false},
    {RowFault::TooLargeIfFilled, "99999999.01", true},
};

TEST(frmC04ChecksTest, EachCheckRefusesTheseTexts) {
    for (const CheckCase& row : cases)
        EXPECT_EQ(hasFault(row.text, row.fault), row.refused)
            << static_cast<int>(row.fault) << " [" << row.text << "]";
}

TEST(frmC04ChecksTest, AnAmountThatIsNoNumberIsATypeMismatch) {
    for (const char* text : {"1.2.3", ".", "abc", "１２"}) {
        EXPECT_EQ(failureOf([&] { (void)hasFault(text, RowFault::TooLarge); }), number(Failure::TypeMismatch))
            << text;
        EXPECT_EQ(failureOf([&] { (void)hasFault(text, RowFault::TooLargeIfFilled); }),
                  number(Failure::TypeMismatch))
            << text;
    }
}

} // namespace
} // namespace quillmere
