#include "platform/ui/Event.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace quillmere::ui {
namespace {

using Log = std::vector<std::string>;

TEST(Event, RunsHandlersInTheOrderOfSubscribing) {
    Event<> event;
    Log log;
    const Subscription first = event.subscribe([&] { log.push_back("first"); });
    event.connect([&] { log.push_back("second"); });
    const Subscription third = event.subscribe([&] { log.push_back("third"); });
    event.raise();
    EXPECT_EQ(log, (Log{"first", "second", "third"}));
}

TEST(Event, WithoutHandlersRaisesNothing) {
    Event<int&> event;
    int code = 3;
    event.raise(code);
    EXPECT_EQ(code, 3);
}

TEST(Event, HandlersSeeWhatTheOnesBeforeThemWrote) {
    Event<int&> event;
    event.connect([](int& code) { code += 1; });
    event.connect([](int& code) { code *= 10; });
    int code = 1;
    event.raise(code);
    EXPECT_EQ(code, 20);
}

TEST(Event, AHandlerAddedDuringARaiseHearsTheNextOneOnly) {
    Event<> event;
    int late = 0;
    bool added = false;
    event.connect([&] {
        if (!added) event.connect([&] { ++late; });
        added = true;
    });
    event.raise();
    EXPECT_EQ(late, 0);
    event.raise();
    EXPECT_EQ(late, 1);
}

TEST(Event, AHandlerEndedDuringARaiseIsNotCalledAnyMore) {
    Event<> event;
    int heard = 0;
    Subscription second;
    event.connect([&] { second.end(); });
    second = event.subscribe([&] { ++heard; });
    event.raise();
    event.raise();
    EXPECT_EQ(heard, 0);
}

TEST(Event, AHandlerMayEndItselfAndRunsToItsEnd) {
    Event<> event;
    Log log;
    Subscription own;
    own = event.subscribe([&log, &own, text = std::string("kept until the handler is done")] {
        own.end();
        log.push_back(text);
    });
    event.raise();
    event.raise();
    EXPECT_EQ(log, Log{"kept until the handler is done"});
}

TEST(Event, ASubscriptionEndsWithItsScope) {
    Event<> event;
    int heard = 0;
    {
        const Subscription subscription = event.subscribe([&] { ++heard; });
        event.raise();
    }
    event.raise();
    EXPECT_EQ(heard, 1);
}

TEST(Event, ASubscriptionMayOutliveItsEvent) {
    Subscription subscription;
    const auto witness = std::make_shared<int>(0);
    {
        Event<> event;
        subscription = event.subscribe([witness] { ++*witness; });
        event.raise();
    }
    subscription.end();
    EXPECT_EQ(*witness, 1);
    EXPECT_EQ(witness.use_count(), 1);
}

TEST(Event, AMovedSubscriptionGoesOnAndTheOneItReplacesEnds) {
    Event<> event;
    Log log;
    Subscription kept = event.subscribe([&] { log.push_back("replaced"); });
    Subscription other = event.subscribe([&] { log.push_back("moved"); });
    kept = std::move(other);
    event.raise();
    EXPECT_EQ(log, Log{"moved"});
}

TEST(Event, ASubscriptionMovedOntoItselfGoesOn) {
    Event<> event;
    int heard = 0;
    Subscription subscription = event.subscribe([&] { ++heard; });
    Subscription& same = subscription;
    subscription = std::move(same);
    event.raise();
    EXPECT_EQ(heard, 1);
}

TEST(Event, ARaiseInsideARaiseReachesEveryHandler) {
    Event<int> event;
    std::vector<int> heard;
    event.connect([&](int depth) {
        if (depth == 0) event.raise(1);
    });
    event.connect([&](int depth) { heard.push_back(depth); });
    event.raise(0);
    EXPECT_EQ(heard, (std::vector<int>{1, 0}));
}

TEST(Event, AFailureStopsTheRaiseAndLeavesTheHandlersInPlace) {
    Event<> event;
    Log log;
    bool failing = true;
    event.connect([&] {
        log.push_back("first");
        if (failing) throw std::runtime_error("handler");
    });
    event.connect([&] { log.push_back("second"); });
    EXPECT_THROW(event.raise(), std::runtime_error);
    failing = false;
    event.raise();
    EXPECT_EQ(log, (Log{"first", "first", "second"}));
}

} // namespace
} // namespace quillmere::ui
