#pragma once

#include "adapters/qt/ModalSession.h"

#include <exception>

namespace quillmere::qt {

/// Runs the body of a slot, an event override or a filter: no failure leaves it, the modal session
/// carries it to the caller of the modal show.
template <class Work>
void guarded(const Work& work) noexcept {
    try {
        work();
    } catch (...) {
        ModalSession::carry(std::current_exception());
    }
}

} // namespace quillmere::qt
