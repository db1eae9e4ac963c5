#include "component/automation/ErrorText.h"

#include "component/automation/ComPtr.h"
#include "component/automation/Utf16.h"

namespace quillmere::component {

namespace {

std::string taken(BSTR text) {
    std::string result = toUtf8(viewOf(text));
    SysFreeString(text);
    return result;
}

} // namespace

ErrorText takeErrorText() {
    ComPtr<IErrorInfo> info;
    if (GetErrorInfo(0, info.put()) != S_OK) return {};
    BSTR source = nullptr;
    BSTR description = nullptr;
    info->GetSource(&source);
    info->GetDescription(&description);
    return {taken(source), taken(description)};
}

} // namespace quillmere::component
