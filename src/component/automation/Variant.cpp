#include "component/automation/Variant.h"

#include "component/automation/Utf16.h"
#include "platform/Error.h"

namespace quillmere::component {

Variant& Variant::operator=(Variant&& other) noexcept {
    if (this != &other) {
        VariantClear(&value_);
        value_ = other.release();
    }
    return *this;
}

Variant Variant::null() {
    Variant result;
    result.value_.vt = VT_NULL;
    return result;
}

Variant Variant::of(std::int16_t value) {
    Variant result;
    result.value_.vt = VT_I2;
    result.value_.iVal = value;
    return result;
}

Variant Variant::of(std::int32_t value) {
    Variant result;
    result.value_.vt = VT_I4;
    result.value_.lVal = value;
    return result;
}

Variant Variant::of(double value) {
    Variant result;
    result.value_.vt = VT_R8;
    result.value_.dblVal = value;
    return result;
}

Variant Variant::of(bool value) {
    Variant result;
    result.value_.vt = VT_BOOL;
    result.value_.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
    return result;
}

Variant Variant::of(std::string_view utf8) {
    Variant result;
    result.value_.bstrVal = newText(utf8);
    result.value_.vt = VT_BSTR;
    return result;
}

Variant Variant::of(IDispatch* object) {
    Variant result;
    result.value_.vt = VT_DISPATCH;
    result.value_.pdispVal = ComPtr<IDispatch>(object).detach();
    return result;
}

Variant Variant::copyOf(const VARIANT& value) {
    Variant result;
    // Some headers of the platform forget that the source stays as it is.
    if (FAILED(VariantCopy(&result.value_, const_cast<VARIANT*>(&value)))) throw Error(Failure::TypeMismatch);
    return result;
}

VARIANT* Variant::put() {
    VariantClear(&value_);
    return &value_;
}

VARIANT Variant::release() noexcept {
    const VARIANT given = value_;
    VariantInit(&value_);
    return given;
}

} // namespace quillmere::component
