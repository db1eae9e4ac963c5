#pragma once

#include "component/automation/ComPtr.h"

#include <cstdint>
#include <string_view>

namespace quillmere::component {

/// A value that clears itself.
class Variant {
public:
    /// Empty.
    Variant() { VariantInit(&value_); }
    Variant(Variant&& other) noexcept : value_(other.release()) {}
    Variant& operator=(Variant&& other) noexcept;
    Variant(const Variant&) = delete;
    Variant& operator=(const Variant&) = delete;
    ~Variant() { VariantClear(&value_); }

    [[nodiscard]] static Variant null();
    [[nodiscard]] static Variant of(std::int16_t value);
    [[nodiscard]] static Variant of(std::int32_t value);
    [[nodiscard]] static Variant of(double value);
    [[nodiscard]] static Variant of(bool value);
    [[nodiscard]] static Variant of(std::string_view utf8);
    // A text literal would otherwise pass for a boolean.
    [[nodiscard]] static Variant of(const char* utf8) { return of(std::string_view(utf8)); }
    /// Shares the object; null is allowed, and is the object variable that is not set.
    [[nodiscard]] static Variant of(IDispatch* object);
    template <class Object>
    [[nodiscard]] static Variant of(const ComPtr<Object>& object) {
        return of(static_cast<IDispatch*>(object.get()));
    }
    /// A copy of a value that stays the caller's. Raises Error for an array.
    [[nodiscard]] static Variant copyOf(const VARIANT& value);

    [[nodiscard]] const VARIANT& get() const { return value_; }
    [[nodiscard]] VARTYPE type() const { return value_.vt; }
    [[nodiscard]] bool isEmpty() const { return value_.vt == VT_EMPTY; }
    /// For a call that gives a value: clears the one held.
    [[nodiscard]] VARIANT* put();
    /// Gives the value away.
    [[nodiscard]] VARIANT release() noexcept;

private:
    VARIANT value_;
};

} // namespace quillmere::component
