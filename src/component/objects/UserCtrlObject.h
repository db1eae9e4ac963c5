#pragma once

#include "component/automation/Failures.h"
#include "component/objects/DispatchObject.h"
#include "component/objects/UserCtrlInterface.h"

#include "quillmere/IUserCtrl.h"

#include <cstdint>
#include <string>

namespace quillmere::component {

/// `Quillmere.IUserCtrl`: the entry object, as hosts of the platform see it.
class UserCtrlObject final : public DispatchObject<UserCtrlObject, UserCtrlInterface> {
public:
    /// The table of members, in the order of the interface.
    [[nodiscard]] static std::span<const MemberRow<UserCtrlObject>> rows();

    /// Null forgets the connection; the next reading gives a new one.
    void setConnection(const ComPtr<IDispatch>& connection);
    [[nodiscard]] ComPtr<IDispatch> connection();
    [[nodiscard]] bool show();
    [[nodiscard]] IUserCtrl& entry() { return entry_; }

    HRESULT STDMETHODCALLTYPE putref_Connection(IDispatch* connection) override;
    HRESULT STDMETHODCALLTYPE get_Connection(IDispatch** connection) override;
    HRESULT STDMETHODCALLTYPE ShowPersonWh(VARIANT_BOOL* saved) override;
    HRESULT STDMETHODCALLTYPE put_OperationType(short value) override;
    HRESULT STDMETHODCALLTYPE get_OperationType(short* value) override;
    HRESULT STDMETHODCALLTYPE put_ZZtype(short value) override;
    HRESULT STDMETHODCALLTYPE get_ZZtype(short* value) override;
    HRESULT STDMETHODCALLTYPE put_PersonType(short value) override;
    HRESULT STDMETHODCALLTYPE get_PersonType(short* value) override;
    HRESULT STDMETHODCALLTYPE put_PhotoPath(BSTR value) override;
    HRESULT STDMETHODCALLTYPE get_PhotoPath(BSTR* value) override;
    HRESULT STDMETHODCALLTYPE put_personID(BSTR value) override;
    HRESULT STDMETHODCALLTYPE get_personID(BSTR* value) override;
    HRESULT STDMETHODCALLTYPE put_UnitCode(BSTR value) override;
    HRESULT STDMETHODCALLTYPE get_UnitCode(BSTR* value) override;
    HRESULT STDMETHODCALLTYPE put_SkinPath(BSTR value) override;
    HRESULT STDMETHODCALLTYPE get_SkinPath(BSTR* value) override;

private:
    [[nodiscard]] REFIID ownInterface() const override { return userCtrlInterfaceId; }

    IUserCtrl entry_;
    /// The object that the host gave or was given; `entry_` holds the connection behind it.
    ComPtr<IDispatch> connection_;
};

} // namespace quillmere::component
