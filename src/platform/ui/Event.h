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
        std::shared_ptr<bool> taken = std::move(other.live_);
        end();
        live_ = std::move(taken);
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
        const auto slot = std::make_shared<Slot>(std::move(handler));
        slots_.push_back(slot);
        // The flag lives inside the slot, and keeps it.
        return Subscription(std::shared_ptr<bool>(slot, &slot->live));
    }

    /// Listens as long as the event lives: for handlers of the owner of the control.
    void connect(Handler handler) { slots_.push_back(std::make_shared<Slot>(std::move(handler))); }

    void raise(Args... args) {
        if (slots_.empty()) return;
        // A copy, since a handler may subscribe, or end, while the event runs.
        const auto listening = slots_;
        for (const auto& slot : listening) {
            if (slot->live) slot->handler(args...);
        }
        std::erase_if(slots_, [](const auto& slot) { return !slot->live; });
    }

private:
    struct Slot {
        explicit Slot(Handler listener) : handler(std::move(listener)) {}

        Handler handler;
        bool live = true;
    };
    std::vector<std::shared_ptr<Slot>> slots_;
};

} // namespace quillmere::ui
