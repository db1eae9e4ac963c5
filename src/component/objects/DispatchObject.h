#pragma once

#include "component/automation/Automation.h"
#include "component/members/LateBinding.h"
#include "component/objects/ServerLife.h"

#include <atomic>
#include <span>
#include <vector>

namespace quillmere::component {

/// An object of the server: counted, known by IUnknown, IDispatch and its own interface, its members
/// late-bound by the table `Self::rows()`. `Interface` is IDispatch or derives from it.
template <class Self, class Interface = IDispatch>
class DispatchObject : public Interface, public ISupportErrorInfo, private LateBound {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        if (object == nullptr) return E_POINTER;
        *object = interfaceOf(iid);
        if (*object == nullptr) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0) delete static_cast<Self*>(this);
        return left;
    }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        if (count == nullptr) return E_POINTER;
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT /*index*/, LCID /*locale*/, ITypeInfo** info) override {
        if (info != nullptr) *info = nullptr;
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID /*reserved*/, LPOLESTR* names, UINT count, LCID /*locale*/,
                                            DISPID* ids) override {
        return idsOfNames(*this, names, count, ids);
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID /*reserved*/, LCID /*locale*/, WORD flags,
                                     DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                     UINT* badArgument) override {
        // A member may let go of the last reference to its own object.
        AddRef();
        const HRESULT code = invoke(*this, id, flags, parameters, result, exception, badArgument);
        Release();
        return code;
    }

    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) override {
        return IsEqualGUID(iid, ownInterface()) ? S_OK : S_FALSE;
    }

protected:
    DispatchObject() = default;
    ~DispatchObject() = default;

    /// The interface beside IDispatch; an object without one says IDispatch again.
    [[nodiscard]] virtual REFIID ownInterface() const { return IID_IDispatch; }

private:
    [[nodiscard]] void* interfaceOf(REFIID iid) {
        if (IsEqualGUID(iid, IID_ISupportErrorInfo)) return static_cast<ISupportErrorInfo*>(this);
        const bool own = IsEqualGUID(iid, IID_IUnknown) || IsEqualGUID(iid, IID_IDispatch) ||
                         IsEqualGUID(iid, ownInterface());
        return own ? static_cast<Interface*>(this) : nullptr;
    }

    [[nodiscard]] std::size_t memberCount() const override { return Self::rows().size(); }
    [[nodiscard]] const Member& memberAt(std::size_t row) const override { return Self::rows()[row].member; }
    [[nodiscard]] Variant run(std::size_t row, const VARIANT& argument) override {
        return Self::rows()[row].run(static_cast<Self&>(*this), argument);
    }

    std::atomic<ULONG> references_{1};
    LifeToken life_;
};

/// The members of a class of objects, in the order of the interface.
template <class Self>
[[nodiscard]] std::vector<Member> membersOf() {
    std::vector<Member> members;
    for (const auto& row : Self::rows())
        members.push_back(row.member);
    return members;
}

} // namespace quillmere::component
