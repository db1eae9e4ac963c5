#include "cinterface/Handles.h"

#include <cstddef>
#include <deque>
#include <map>
#include <mutex>

namespace quillmere::cinterface {

namespace {

struct Table {
    std::mutex mutex;
    std::map<const void*, std::shared_ptr<Handled>> objects;
    /// A byte for each handle there ever was: its address is the handle.
    std::deque<std::byte> given;
};

Table& table() {
    static Table only;
    return only;
}

} // namespace

void* addHandle(const std::shared_ptr<Handled>& object) {
    Table& all = table();
    const std::lock_guard lock(all.mutex);
    void* handle = &all.given.emplace_back();
    all.objects.emplace(handle, object);
    object->handle = handle;
    return handle;
}

std::shared_ptr<Handled> findHandled(const void* handle) {
    Table& all = table();
    const std::lock_guard lock(all.mutex);
    const auto found = all.objects.find(handle);
    return found == all.objects.end() ? nullptr : found->second;
}

void removeHandle(const void* handle) {
    Table& all = table();
    const std::lock_guard lock(all.mutex);
    all.objects.erase(handle);
}

} // namespace quillmere::cinterface
