// The texts and the variants that the calls of objects pass.
#include "oleauto.h"

#include <cstdlib>
#include <cstring>

// The length in bytes stands before the characters, and a null behind them.
BSTR SysAllocStringLen(const OLECHAR* text, UINT length)
{
    const DWORD bytes = length * static_cast<DWORD>(sizeof(OLECHAR));
    auto* const memory = static_cast<char*>(std::calloc(1, sizeof bytes + bytes + sizeof(OLECHAR)));
    if (!memory)
        return nullptr;
    std::memcpy(memory, &bytes, sizeof bytes);
    if (text)
        std::memcpy(memory + sizeof bytes, text, bytes);
    return reinterpret_cast<BSTR>(memory + sizeof bytes);
}

void SysFreeString(BSTR text)
{
    if (text)
        std::free(reinterpret_cast<char*>(text) - sizeof(DWORD));
}

UINT SysStringLen(BSTR text)
{
    DWORD bytes = 0;
    if (text)
        std::memcpy(&bytes, reinterpret_cast<const char*>(text) - sizeof bytes, sizeof bytes);
    return bytes / static_cast<DWORD>(sizeof(OLECHAR));
}

void VariantInit(VARIANT* variant)
{
    *variant = {};
}

HRESULT VariantClear(VARIANT* variant)
{
    if (variant->vt == VT_DISPATCH && variant->pdispVal)
        variant->pdispVal->Release();
    VariantInit(variant);
    return S_OK;
}
