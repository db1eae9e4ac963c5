#include "component/automation/linux/Functions.h"

#include <atomic>
#include <new>

namespace {

/// What is told of a failure beside its number.
class Description final : public ICreateErrorInfo, public IErrorInfo {
public:
    Description() = default;
    Description(const Description&) = delete;
    Description& operator=(const Description&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        if (object == nullptr) return E_POINTER;
        *object = nullptr;
        if (IsEqualGUID(iid, IID_IErrorInfo)) *object = static_cast<IErrorInfo*>(this);
        if (IsEqualGUID(iid, IID_IUnknown) || IsEqualGUID(iid, IID_ICreateErrorInfo)) {
            *object = static_cast<ICreateErrorInfo*>(this);
        }
        if (*object == nullptr) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }

    HRESULT STDMETHODCALLTYPE SetGUID(REFGUID guid) override {
        guid_ = guid;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE SetSource(LPOLESTR source) override { return keep(source_, source); }
    HRESULT STDMETHODCALLTYPE SetDescription(LPOLESTR description) override {
        return keep(description_, description);
    }
    HRESULT STDMETHODCALLTYPE SetHelpFile(LPOLESTR helpFile) override { return keep(helpFile_, helpFile); }
    HRESULT STDMETHODCALLTYPE SetHelpContext(DWORD helpContext) override {
        helpContext_ = helpContext;
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE GetGUID(GUID* guid) override { return give(guid, guid_); }
    HRESULT STDMETHODCALLTYPE GetSource(BSTR* source) override { return copy(source, source_); }
    HRESULT STDMETHODCALLTYPE GetDescription(BSTR* description) override {
        return copy(description, description_);
    }
    HRESULT STDMETHODCALLTYPE GetHelpFile(BSTR* helpFile) override { return copy(helpFile, helpFile_); }
    HRESULT STDMETHODCALLTYPE GetHelpContext(DWORD* helpContext) override {
        return give(helpContext, helpContext_);
    }

private:
    ~Description() {
        for (BSTR text : {source_, description_, helpFile_})
            SysFreeString(text);
    }

    static HRESULT keep(BSTR& place, const OLECHAR* text) {
        SysFreeString(place);
        place = SysAllocString(text);
        return text != nullptr && place == nullptr ? E_OUTOFMEMORY : S_OK;
    }
    static HRESULT copy(BSTR* target, const OLECHAR* text) {
        if (target == nullptr) return E_POINTER;
        *target = nullptr;
        return keep(*target, text);
    }
    template <class T>
    static HRESULT give(T* target, const T& value) {
        if (target == nullptr) return E_POINTER;
        *target = value;
        return S_OK;
    }

    std::atomic<ULONG> references_{1};
    GUID guid_{};
    BSTR source_ = nullptr;
    BSTR description_ = nullptr;
    BSTR helpFile_ = nullptr;
    DWORD helpContext_ = 0;
};

// A plain pointer: a destructor would keep the library from being unloaded. A description that nobody has
// fetched when its thread ends is lost, as small as it is.
thread_local IErrorInfo* latest = nullptr;

} // namespace

extern "C" {

HRESULT CreateErrorInfo(ICreateErrorInfo** info) {
    if (info == nullptr) return E_POINTER;
    *info = new (std::nothrow) Description;
    return *info == nullptr ? E_OUTOFMEMORY : S_OK;
}

HRESULT SetErrorInfo(ULONG /*reserved*/, IErrorInfo* info) {
    if (info != nullptr) info->AddRef();
    IErrorInfo* before = latest;
    latest = info;
    if (before != nullptr) before->Release();
    return S_OK;
}

HRESULT GetErrorInfo(ULONG /*reserved*/, IErrorInfo** info) {
    if (info == nullptr) return E_POINTER;
    *info = latest;
    latest = nullptr;
    return *info == nullptr ? S_FALSE : S_OK;
}
}
