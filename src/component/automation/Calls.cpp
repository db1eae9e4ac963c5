#include "component/automation/Calls.h"

#include "component/automation/Conversions.h"
#include "component/automation/Failures.h"
#include "component/automation/Utf16.h"
#include "platform/Error.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <string>

namespace quillmere::component {

namespace {

/// What a failed call tells, with its texts freed.
struct Exception {
    Exception() = default;
    Exception(const Exception&) = delete;
    Exception& operator=(const Exception&) = delete;
    ~Exception() {
        for (BSTR text : {info.bstrSource, info.bstrDescription, info.bstrHelpFile})
            SysFreeString(text);
    }

    EXCEPINFO info{};
};

[[noreturn]] void raise(HRESULT code, std::string_view member, Exception& exception) {
    EXCEPINFO& info = exception.info;
    if (code == DISP_E_EXCEPTION) {
        if (info.pfnDeferredFillIn != nullptr) info.pfnDeferredFillIn(&info);
        const int number = info.scode != 0 ? numberOf(info.scode) : info.wCode;
        throw Error(static_cast<Failure>(number), toUtf8(viewOf(info.bstrDescription)),
                    toUtf8(viewOf(info.bstrSource)));
    }
    std::array<char, 16> hex{};
    std::snprintf(hex.data(), hex.size(), "%08X", static_cast<unsigned>(code));
    throw Error(static_cast<Failure>(code),
                "调用对象的成员“" + std::string(member) + "”失败（" + hex.data() + "）。", "Quillmere");
}

HRESULT findMember(IDispatch& object, std::string_view name, DISPID& id) {
    WideText wide = toUtf16(name);
    LPOLESTR names = wide.data();
    return object.GetIDsOfNames(IID_NULL, &names, 1, 0, &id);
}

Variant invokeByName(IDispatch& object, std::string_view name, WORD flags, std::vector<Variant> arguments) {
    Exception exception;
    DISPID id = DISPID_UNKNOWN;
    if (const HRESULT code = findMember(object, name, id); FAILED(code)) raise(code, name, exception);
    // The last argument comes first.
    std::vector<VARIANT> reversed(arguments.size());
    std::transform(arguments.rbegin(), arguments.rend(), reversed.begin(),
                   [](const Variant& argument) { return argument.get(); });
    DISPPARAMS parameters{};
    parameters.rgvarg = reversed.data();
    parameters.cArgs = static_cast<UINT>(reversed.size());
    DISPID put = DISPID_PROPERTYPUT;
    if ((flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0) {
        parameters.rgdispidNamedArgs = &put;
        parameters.cNamedArgs = 1;
    }
    Variant result;
    UINT badArgument = 0;
    const HRESULT code =
        object.Invoke(id, IID_NULL, 0, flags, &parameters, result.put(), &exception.info, &badArgument);
    if (FAILED(code)) raise(code, name, exception);
    return result;
}

std::vector<Variant> only(Variant value) {
    std::vector<Variant> arguments;
    arguments.push_back(std::move(value));
    return arguments;
}

} // namespace

bool hasMember(IDispatch& object, std::string_view name) {
    DISPID id = DISPID_UNKNOWN;
    return SUCCEEDED(findMember(object, name, id));
}

Variant call(IDispatch& object, std::string_view name, std::vector<Variant> arguments) {
    return invokeByName(object, name, DISPATCH_METHOD | DISPATCH_PROPERTYGET, std::move(arguments));
}

void put(IDispatch& object, std::string_view name, Variant value) {
    invokeByName(object, name, DISPATCH_PROPERTYPUT, only(std::move(value)));
}

void putReference(IDispatch& object, std::string_view name, Variant value) {
    invokeByName(object, name, DISPATCH_PROPERTYPUTREF, only(std::move(value)));
}

ComPtr<IDispatch> objectOf(const Variant& value) {
    auto object = toObject(value.get());
    if (!object) throw Error(Failure::ObjectNotSet);
    return object;
}

} // namespace quillmere::component
