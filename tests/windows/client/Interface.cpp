#include "Parts.h"
#include "Transcript.h"

#include "component/automation/GuidText.h"
#include "component/objects/UserCtrlInterface.h"

// What callers find who know more than names.

namespace quillmere::component::test {

namespace {

std::string leftDescription() {
    ComPtr<IErrorInfo> info;
    if (GetErrorInfo(0, info.put()) != S_OK) return "no description";
    BSTR text = nullptr;
    (void)info->GetDescription(&text);
    return takeText(text);
}

} // namespace

void tryInterface(const ComPtr<IDispatch>& entry) {
    heading("interface");
    const auto early = entry.query<UserCtrlInterface>(userCtrlInterfaceId);
    if (!early) return line("_IUserCtrl", "missing");
    short value = 0;
    line("put ZZtype", codeText(early->put_ZZtype(8)));
    line("get ZZtype", codeText(early->get_ZZtype(&value)));
    line("ZZtype", std::to_string(value));
    VARIANT_BOOL saved = VARIANT_TRUE;
    line("ShowPersonWh", codeText(early->ShowPersonWh(&saved)));
    line("saved", std::to_string(saved));
    line("description", leftDescription());
}

void tryTypeLibrary() {
    heading("type library");
    const auto id = parseGuid("F2217711-9427-46C8-B090-D3292C45D7CB");
    ComPtr<ITypeLib> library;
    const HRESULT code = LoadRegTypeLib(*id, 1, 0, 0, library.put());
    line("loaded", codeText(code));
    if (!library) return;
    BSTR name = nullptr;
    (void)library->GetDocumentation(-1, &name, nullptr, nullptr, nullptr);
    line("name", takeText(name));
    ComPtr<ITypeInfo> entry;
    line("_IUserCtrl", codeText(library->GetTypeInfoOfGuid(*parseGuid("CA155217-492C-4734-A140-81F7632A7097"),
                                                           entry.put())));
}

} // namespace quillmere::component::test
