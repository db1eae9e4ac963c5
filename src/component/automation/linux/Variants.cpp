#include "component/automation/linux/Functions.h"

namespace {

bool isObject(const VARIANT& value) { return value.vt == VT_DISPATCH || value.vt == VT_UNKNOWN; }

} // namespace

extern "C" {

void VariantInit(VARIANT* value) { *value = {}; }

HRESULT VariantClear(VARIANT* value) {
    // An array belongs to whoever made it: nobody here makes one.
    if ((value->vt & VT_ARRAY) != 0 && (value->vt & VT_BYREF) == 0) return E_NOTIMPL;
    if (value->vt == VT_BSTR) SysFreeString(value->bstrVal);
    if (isObject(*value) && value->punkVal != nullptr) value->punkVal->Release();
    VariantInit(value);
    return S_OK;
}

HRESULT VariantCopy(VARIANT* target, const VARIANT* source) {
    if (target == source) return S_OK;
    if ((source->vt & VT_ARRAY) != 0 && (source->vt & VT_BYREF) == 0) return E_NOTIMPL;
    VARIANT copy = *source;
    if (source->vt == VT_BSTR && source->bstrVal != nullptr) {
        copy.bstrVal = SysAllocStringLen(source->bstrVal, SysStringLen(source->bstrVal));
        if (copy.bstrVal == nullptr) return E_OUTOFMEMORY;
    }
    if (isObject(copy) && copy.punkVal != nullptr) copy.punkVal->AddRef();
    const HRESULT cleared = VariantClear(target);
    if (FAILED(cleared)) {
        VariantClear(&copy);
        return cleared;
    }
    *target = copy;
    return S_OK;
}
}
