#pragma once

#include "cinterface/LastFailure.h"
#include "platform/Error.h"

#include <atomic>
#include <memory>

namespace quillmere::cinterface {

/// What stands behind a handle that a host holds.
struct Handled {
    Handled() = default;
    Handled(const Handled&) = delete;
    Handled& operator=(const Handled&) = delete;
    virtual ~Handled() = default;

    LastFailure last;
    /// A window is open that works with it.
    std::atomic<bool> inUse = false;
    /// The handle; null until it has one.
    void* handle = nullptr;
};

/// Gives the object its handle. A handle is never read through, and never given again, so that one that was
/// released, or any other number that a host takes for a handle, is found out.
[[nodiscard]] void* addHandle(const std::shared_ptr<Handled>& object);

/// Null when there is no such handle.
[[nodiscard]] std::shared_ptr<Handled> findHandled(const void* handle);

void removeHandle(const void* handle);

/// Null when there is no such handle, or when it is one of another kind.
template <class Kind>
[[nodiscard]] std::shared_ptr<Kind> find(const void* handle) {
    return std::dynamic_pointer_cast<Kind>(findHandled(handle));
}

/// Runs the work of a call that has no handle to keep its failure with.
template <class Work>
std::int32_t callWithoutHandle(const Work& work) noexcept {
    return keep(lastWithoutHandle(), work);
}

/// Runs the work of a call on what stands behind the handle.
template <class Kind, class Work>
std::int32_t callOn(const void* handle, const Work& work) noexcept {
    const std::shared_ptr<Kind> object = find<Kind>(handle);
    if (!object) {
        return callWithoutHandle([] {
            throw Error(Failure::ObjectNotSet, "句柄无效：为空、已经释放，或不是所要求的一种。", "Quillmere");
        });
    }
    return keep(object->last, [&] { work(*object); });
}

} // namespace quillmere::cinterface
