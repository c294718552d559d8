// Conversion of texts, and how they get into the caller's buffer.
#include "Texts.h"

#include <WideText.h>

#include <cstring>

namespace Zeb17 {

// A character that a form cannot express becomes another one, and then does not come back.
bool FromUtf8(const char* lpszText, CString& strText)
{
    if (!lpszText)
        return false;
    const CString strUtf8(lpszText);
    const WideText strWide = ToWide(strUtf8, CP_UTF8);
    if (!(FromWide(strWide, CP_UTF8) == strUtf8))
        return false;
    strText = FromWide(strWide);
    return ToWide(strText) == strWide;
}

std::string ToUtf8(const CString& strText)
{
    return FromWide(ToWide(strText), CP_UTF8).GetString();
}

int GiveText(const std::string& strText, char* buffer, uint32_t size, uint32_t* length) noexcept
{
    if (!buffer && (size != 0 || !length))
        return ZEB17_BAD_ARGUMENT;
    if (length)
        *length = static_cast<uint32_t>(strText.size());
    if (!buffer)
        return ZEB17_OK;
    if (strText.size() >= size)
        return ZEB17_SMALL_BUFFER;
    std::memcpy(buffer, strText.c_str(), strText.size() + 1);
    return ZEB17_OK;
}

}
