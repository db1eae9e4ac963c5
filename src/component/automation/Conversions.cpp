#include "component/automation/Conversions.h"

#include "component/automation/NumberText.h"
#include "component/automation/Utf16.h"
#include "platform/Error.h"
#include "platform/convert/Convert.h"
#include "platform/text/Text.h"

#include <cmath>
#include <limits>
#include <optional>
#include <variant>

namespace quillmere::component {

namespace {

[[noreturn]] void mismatch() { throw Error(Failure::TypeMismatch); }

template <class T>
VARIANT held(VARTYPE type, T VARIANT::*place, const void* at) {
    VARIANT value{};
    value.vt = type;
    value.*place = *static_cast<const T*>(at);
    return value;
}

/// The value that a reference refers to, still the caller's.
VARIANT followed(const VARIANT& value) {
    if ((value.vt & VT_BYREF) == 0) return value;
    const void* at = value.byref;
    if (at == nullptr) mismatch();
    switch (const auto type = static_cast<VARTYPE>(value.vt & ~VT_BYREF); type) {
    case VT_VARIANT: {
        const VARIANT& inner = *value.pvarVal;
        // One reference to a value that is a reference itself is all that there is.
        return inner.vt == (VT_BYREF | VT_VARIANT) ? VARIANT{} : followed(inner);
    }
    case VT_I2:
        return held(type, &VARIANT::iVal, at);
    case VT_I4:
        return held(type, &VARIANT::lVal, at);
    case VT_R4:
        return held(type, &VARIANT::fltVal, at);
    case VT_R8:
        return held(type, &VARIANT::dblVal, at);
    case VT_CY:
        return held(type, &VARIANT::cyVal, at);
    case VT_DATE:
        return held(type, &VARIANT::date, at);
    case VT_BSTR:
        return held(type, &VARIANT::bstrVal, at);
    case VT_DISPATCH:
        return held(type, &VARIANT::pdispVal, at);
    case VT_UNKNOWN:
        return held(type, &VARIANT::punkVal, at);
    case VT_BOOL:
        return held(type, &VARIANT::boolVal, at);
    case VT_ERROR:
        return held(type, &VARIANT::scode, at);
    case VT_I1:
        return held(type, &VARIANT::cVal, at);
    case VT_UI1:
        return held(type, &VARIANT::bVal, at);
    case VT_UI2:
        return held(type, &VARIANT::uiVal, at);
    case VT_UI4:
        return held(type, &VARIANT::ulVal, at);
    case VT_I8:
        return held(type, &VARIANT::llVal, at);
    case VT_UI8:
        return held(type, &VARIANT::ullVal, at);
    case VT_INT:
        return held(type, &VARIANT::intVal, at);
    case VT_UINT:
        return held(type, &VARIANT::uintVal, at);
    default:
        mismatch();
    }
}

/// What an object stands for where a plain value is wanted.
Variant defaultMember(IDispatch* object) {
    if (object == nullptr) mismatch();
    DISPPARAMS none{};
    Variant result;
    const HRESULT code = object->Invoke(DISPID_VALUE, IID_NULL, 0, DISPATCH_PROPERTYGET | DISPATCH_METHOD,
                                        &none, result.put(), nullptr, nullptr);
    // An object whose default is an object again could go round in circles.
    if (FAILED(code) || result.type() == VT_DISPATCH || result.type() == VT_UNKNOWN) mismatch();
    return result;
}

/// Calls `use` with the plain value.
template <class Use>
auto plainly(const VARIANT& value, Use use) {
    const VARIANT plain = followed(value);
    if (plain.vt != VT_DISPATCH) return use(plain);
    const Variant standIn = defaultMember(plain.pdispVal);
    return use(followed(standIn.get()));
}

/// An integer of any width, exactly; none for what is no integer. A Boolean is its number.
struct Whole {
    bool negative = false;
    std::uint64_t magnitude = 0;
};

Whole whole(std::int64_t number) {
    const auto bits = static_cast<std::uint64_t>(number);
    return {number < 0, number < 0 ? ~bits + 1 : bits};
}

std::optional<Whole> wholeOf(const VARIANT& value) {
    switch (value.vt) {
    case VT_EMPTY:
        return Whole{};
    case VT_I2:
        return whole(value.iVal);
    case VT_I4:
        return whole(value.lVal);
    case VT_I1:
        return whole(static_cast<signed char>(value.cVal));
    case VT_I8:
        return whole(value.llVal);
    case VT_INT:
        return whole(value.intVal);
    case VT_BOOL:
        return whole(value.boolVal);
    case VT_UI1:
        return Whole{false, value.bVal};
    case VT_UI2:
        return Whole{false, value.uiVal};
    case VT_UI4:
        return Whole{false, value.ulVal};
    case VT_UINT:
        return Whole{false, value.uintVal};
    case VT_UI8:
        return Whole{false, value.ullVal};
    default:
        return std::nullopt;
    }
}

std::optional<double> realOf(const VARIANT& value) {
    constexpr double tenThousandths = 10000;
    switch (value.vt) {
    case VT_R4:
        return value.fltVal;
    case VT_R8:
        return value.dblVal;
    case VT_DATE:
        return value.date;
    case VT_CY:
        return static_cast<double>(value.cyVal.int64) / tenThousandths;
    case VT_BSTR:
        return convert::toDouble(toUtf8(viewOf(value.bstrVal)));
    default:
        return std::nullopt;
    }
}

template <class Integer>
Integer toInteger(const VARIANT& value) {
    if (const auto exact = wholeOf(value)) {
        constexpr auto highest = static_cast<std::uint64_t>(std::numeric_limits<Integer>::max());
        if (exact->magnitude > highest + (exact->negative ? 1 : 0)) throw Error(Failure::Overflow);
        const auto magnitude = static_cast<std::int64_t>(exact->magnitude);
        return static_cast<Integer>(exact->negative ? -magnitude : magnitude);
    }
    const auto real = realOf(value);
    if (!real) mismatch();
    if (std::isnan(*real)) throw Error(Failure::Overflow);
    if constexpr (sizeof(Integer) == sizeof(std::int16_t))
        return convert::toInteger16(*real);
    else
        return convert::toLong(*real);
}

std::string wholeText(const Whole& number) {
    return (number.negative ? "-" : "") + std::to_string(number.magnitude);
}

bool truthOf(const VARIANT& value) {
    if (const auto exact = wholeOf(value)) return exact->magnitude != 0;
    if (value.vt == VT_BSTR) {
        const std::string text = toUtf8(viewOf(value.bstrVal));
        if (text::equalsNoCase(text, "True") || text::equalsNoCase(text, "#TRUE#")) return true;
        if (text::equalsNoCase(text, "False") || text::equalsNoCase(text, "#FALSE#")) return false;
    }
    const auto real = realOf(value);
    if (!real) mismatch();
    return *real != 0;
}

std::string textOf(const VARIANT& value) {
    if (value.vt == VT_EMPTY) return {};
    if (value.vt == VT_BSTR) return toUtf8(viewOf(value.bstrVal));
    if (value.vt == VT_DATE) return dateText(value.date);
    // The nearest number of single precision, not the double behind it.
    if (value.vt == VT_R4) return singleText(value.fltVal);
    if (const auto exact = wholeOf(value)) return wholeText(*exact);
    const auto real = realOf(value);
    if (!real) mismatch();
    return convert::toText(*real);
}

} // namespace

std::int16_t toInteger16(const VARIANT& value) { return plainly(value, toInteger<std::int16_t>); }
std::int32_t toInteger32(const VARIANT& value) { return plainly(value, toInteger<std::int32_t>); }
bool toBoolean(const VARIANT& value) { return plainly(value, truthOf); }
std::string toText(const VARIANT& value) { return plainly(value, textOf); }

bool isText(const VARIANT& value) { return followed(value).vt == VT_BSTR; }

ComPtr<IDispatch> toObject(const VARIANT& value) {
    const VARIANT plain = followed(value);
    if (plain.vt == VT_DISPATCH) return ComPtr<IDispatch>(plain.pdispVal);
    if (plain.vt != VT_UNKNOWN) mismatch();
    if (plain.punkVal == nullptr) return {};
    auto object = ComPtr<IUnknown>(plain.punkVal).query<IDispatch>(IID_IDispatch);
    if (!object) mismatch();
    return object;
}

data::Value toCell(const VARIANT& value) {
    return plainly(value, [](const VARIANT& plain) -> data::Value {
        if (plain.vt == VT_EMPTY || plain.vt == VT_NULL) return data::Null();
        if (plain.vt == VT_BOOL) return plain.boolVal != VARIANT_FALSE;
        if (plain.vt == VT_BSTR || plain.vt == VT_DATE) return textOf(plain);
        if (const auto exact = wholeOf(plain)) {
            if (exact->magnitude > static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max())) {
                return wholeText(*exact);
            }
            const auto magnitude = static_cast<std::int64_t>(exact->magnitude);
            return exact->negative ? -magnitude : magnitude;
        }
        const auto real = realOf(plain);
        if (!real) mismatch();
        return *real;
    });
}

Variant fromCell(const data::Value& cell) {
    struct Give {
        Variant operator()(data::Null /*null*/) const { return Variant::null(); }
        Variant operator()(bool value) const { return Variant::of(value); }
        Variant operator()(std::int64_t value) const {
            if (value == static_cast<std::int32_t>(value)) {
                return Variant::of(static_cast<std::int32_t>(value));
            }
            return Variant::of(static_cast<double>(value));
        }
        Variant operator()(double value) const { return Variant::of(value); }
        Variant operator()(const std::string& value) const { return Variant::of(std::string_view(value)); }
    };
    return std::visit(Give(), cell.raw());
}

} // namespace quillmere::component
