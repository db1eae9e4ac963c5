#pragma once

#include "component/automation/Automation.h"

namespace quillmere::component {

constexpr GUID userCtrlInterfaceId{
    0xCA155217, 0x492C, 0x4734, {0xA1, 0x40, 0x81, 0xF7, 0x63, 0x2A, 0x70, 0x97}};

/// `_IUserCtrl`, the default interface of the entry object, for hosts that call by interface. The order of
/// its functions is fixed for good. Texts that come out are the caller's to free; a failed call leaves
/// its description with the thread (GetErrorInfo).
struct UserCtrlInterface : IDispatch {
    /// Null forgets the connection.
    virtual HRESULT STDMETHODCALLTYPE putref_Connection(IDispatch* connection) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Connection(IDispatch** connection) = 0;
    virtual HRESULT STDMETHODCALLTYPE ShowPersonWh(VARIANT_BOOL* saved) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_OperationType(short value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_OperationType(short* value) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_ZZtype(short value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_ZZtype(short* value) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_PersonType(short value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_PersonType(short* value) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_PhotoPath(BSTR value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_PhotoPath(BSTR* value) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_personID(BSTR value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_personID(BSTR* value) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_UnitCode(BSTR value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_UnitCode(BSTR* value) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_SkinPath(BSTR value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_SkinPath(BSTR* value) = 0;
};

} // namespace quillmere::component
