#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace quillmere::ui {

/// Ends a subscription when it goes out of scope.
class Subscription {
public:
    Subscription() = default;
    explicit Subscription(std::shared_ptr<bool> live) : live_(std::move(live)) {}
    Subscription(Subscription&&) noexcept = default;
    Subscription& operator=(Subscription&& other) noexcept {
        end();
        live_ = std::move(other.live_);
        return *this;
    }
    Subscription(const Subscription&) = delete;
    Subscription& operator=(const Subscription&) = delete;
    ~Subscription() { end(); }

    void end() {
        if (live_) *live_ = false;
        live_.reset();
    }

private:
    std::shared_ptr<bool> live_;
};

/// One event of a control: handlers run in the order of subscribing, synchronously, on raise. A
/// handler that a handler adds hears the next raise only; one that it ends is not called any more.
template <class... Args>
class Event {
public:
    using Handler = std::function<void(Args...)>;

    /// Listens until the result goes out of scope.
    [[nodiscard]] Subscription subscribe(Handler handler) {
        auto live = std::make_shared<bool>(true);
        slots_.push_back({live, std::make_shared<Handler>(std::move(handler))});
        return Subscription(live);
    }

    /// Listens as long as the event lives: for handlers of the owner of the control.
    void connect(Handler handler) {
        slots_.push_back({std::make_shared<bool>(true), std::make_shared<Handler>(std::move(handler))});
    }

    void raise(Args... args) {
        if (slots_.empty()) return;
        // A copy, since a handler may subscribe, or end, while the event runs.
        const auto listening = slots_;
        for (const auto& slot : listening) {
            if (*slot.live) (*slot.handler)(args...);
        }
        std::erase_if(slots_, [](const Slot& slot) { return !*slot.live; });
    }

private:
    struct Slot {
        std::shared_ptr<bool> live;
        std::shared_ptr<Handler> handler;
    };
    std::vector<Slot> slots_;
};

} // namespace quillmere::ui
