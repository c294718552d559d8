// A text of 8-bit characters, which is UTF-8 on Linux and in the active code page on Windows.
#pragma once

#include <windows.h>
#include <zeb17_export.h>

#include <compare>
#include <cstdarg>
#include <string>
#include <string_view>

// Indices and counts are those of bytes; the first has index 0. Only the letters and blanks of ASCII count as
// such.
class ZEB17_EXPORT CString
{
public:
    CString() = default;
    CString(const char* lpszText) : m_strText(lpszText ? lpszText : "") {} // null gives the empty text
    CString(const char* lpszText, int nLength) : m_strText(lpszText, static_cast<std::size_t>(nLength)) {}
    explicit CString(char ch, int nCount = 1) : m_strText(static_cast<std::size_t>(nCount), ch) {}
    explicit CString(std::string_view strText) : m_strText(strText) {}

    operator LPCTSTR() const { return m_strText.c_str(); }
    LPCTSTR GetString() const { return m_strText.c_str(); }

    int GetLength() const { return static_cast<int>(m_strText.size()); }
    bool IsEmpty() const { return m_strText.empty(); }
    void Empty() { m_strText.clear(); }

    char GetAt(int nIndex) const { return m_strText[static_cast<std::size_t>(nIndex)]; }
    char operator[](int nIndex) const { return GetAt(nIndex); }
    void SetAt(int nIndex, char ch) { m_strText[static_cast<std::size_t>(nIndex)] = ch; }

    CString& operator+=(const CString& strText);
    CString& operator+=(const char* lpszText);
    CString& operator+=(char ch);
    friend CString operator+(CString strLeft, const CString& strRight) { return strLeft += strRight; }
    friend CString operator+(CString strLeft, const char* lpszRight) { return strLeft += lpszRight; }
    friend CString operator+(CString strLeft, char chRight) { return strLeft += chRight; }
    friend CString operator+(const char* lpszLeft, const CString& strRight)
    {
        return CString(lpszLeft) += strRight;
    }
    friend CString operator+(char chLeft, const CString& strRight) { return CString(chLeft) += strRight; }

    // Parts of the text. A count or an index beyond an end of the text stands for that end.
    CString Left(int nCount) const;
    CString Right(int nCount) const;
    CString Mid(int nFirst) const;
    CString Mid(int nFirst, int nCount) const;

    // The index of the first place at or behind nStart where the text, the character or one of the characters
    // stands; -1 if there is none.
    int Find(const char* lpszText, int nStart = 0) const;
    int Find(char ch, int nStart = 0) const;
    int FindOneOf(const char* lpszCharacters) const;

    // Returns how many places were replaced.
    int Replace(const char* lpszOld, const char* lpszNew);

    CString& TrimLeft();
    CString& TrimRight();
    CString& MakeLower();

    // Negative, 0 or positive as the text comes before the other, equals it or comes after it, by the values
    // of the bytes.
    int Compare(const char* lpszOther) const;
    int CompareNoCase(const char* lpszOther) const;
    friend bool operator==(const CString& strLeft, const CString& strRight)
    {
        return strLeft.m_strText == strRight.m_strText;
    }
    friend bool operator==(const CString& strLeft, const char* lpszRight)
    {
        return strLeft.Compare(lpszRight) == 0;
    }
    friend auto operator<=>(const CString& strLeft, const CString& strRight)
    {
        return strLeft.m_strText <=> strRight.m_strText;
    }
    friend auto operator<=>(const CString& strLeft, const char* lpszRight)
    {
        return strLeft.Compare(lpszRight) <=> 0;
    }

    // As printf. The text itself may be one of the arguments.
    void Format(const char* lpszFormat, ...) __attribute__((format(printf, 2, 3)));

    // Lends the characters for writing, with room for at least nMinLength of them and a null. ReleaseBuffer
    // must follow; it sets the new length of the text, or with -1 ends the text at its first null.
    LPTSTR GetBuffer(int nMinLength = 0);
    void ReleaseBuffer(int nLength = -1);

private:
    std::string m_strText;
};
