#pragma once

#include "component/automation/Automation.h"

#include <utility>

namespace quillmere::component {

/// A counted reference to an object.
template <class Interface>
class ComPtr {
public:
    ComPtr() = default;
    /// Adds a reference; null is allowed.
    explicit ComPtr(Interface* object) : object_(object) {
        if (object_ != nullptr) object_->AddRef();
    }
    /// Takes over the reference that the caller has.
    [[nodiscard]] static ComPtr adopt(Interface* object) {
        ComPtr taken;
        taken.object_ = object;
        return taken;
    }
    ComPtr(const ComPtr& other) : ComPtr(other.object_) {}
    ComPtr(ComPtr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    ComPtr& operator=(ComPtr other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    ~ComPtr() {
        if (object_ != nullptr) object_->Release();
    }

    [[nodiscard]] Interface* get() const { return object_; }
    Interface* operator->() const { return object_; }
    explicit operator bool() const { return object_ != nullptr; }
    /// For a call that gives an object: drops the one held, and takes what is written there.
    [[nodiscard]] Interface** put() {
        *this = ComPtr();
        return &object_;
    }
    [[nodiscard]] void** putVoid() { return reinterpret_cast<void**>(put()); }
    /// Gives the reference away.
    [[nodiscard]] Interface* detach() { return std::exchange(object_, nullptr); }

    /// The object by another interface of it; null when it has none.
    template <class Other>
    [[nodiscard]] ComPtr<Other> query(REFIID iid) const {
        ComPtr<Other> other;
        if (object_ != nullptr && FAILED(object_->QueryInterface(iid, other.putVoid()))) return {};
        return other;
    }

private:
    Interface* object_ = nullptr;
};

/// A new object, with the one reference that is returned.
template <class Object, class... Args>
[[nodiscard]] ComPtr<Object> makeObject(Args&&... args) {
    return ComPtr<Object>::adopt(new Object(std::forward<Args>(args)...));
}

} // namespace quillmere::component
