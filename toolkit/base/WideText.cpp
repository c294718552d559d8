#include "WideText.h"

WideText ToWide(const CString& text, UINT codePage)
{
    if (text.IsEmpty())
        return {};
    const int length = MultiByteToWideChar(codePage, 0, text, text.GetLength(), nullptr, 0);
    WideText wide(static_cast<std::size_t>(length), WCHAR());
    MultiByteToWideChar(codePage, 0, text, text.GetLength(), wide.data(), length);
    return wide;
}

CString FromWide(WideTextView wide, UINT codePage)
{
    if (wide.empty())
        return {};
    const auto length = static_cast<int>(wide.size());
    const int size = WideCharToMultiByte(codePage, 0, wide.data(), length, nullptr, 0, nullptr, nullptr);
    CString text;
    WideCharToMultiByte(codePage, 0, wide.data(), length, text.GetBuffer(size), size, nullptr, nullptr);
    text.ReleaseBuffer(size);
    return text;
}
