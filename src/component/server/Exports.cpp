#include "component/automation/Failures.h"
#include "component/server/ClassFactory.h"
#include "component/server/SelfRegistration.h"

// The standard four of an in-process server, and all that it exports.

#ifndef _WIN32
#define STDAPI extern "C" __attribute__((visibility("default"))) HRESULT
#endif

using namespace quillmere::component;

STDAPI DllGetClassObject(REFCLSID classId, REFIID iid, void** object) {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    const ServerClass* row = findClass(classId);
    if (row == nullptr) return CLASS_E_CLASSNOTAVAILABLE;
    HRESULT code = S_OK;
    const HRESULT made = guarded([&] { code = makeObject<ClassFactory>(*row)->QueryInterface(iid, object); });
    return FAILED(made) ? made : code;
}

STDAPI DllCanUnloadNow() { return canUnload() ? S_OK : S_FALSE; }

STDAPI DllRegisterServer() { return FAILED(guarded(registerServer)) ? SELFREG_E_CLASS : S_OK; }

STDAPI DllUnregisterServer() { return FAILED(guarded(unregisterServer)) ? SELFREG_E_CLASS : S_OK; }
