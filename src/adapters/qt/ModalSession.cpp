#include "adapters/qt/ModalSession.h"

#include <QDebug>

#include <utility>

namespace quillmere::qt {

namespace {

ModalSession* innermost = nullptr;

void tellUnheard(const std::exception_ptr& failure) noexcept {
    try {
        std::rethrow_exception(failure);
    } catch (const std::exception& error) {
        qCritical("Quillmere: %s", error.what());
    } catch (...) {
        qCritical("Quillmere: a failure without a description");
    }
}

} // namespace

ModalSession::ModalSession() : outer_(std::exchange(innermost, this)) {}

ModalSession::~ModalSession() { innermost = outer_; }

void ModalSession::run() {
    if (!ended_) loop_.exec();
    if (failure_) std::rethrow_exception(std::exchange(failure_, nullptr));
}

void ModalSession::end() {
    ended_ = true;
    loop_.quit();
}

void ModalSession::carry(std::exception_ptr failure) noexcept {
    if (innermost == nullptr) {
        tellUnheard(failure);
        return;
    }
    // The first failure is the cause; what fails on the way out follows from it.
    if (!innermost->failure_) innermost->failure_ = std::move(failure);
    innermost->end();
}

bool ModalSession::isFailing() { return innermost != nullptr && innermost->failure_ != nullptr; }

} // namespace quillmere::qt
