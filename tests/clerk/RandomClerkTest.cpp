#include "clerk/RandomClerk.h"
#include "clerk/Settings.h"
#include "support/PhotoFolder.h"

#include <gtest/gtest.h>

#include <iostream>

namespace quillmere::test {
namespace {

class RandomClerkTest : public testing::TestWithParam<std::uint64_t> {
protected:
    /// What all clerks together have done.
    static Outcome& all() {
        static Outcome outcome;
        return outcome;
    }
    static void TearDownTestSuite() {
        std::cout << "panels and dialogs on show: " << all().shown.size() << '\n';
        // Fewer steps may miss one of them.
        constexpr int enoughForAll = 50000;
        if (all().steps < enoughForAll) return;
        for (const char* dialog : {"fmGrpCod", "frmC04", "frmPicturePreview"})
            EXPECT_TRUE(all().shown.contains(dialog)) << dialog << " was never opened";
    }
};

INSTANTIATE_TEST_SUITE_P(Seeds, RandomClerkTest, testing::ValuesIn(clerkSettings().seeds),
                         [](const auto& seed) { return std::to_string(seed.param); });

TEST_P(RandomClerkTest, MeetsNothingThatMustNotBe) {
    const PhotoFolder photos;
    RandomClerk clerk({.seed = GetParam(),
                       .steps = clerkSettings().steps,
                       .trace = clerkSettings().trace,
                       .folder = photos.name()});
    try {
        const Outcome outcome = clerk.work();
        std::cout << outcome.steps << " steps, " << outcome.runs << " runs, " << outcome.saved << " saved, "
                  << outcome.changes << " changes, " << outcome.boxes << " boxes, " << outcome.failures
                  << " failures\n";
        all().steps += outcome.steps;
        all().shown.insert(outcome.shown.begin(), outcome.shown.end());
        // A clerk who gets nothing done has tried nothing.
        EXPECT_GT(outcome.changes, outcome.steps / 100);
    } catch (const std::exception& finding) {
        FAIL() << finding.what() << "\nseed " << GetParam() << ", behind these steps:\n"
               << clerk.diary().last();
    }
}

} // namespace
} // namespace quillmere::test
