#include "component/server/ClassFactory.h"

#include "component/automation/Failures.h"

namespace quillmere::component {

HRESULT ClassFactory::QueryInterface(REFIID iid, void** object) {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (!IsEqualGUID(iid, IID_IUnknown) && !IsEqualGUID(iid, IID_IClassFactory)) return E_NOINTERFACE;
    *object = static_cast<IClassFactory*>(this);
    AddRef();
    return S_OK;
}

ULONG ClassFactory::Release() {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
}

HRESULT ClassFactory::CreateInstance(IUnknown* outer, REFIID iid, void** object) {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (outer != nullptr) return CLASS_E_NOAGGREGATION;
    HRESULT code = S_OK;
    const HRESULT made = guarded([&] { code = row_.create(row_.name)->QueryInterface(iid, object); });
    return FAILED(made) ? made : code;
}

HRESULT ClassFactory::LockServer(BOOL lock) {
    lockServer(lock != 0);
    return S_OK;
}

} // namespace quillmere::component
