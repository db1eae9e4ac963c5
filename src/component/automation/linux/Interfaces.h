#pragma once

#include "component/automation/linux/Types.h"

// Values and interfaces of automation. An interface is a table of functions and nothing else: no virtual
// destructor, no type of the standard library.

#define STDMETHODCALLTYPE

struct IUnknown;
struct IDispatch;

/// An amount in ten-thousandths.
union CY {
    std::int64_t int64;
};
/// Days since 30 December 1899.
using DATE = double;

/// A record and what describes it.
struct BRECORD {
    void* pvRecord;
    void* pRecInfo;
};

struct VARIANT {
    VARTYPE vt;
    WORD wReserved1;
    WORD wReserved2;
    WORD wReserved3;
    union {
        std::int64_t llVal;
        LONG lVal;
        std::uint8_t bVal;
        std::int16_t iVal;
        float fltVal;
        double dblVal;
        VARIANT_BOOL boolVal;
        SCODE scode;
        CY cyVal;
        DATE date;
        BSTR bstrVal;
        IUnknown* punkVal;
        IDispatch* pdispVal;
        std::int16_t* piVal;
        LONG* plVal;
        double* pdblVal;
        VARIANT_BOOL* pboolVal;
        BSTR* pbstrVal;
        IDispatch** ppdispVal;
        VARIANT* pvarVal;
        void* byref;
        char cVal;
        std::uint16_t uiVal;
        std::uint32_t ulVal;
        std::uint64_t ullVal;
        INT intVal;
        UINT uintVal;
        BRECORD brecVal;
    };
};
using VARIANTARG = VARIANT;
static_assert(sizeof(VARIANT) == 8 + 2 * sizeof(void*));

/// Arguments of a late-bound call, the last one first.
struct DISPPARAMS {
    VARIANTARG* rgvarg;
    DISPID* rgdispidNamedArgs;
    UINT cArgs;
    UINT cNamedArgs;
};

struct EXCEPINFO {
    WORD wCode;
    WORD wReserved;
    BSTR bstrSource;
    BSTR bstrDescription;
    BSTR bstrHelpFile;
    DWORD dwHelpContext;
    void* pvReserved;
    HRESULT (*pfnDeferredFillIn)(EXCEPINFO*);
    SCODE scode;
};

struct IUnknown {
    virtual HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) = 0;
    virtual ULONG STDMETHODCALLTYPE AddRef() = 0;
    virtual ULONG STDMETHODCALLTYPE Release() = 0;
};

/// A description of types, which no object here gives.
struct ITypeInfo;

struct IDispatch : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                                                    DISPID* ids) = 0;
    virtual HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags,
                                             DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                             UINT* badArgument) = 0;
};

struct IClassFactory : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** object) = 0;
    virtual HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) = 0;
};

/// Whether a failed call by interface left its description with the thread.
struct ISupportErrorInfo : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) = 0;
};

struct IErrorInfo : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE GetGUID(GUID* guid) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetSource(BSTR* source) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetDescription(BSTR* description) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetHelpFile(BSTR* helpFile) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetHelpContext(DWORD* helpContext) = 0;
};

struct ICreateErrorInfo : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE SetGUID(REFGUID guid) = 0;
    virtual HRESULT STDMETHODCALLTYPE SetSource(LPOLESTR source) = 0;
    virtual HRESULT STDMETHODCALLTYPE SetDescription(LPOLESTR description) = 0;
    virtual HRESULT STDMETHODCALLTYPE SetHelpFile(LPOLESTR helpFile) = 0;
    virtual HRESULT STDMETHODCALLTYPE SetHelpContext(DWORD helpContext) = 0;
};

constexpr GUID IID_NULL{};
constexpr GUID IID_IUnknown{0x00000000, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
constexpr GUID IID_IClassFactory{0x00000001, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
constexpr GUID IID_IDispatch{0x00020400, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
constexpr GUID IID_IErrorInfo{0x1CF2B120, 0x547D, 0x101B, {0x8E, 0x65, 0x08, 0x00, 0x2B, 0x2B, 0xD1, 0x19}};
constexpr GUID IID_ICreateErrorInfo{
    0x22F03340, 0x547D, 0x101B, {0x8E, 0x65, 0x08, 0x00, 0x2B, 0x2B, 0xD1, 0x19}};
constexpr GUID IID_ISupportErrorInfo{
    0xDF0B3D60, 0x548F, 0x101B, {0x8E, 0x65, 0x08, 0x00, 0x2B, 0x2B, 0xD1, 0x19}};
