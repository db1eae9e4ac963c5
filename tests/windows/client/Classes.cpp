#include "Parts.h"
#include "Transcript.h"

#include <vector>

namespace quillmere::component::test {

namespace {

constexpr std::string_view family = "Quillmere.";

std::vector<std::string> registeredNames() {
    std::vector<std::string> names;
    WideText name(256, L'\0');
    for (DWORD index = 0;; ++index) {
        auto length = static_cast<DWORD>(name.size());
        if (RegEnumKeyExW(HKEY_CLASSES_ROOT, index, name.data(), &length, nullptr, nullptr, nullptr,
                          nullptr) != ERROR_SUCCESS)
            return names;
        std::string found = toUtf8(WideView(name).substr(0, length));
        if (found.starts_with(family)) names.push_back(std::move(found));
    }
}

} // namespace

ComPtr<IDispatch> create(std::string_view programId, HRESULT& code) {
    ComPtr<IDispatch> object;
    CLSID classId{};
    code = CLSIDFromProgID(toUtf16(programId).c_str(), &classId);
    if (SUCCEEDED(code)) {
        code = CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, object.putVoid());
    }
    return object;
}

void tryClasses() {
    heading("classes");
    const auto names = registeredNames();
    std::size_t created = 0;
    for (const std::string& name : names) {
        HRESULT code = S_OK;
        if (create(name, code))
            ++created;
        else
            line(name, codeText(code));
    }
    line("registered", std::to_string(names.size()));
    line("created", std::to_string(created));
    HRESULT code = S_OK;
    (void)create("Quillmere.ctrlNoSuch", code);
    line("Quillmere.ctrlNoSuch", codeText(code));
}

} // namespace quillmere::component::test
