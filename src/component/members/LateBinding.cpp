#include "component/members/LateBinding.h"

#include "component/automation/Conversions.h"
#include "component/automation/Failures.h"
#include "component/automation/Utf16.h"
#include "platform/Error.h"
#include "platform/text/Text.h"

#include <optional>

namespace quillmere::component {

namespace {

/// Whose parameter has the number 0: names of parameters are numbers within their member.
constexpr DISPID onlyParameter = 0;
constexpr WORD anyPut = DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF;

Variant converted(const VARIANT& value, Type type) {
    switch (type) {
    case Type::Integer16:
        return Variant::of(toInteger16(value));
    case Type::Integer32:
        return Variant::of(toInteger32(value));
    case Type::Boolean:
        return Variant::of(toBoolean(value));
    case Type::Text:
        return Variant::of(std::string_view(toText(value)));
    case Type::Object:
        return Variant::of(toObject(value));
    case Type::Nothing:
    case Type::Any:
        break;
    }
    return Variant::copyOf(value);
}

bool isLeftOut(const VARIANT& value) { return value.vt == VT_ERROR && value.scode == DISP_E_PARAMNOTFOUND; }

/// The argument in the type of the parameter; a result code when it does not fit.
HRESULT fetchArgument(const DISPPARAMS& given, const Parameter& parameter, Variant& argument,
                      UINT* badArgument) {
    const bool missing = given.cArgs == 0 || isLeftOut(given.rgvarg[0]);
    if (missing && (parameter.optional || parameter.type == Type::Nothing)) return S_OK;
    if (missing) return given.cArgs == 0 ? DISP_E_BADPARAMCOUNT : DISP_E_PARAMNOTOPTIONAL;
    try {
        argument = converted(given.rgvarg[0], parameter.type);
        return S_OK;
    } catch (const Error& error) {
        if (badArgument != nullptr) *badArgument = 0;
        return error.number() == static_cast<int>(Failure::Overflow) ? DISP_E_OVERFLOW : DISP_E_TYPEMISMATCH;
    }
}

/// A value that is put must be named so, and nothing else may be named: one argument needs no name.
HRESULT checkNames(const DISPPARAMS& given, bool isPut) {
    if (isPut) {
        const bool named = given.cNamedArgs == 1 && given.rgdispidNamedArgs[0] == DISPID_PROPERTYPUT;
        // Plain C callers leave the name out.
        return named || given.cNamedArgs == 0 ? S_OK : DISP_E_NONAMEDARGS;
    }
    if (given.cNamedArgs == 0) return S_OK;
    const bool known = given.cNamedArgs == 1 && given.rgdispidNamedArgs[0] == onlyParameter;
    return known ? S_OK : DISP_E_PARAMNOTFOUND;
}

std::optional<std::size_t> findRow(const LateBound& object, DISPID id, WORD flags) {
    for (std::size_t row = 0; row < object.memberCount(); ++row) {
        const Member& member = object.memberAt(row);
        if (member.id == id && (static_cast<WORD>(member.access) & flags) != 0) return row;
    }
    return std::nullopt;
}

HRESULT invokeRow(LateBound& object, std::size_t row, const DISPPARAMS& given, VARIANT* result,
                  UINT* badArgument) {
    const Member& member = object.memberAt(row);
    const UINT most = member.parameter.type == Type::Nothing ? 0 : 1;
    if (given.cArgs > most) return DISP_E_BADPARAMCOUNT;
    const bool isPut = (static_cast<WORD>(member.access) & anyPut) != 0;
    if (const HRESULT code = checkNames(given, isPut); FAILED(code)) return code;
    Variant argument;
    if (const HRESULT code = fetchArgument(given, member.parameter, argument, badArgument); FAILED(code)) {
        return code;
    }
    Variant answer = object.run(row, argument.get());
    if (result != nullptr) *result = answer.release();
    return S_OK;
}

} // namespace

HRESULT idsOfNames(const LateBound& object, LPOLESTR* names, UINT count, DISPID* ids) noexcept {
    if (names == nullptr || ids == nullptr) return E_POINTER;
    if (count == 0) return E_INVALIDARG;
    try {
        for (UINT at = 0; at < count; ++at)
            ids[at] = DISPID_UNKNOWN;
        const std::string wanted = toUtf8(names[0]);
        std::string_view parameter;
        for (std::size_t row = 0; row < object.memberCount(); ++row) {
            const Member& member = object.memberAt(row);
            if (!text::equalsNoCase(member.name, wanted)) continue;
            ids[0] = member.id;
            if (!member.parameter.name.empty()) parameter = member.parameter.name;
        }
        if (ids[0] == DISPID_UNKNOWN) return DISP_E_UNKNOWNNAME;
        bool known = true;
        for (UINT at = 1; at < count; ++at) {
            if (text::equalsNoCase(parameter, toUtf8(names[at])))
                ids[at] = onlyParameter;
            else
                known = false;
        }
        return known ? S_OK : DISP_E_UNKNOWNNAME;
    } catch (...) {
        return currentFailure().code;
    }
}

HRESULT invoke(LateBound& object, DISPID id, WORD flags, DISPPARAMS* parameters, VARIANT* result,
               EXCEPINFO* exception, UINT* badArgument) noexcept {
    if (parameters == nullptr) return E_POINTER;
    if (result != nullptr) VariantInit(result);
    try {
        const auto row = findRow(object, id, flags);
        if (!row) return DISP_E_MEMBERNOTFOUND;
        return invokeRow(object, *row, *parameters, result, badArgument);
    } catch (...) {
        return report(currentFailure(), exception);
    }
}

} // namespace quillmere::component
