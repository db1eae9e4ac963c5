#pragma once

#include "component/automation/Automation.h"
#include "component/automation/Calls.h"
#include "component/automation/Conversions.h"
#include "component/automation/Utf16.h"
#include "component/objects/UserCtrlObject.h"

#include <string>
#include <string_view>
#include <vector>

namespace quillmere::component::test {

/// All that a late-bound call hands back.
struct Answer {
    HRESULT code = S_OK;
    Variant value;
    SCODE scode = 0;
    std::string source;
    std::string description;
    UINT badArgument = 99;
};

[[nodiscard]] inline DISPID idOf(IDispatch& object, std::string_view name) {
    WideText wide = toUtf16(name);
    LPOLESTR names = wide.data();
    DISPID id = DISPID_UNKNOWN;
    object.GetIDsOfNames(IID_NULL, &names, 1, 0, &id);
    return id;
}

[[nodiscard]] inline std::string takeText(BSTR text) {
    std::string result = toUtf8(viewOf(text));
    SysFreeString(text);
    return result;
}

/// One call, with the arguments in their natural order. A put names its value, as the platform's own callers
/// do.
[[nodiscard]] inline Answer invokeId(IDispatch& object, DISPID id, WORD flags,
                                     const std::vector<const VARIANT*>& arguments = {}) {
    std::vector<VARIANT> reversed;
    for (auto at = arguments.rbegin(); at != arguments.rend(); ++at)
        reversed.push_back(**at);
    DISPID named = DISPID_PROPERTYPUT;
    const bool isPut = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
    DISPPARAMS parameters{reversed.data(), isPut ? &named : nullptr, static_cast<UINT>(reversed.size()),
                          isPut ? 1U : 0U};
    Answer answer;
    EXCEPINFO exception{};
    answer.code = object.Invoke(id, IID_NULL, 0, flags, &parameters, answer.value.put(), &exception,
                                &answer.badArgument);
    answer.scode = exception.scode;
    answer.source = takeText(exception.bstrSource);
    answer.description = takeText(exception.bstrDescription);
    SysFreeString(exception.bstrHelpFile);
    return answer;
}

[[nodiscard]] inline Answer invokeName(IDispatch& object, std::string_view name, WORD flags,
                                       const std::vector<const VARIANT*>& arguments = {}) {
    return invokeId(object, idOf(object, name), flags, arguments);
}

[[nodiscard]] inline Answer get(IDispatch& object, std::string_view name) {
    return invokeName(object, name, DISPATCH_PROPERTYGET);
}

[[nodiscard]] inline Answer putValue(IDispatch& object, std::string_view name, const Variant& value,
                                     WORD flags = DISPATCH_PROPERTYPUT) {
    return invokeName(object, name, flags, {&value.get()});
}

[[nodiscard]] inline std::vector<Variant> list(Variant value) {
    std::vector<Variant> arguments;
    arguments.push_back(std::move(value));
    return arguments;
}

} // namespace quillmere::component::test
