// Objects that count their references, and the texts and variants that their calls pass.
#pragma once

#include "winbase.h"

#include <cstring>

// ---- Results of calls.

#define E_NOTIMPL (static_cast<HRESULT>(0x80004001u))
#define E_NOINTERFACE (static_cast<HRESULT>(0x80004002u))
#define E_POINTER (static_cast<HRESULT>(0x80004003u))
#define CO_E_OBJNOTCONNECTED (static_cast<HRESULT>(0x800401FDu))
#define DISP_E_MEMBERNOTFOUND (static_cast<HRESULT>(0x80020003u))

// ---- Interfaces.

#define STDMETHODCALLTYPE

using IID = GUID;
using REFIID = const IID&;

inline bool operator==(const GUID& a, const GUID& b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}
#define IsEqualIID(a, b) ((a) == (b))

// The id of an interface.
#define __uuidof(Interface) (Interface::kId)

struct IUnknown
{
    static constexpr IID kId{0, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

    virtual HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) = 0;
    virtual ULONG STDMETHODCALLTYPE AddRef() = 0;
    virtual ULONG STDMETHODCALLTYPE Release() = 0;
};

using OLECHAR = WCHAR;
using LPOLESTR = OLECHAR*;
using DISPID = LONG;
struct ITypeInfo;
struct DISPPARAMS;
struct EXCEPINFO;
struct VARIANT;

struct IDispatch : IUnknown
{
    static constexpr IID kId{0x00020400, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

    virtual HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID locale,
                                                    DISPID* ids) = 0;
    virtual HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID id, LCID locale, WORD flags,
                                             DISPPARAMS* params, VARIANT* result, EXCEPINFO* exception,
                                             UINT* badArgument) = 0;
};

// ---- Texts, which know their length. Null is an empty text. SysFreeString releases one.

using BSTR = OLECHAR*;

WINBASEAPI BSTR WINAPI SysAllocStringLen(const OLECHAR* text, UINT length) ZEB17_NAME(SysAllocStringLen);
WINBASEAPI void WINAPI SysFreeString(BSTR text) ZEB17_NAME(SysFreeString);
WINBASEAPI UINT WINAPI SysStringLen(BSTR text) ZEB17_NAME(SysStringLen);

// ---- Variants: a number or an object.

using VARTYPE = USHORT;
enum VARENUM
{
    VT_EMPTY = 0,
    VT_I4 = 3,
    VT_DISPATCH = 9
};

struct VARIANT
{
    VARTYPE vt;
    WORD wReserved1;
    WORD wReserved2;
    WORD wReserved3;
    union {
        LONG lVal;
        BSTR bstrVal;
        IDispatch* pdispVal;
    };
};

WINBASEAPI void WINAPI VariantInit(VARIANT* variant) ZEB17_NAME(VariantInit);
// Releases what the variant holds, and empties it.
WINBASEAPI HRESULT WINAPI VariantClear(VARIANT* variant) ZEB17_NAME(VariantClear);
