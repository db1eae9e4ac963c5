#include "component/loader/CreateObject.h"

#include "component/automation/ErrorText.h"
#include "component/automation/Failures.h"
#include "component/automation/Utf16.h"
#include "component/loader/Loader.h"
#include "platform/Error.h"

namespace quillmere::component {

ComPtr<IDispatch> createObject(std::string_view programId) {
    ComPtr<IDispatch> object;
    const HRESULT code = QuillmereCreateObject(toUtf16(programId).c_str(), IID_IDispatch, object.putVoid());
    if (FAILED(code)) {
        const ErrorText left = takeErrorText();
        throw Error(static_cast<Failure>(numberOf(code)), left.description, left.source);
    }
    return object;
}

void freeUnusedServers() { QuillmereFreeUnusedServers(); }

} // namespace quillmere::component
