#pragma once

#include "component/automation/linux/Interfaces.h"

// The functions of automation that host and server share: who allocates a text need not be who frees it, and
// the description of a failure is kept for the thread. They live in the library quillmere-automation.

#define QUILLMERE_SHARED __attribute__((visibility("default")))

extern "C" {

/// A null text is none. Null when memory is short.
QUILLMERE_SHARED BSTR SysAllocString(const OLECHAR* text);
/// `length` in units; the text may hold zeros. A null `text` leaves the units as they are.
QUILLMERE_SHARED BSTR SysAllocStringLen(const OLECHAR* text, UINT length);
QUILLMERE_SHARED void SysFreeString(BSTR text);
/// In units; 0 for a null text.
QUILLMERE_SHARED UINT SysStringLen(BSTR text);
QUILLMERE_SHARED UINT SysStringByteLen(BSTR text);

QUILLMERE_SHARED void VariantInit(VARIANT* value);
/// Frees a text, releases an object; what a value refers to is left alone. An array is E_NOTIMPL.
QUILLMERE_SHARED HRESULT VariantClear(VARIANT* value);
/// Clears `target` first. Copies a text, adds a reference to an object.
QUILLMERE_SHARED HRESULT VariantCopy(VARIANT* target, const VARIANT* source);

QUILLMERE_SHARED HRESULT CreateErrorInfo(ICreateErrorInfo** info);
/// Keeps the description of the latest failure of this thread; null forgets it.
QUILLMERE_SHARED HRESULT SetErrorInfo(ULONG reserved, IErrorInfo* info);
/// Hands it over, once: S_FALSE when there is none.
QUILLMERE_SHARED HRESULT GetErrorInfo(ULONG reserved, IErrorInfo** info);
}
