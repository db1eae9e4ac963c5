#include "register/SearchThread.h"

#include "platform/data/Connection.h"

#include <QMetaObject>

#include <chrono>
#include <utility>

namespace quillmere::host {

namespace {

using Clock = std::chrono::steady_clock;

/// A first screenful is told at once, the rest now and then.
constexpr std::size_t firstScreenful = 100;
constexpr auto betweenNews = std::chrono::milliseconds(100);

/// Gathers what is found until it is worth telling.
class Gathering {
public:
    void add(SearchStep step) {
        permille_ = step.permille;
        keys_.insert(keys_.end(), step.keys.begin(), step.keys.end());
    }

    [[nodiscard]] bool isDue() const {
        return (!told_ && keys_.size() >= firstScreenful) || Clock::now() - last_ >= betweenNews;
    }

    [[nodiscard]] SearchNews take() {
        told_ = true;
        last_ = Clock::now();
        return {std::exchange(keys_, {}), permille_, false, nullptr};
    }

private:
    std::vector<RecordKey> keys_;
    int permille_ = 0;
    bool told_ = false;
    Clock::time_point last_ = Clock::now();
};

} // namespace

SearchThread::SearchThread(OpenConnection open, Hear hear)
    : open_(std::move(open)), hear_(std::move(hear)), thread_([this] { work(); }) {}

SearchThread::~SearchThread() {
    {
        const std::scoped_lock lock(mutex_);
        ending_ = true;
        ++newest_;
    }
    arrived_.notify_one();
    thread_.join();
}

void SearchThread::start(const Query& query) {
    running_ = true;
    {
        const std::scoped_lock lock(mutex_);
        next_ = Order{query, ++newest_};
    }
    arrived_.notify_one();
}

void SearchThread::cancel() {
    running_ = false;
    const std::scoped_lock lock(mutex_);
    ++newest_;
    next_.reset();
}

void SearchThread::work() {
    while (true) {
        Order order;
        {
            std::unique_lock lock(mutex_);
            arrived_.wait(lock, [this] { return ending_ || next_; });
            if (ending_) return;
            order = *std::exchange(next_, std::nullopt);
        }
        carryOut(order);
    }
}

void SearchThread::carryOut(const Order& order) {
    Gathering gathering;
    std::exception_ptr failure;
    try {
        if (!connection_) connection_ = open_();
        const bool ended = search(*connection_, order.query, [&](SearchStep step) {
            gathering.add(std::move(step));
            if (gathering.isDue()) tell(order.number, gathering.take());
            return isWanted(order.number);
        });
        if (!ended) return;
    } catch (...) {
        failure = std::current_exception();
    }
    SearchNews last = gathering.take();
    last.done = true;
    last.failure = failure;
    tell(order.number, std::move(last));
}

void SearchThread::tell(int number, SearchNews news) {
    QMetaObject::invokeMethod(
        receiver_.get(),
        [this, number, told = std::move(news)] {
            // A newer search may have been started while this was on its way.
            if (!isWanted(number)) return;
            if (told.done) running_ = false;
            hear_(told);
        },
        Qt::QueuedConnection);
}

} // namespace quillmere::host
