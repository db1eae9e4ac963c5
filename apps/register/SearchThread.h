#pragma once

#include "register/RegisterSearch.h"

#include <QObject>

#include <atomic>
#include <condition_variable>
#include <exception>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

namespace quillmere::host {

/// What a running search tells.
struct SearchNews {
    std::vector<RecordKey> keys;
    int permille = 0;
    /// Nothing more will be told of this search.
    bool done = false;
    /// Why it ended early, if it did.
    std::exception_ptr failure;
};

/// Searches on a thread and a connection of its own, so that no window waits. The newest search wins: a
/// search that is started while another runs ends that one, and nothing more is heard of it.
class SearchThread {
public:
    using OpenConnection = std::function<std::shared_ptr<data::Connection>()>;
    using Hear = std::function<void(const SearchNews& news)>;

    /// `open` is called on the search's thread, at the first search. `hear` is called on the thread that
    /// the search thread was made on.
    SearchThread(OpenConnection open, Hear hear);
    SearchThread(const SearchThread&) = delete;
    SearchThread& operator=(const SearchThread&) = delete;
    /// Ends a running search and waits for that.
    ~SearchThread();

    void start(const Query& query);
    /// Nothing more is heard of the search that runs.
    void cancel();
    [[nodiscard]] bool isRunning() const { return running_; }

private:
    struct Order {
        Query query;
        int number = 0;
    };

    void work();
    void carryOut(const Order& order);
    void tell(int number, SearchNews news);
    [[nodiscard]] bool isWanted(int number) const { return number == newest_; }

    OpenConnection open_;
    Hear hear_;
    std::shared_ptr<data::Connection> connection_;
    bool running_ = false;

    std::atomic<int> newest_ = 0;
    std::mutex mutex_;
    std::condition_variable arrived_;
    std::optional<Order> next_;
    bool ending_ = false;

    /// Takes news over to its own thread; what is under way when it goes is dropped.
    std::unique_ptr<QObject> receiver_ = std::make_unique<QObject>();
    std::thread thread_;
};

} // namespace quillmere::host
