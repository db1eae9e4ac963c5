// Calls the server as a host of the platform does that knows nothing but names, and prints what every call
// gave.
//
//     late-bound REGISTER

#include "Parts.h"
#include "Transcript.h"

#include <fcntl.h>
#include <io.h>

#include <iostream>

using namespace quillmere::component;
using namespace quillmere::component::test;

namespace {

bool isLoaded() { return GetModuleHandleW(L"quillmere-server.dll") != nullptr; }

int tryServer(const std::string& registerFile) {
    HRESULT code = S_OK;
    const auto entry = create("Quillmere.IUserCtrl", code);
    line("Quillmere.IUserCtrl", codeText(code));
    if (!entry) return 1;
    tryClasses();
    tryMembers(*entry.get());
    tryWrongCalls(*entry.get());
    tryConnection(*entry.get(), registerFile);
    tryWindow(*entry.get());
    tryInterface(entry);
    tryTypeLibrary();
    return 0;
}

void tryUnloading() {
    heading("unloading");
    line("loaded", isLoaded() ? "yes" : "no");
    CoFreeUnusedLibrariesEx(0, 0);
    line("after the last object", isLoaded() ? "loaded" : "unloaded");
}

int run(const std::string& registerFile) {
    const int outcome = tryServer(registerFile);
    if (outcome == 0) tryUnloading();
    return outcome;
}

} // namespace

int wmain(int argc, wchar_t** argv) {
    // Lines end as they do in the transcript that this is compared with.
    _setmode(_fileno(stdout), _O_BINARY);
    if (argc != 2) {
        std::cerr << "usage: late-bound REGISTER\n";
        return 2;
    }
    if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) return 2;
    const int outcome = run(toUtf8(argv[1]));
    CoUninitialize();
    return outcome;
}
