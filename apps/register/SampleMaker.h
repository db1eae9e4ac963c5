#pragma once

#include <QObject>
#include <QString>

#include <atomic>
#include <functional>
#include <memory>
#include <thread>

namespace quillmere::host {

/// Makes a sample register in the background. It can be called off; no file is left then.
class SampleMaker {
public:
    struct Listener {
        /// What is being made now.
        std::function<void(const QString& part)> working;
        /// The file is there.
        std::function<void(const QString& path)> made;
        /// Why there is none.
        std::function<void(const QString& description)> failed;
    };

    /// All of the listener is called on the thread that makes this object.
    explicit SampleMaker(Listener listener) : listener_(std::move(listener)) {}
    SampleMaker(const SampleMaker&) = delete;
    SampleMaker& operator=(const SampleMaker&) = delete;
    /// Calls off what is being made.
    ~SampleMaker();

    /// An existing file is replaced. One register at a time: what is being made is called off first.
    void start(const QString& path, int persons, int units);
    /// Nothing more is heard.
    void cancel();

private:
    void make(const QString& path, int persons, int units);
    void post(std::function<void()> news);

    Listener listener_;
    std::atomic<bool> cancelled_ = false;
    /// Takes news over to its own thread; what is under way when it goes is dropped.
    std::unique_ptr<QObject> receiver_;
    std::thread thread_;
};

} // namespace quillmere::host
