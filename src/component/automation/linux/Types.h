#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

// The plain types of automation. Their widths are those of the platform, where a long has 32 bits.

using HRESULT = std::int32_t;
using SCODE = std::int32_t;
using LONG = std::int32_t;
using ULONG = std::uint32_t;
using DWORD = std::uint32_t;
using INT = std::int32_t;
using UINT = std::uint32_t;
using BOOL = std::int32_t;
using WORD = std::uint16_t;
using LCID = std::uint32_t;
using DISPID = std::int32_t;
using VARTYPE = std::uint16_t;
using VARIANT_BOOL = std::int16_t;
/// One unit of UTF-16.
using OLECHAR = char16_t;
using LPOLESTR = OLECHAR*;
/// A text from SysAllocString: its length in bytes stands in the four bytes before it.
using BSTR = OLECHAR*;

constexpr VARIANT_BOOL VARIANT_TRUE = -1;
constexpr VARIANT_BOOL VARIANT_FALSE = 0;

struct GUID {
    std::uint32_t Data1;
    std::uint16_t Data2;
    std::uint16_t Data3;
    std::uint8_t Data4[8];
};
using IID = GUID;
using CLSID = GUID;
using REFGUID = const GUID&;
using REFIID = const GUID&;
using REFCLSID = const GUID&;

inline bool IsEqualGUID(REFGUID a, REFGUID b) noexcept { return std::memcmp(&a, &b, sizeof a) == 0; }

constexpr bool FAILED(HRESULT code) { return code < 0; }
constexpr bool SUCCEEDED(HRESULT code) { return code >= 0; }

// Result codes.
constexpr auto S_OK = static_cast<HRESULT>(0);
constexpr auto S_FALSE = static_cast<HRESULT>(1);
constexpr auto E_NOTIMPL = static_cast<HRESULT>(0x80004001);
constexpr auto E_NOINTERFACE = static_cast<HRESULT>(0x80004002);
constexpr auto E_POINTER = static_cast<HRESULT>(0x80004003);
constexpr auto E_FAIL = static_cast<HRESULT>(0x80004005);
constexpr auto E_UNEXPECTED = static_cast<HRESULT>(0x8000FFFF);
constexpr auto E_ACCESSDENIED = static_cast<HRESULT>(0x80070005);
constexpr auto E_OUTOFMEMORY = static_cast<HRESULT>(0x8007000E);
constexpr auto E_INVALIDARG = static_cast<HRESULT>(0x80070057);
constexpr auto DISP_E_MEMBERNOTFOUND = static_cast<HRESULT>(0x80020003);
constexpr auto DISP_E_TYPEMISMATCH = static_cast<HRESULT>(0x80020005);
constexpr auto DISP_E_UNKNOWNNAME = static_cast<HRESULT>(0x80020006);
constexpr auto DISP_E_NONAMEDARGS = static_cast<HRESULT>(0x80020007);
constexpr auto DISP_E_EXCEPTION = static_cast<HRESULT>(0x80020009);
constexpr auto DISP_E_OVERFLOW = static_cast<HRESULT>(0x8002000A);
constexpr auto DISP_E_BADINDEX = static_cast<HRESULT>(0x8002000B);
constexpr auto DISP_E_BADPARAMCOUNT = static_cast<HRESULT>(0x8002000E);
constexpr auto DISP_E_PARAMNOTFOUND = static_cast<HRESULT>(0x80020004);
constexpr auto DISP_E_PARAMNOTOPTIONAL = static_cast<HRESULT>(0x8002000F);
constexpr auto CLASS_E_NOAGGREGATION = static_cast<HRESULT>(0x80040110);
constexpr auto CLASS_E_CLASSNOTAVAILABLE = static_cast<HRESULT>(0x80040111);
constexpr auto REGDB_E_CLASSNOTREG = static_cast<HRESULT>(0x80040154);
constexpr auto SELFREG_E_CLASS = static_cast<HRESULT>(0x80040201);
constexpr auto CO_E_CLASSSTRING = static_cast<HRESULT>(0x800401F3);
constexpr auto CO_E_DLLNOTFOUND = static_cast<HRESULT>(0x800401F8);

// Kinds of a late-bound access; a caller may ask for two at once.
constexpr WORD DISPATCH_METHOD = 1;
constexpr WORD DISPATCH_PROPERTYGET = 2;
constexpr WORD DISPATCH_PROPERTYPUT = 4;
constexpr WORD DISPATCH_PROPERTYPUTREF = 8;

constexpr DISPID DISPID_VALUE = 0;
constexpr DISPID DISPID_UNKNOWN = -1;
constexpr DISPID DISPID_PROPERTYPUT = -3;

enum VARENUM : VARTYPE {
    VT_EMPTY = 0,
    VT_NULL = 1,
    VT_I2 = 2,
    VT_I4 = 3,
    VT_R4 = 4,
    VT_R8 = 5,
    VT_CY = 6,
    VT_DATE = 7,
    VT_BSTR = 8,
    VT_DISPATCH = 9,
    VT_ERROR = 10,
    VT_BOOL = 11,
    VT_VARIANT = 12,
    VT_UNKNOWN = 13,
    VT_I1 = 16,
    VT_UI1 = 17,
    VT_UI2 = 18,
    VT_UI4 = 19,
    VT_I8 = 20,
    VT_UI8 = 21,
    VT_INT = 22,
    VT_UINT = 23,
    VT_ARRAY = 0x2000,
    VT_BYREF = 0x4000,
};
