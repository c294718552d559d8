// Text between code pages, by the calls of the system.
#include "WideText.h"

namespace {

WideText Convert(const CString& strText, UINT nCodePage, DWORD dwFlags)
{
    if (strText.IsEmpty())
        return {};
    const int nLength = MultiByteToWideChar(nCodePage, dwFlags, strText, strText.GetLength(), nullptr, 0);
    WideText strWide(static_cast<std::size_t>(nLength), WCHAR());
    MultiByteToWideChar(nCodePage, dwFlags, strText, strText.GetLength(), strWide.data(), nLength);
    return strWide;
}

}

WideText ToWide(const CString& strText, UINT nCodePage)
{
    return Convert(strText, nCodePage, 0);
}

WideText ToWideIfValid(const CString& strText)
{
    return Convert(strText, CP_ACP, MB_ERR_INVALID_CHARS);
}

CString FromWide(WideTextView strWide, UINT nCodePage)
{
    if (strWide.empty())
        return {};
    const auto nLength = static_cast<int>(strWide.size());
    const int nSize =
        WideCharToMultiByte(nCodePage, 0, strWide.data(), nLength, nullptr, 0, nullptr, nullptr);
    CString strText;
    WideCharToMultiByte(nCodePage, 0, strWide.data(), nLength, strText.GetBuffer(nSize), nSize, nullptr,
                        nullptr);
    strText.ReleaseBuffer(nSize);
    return strText;
}
