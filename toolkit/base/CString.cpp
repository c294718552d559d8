// CString on std::string.
#include "CString.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace {

constexpr const char* kBlanks = " \t\n\v\f\r";

// Unlike std::tolower this does not depend on the locale of the C library.
constexpr char ToLower(char ch)
{
    return ch >= 'A' && ch <= 'Z' ? static_cast<char>(ch - 'A' + 'a') : ch;
}

int ToIndex(std::size_t nPlace)
{
    return nPlace == std::string::npos ? -1 : static_cast<int>(nPlace);
}

}

CString& CString::operator+=(const CString& strText)
{
    m_strText += strText.m_strText;
    return *this;
}

CString& CString::operator+=(const char* lpszText)
{
    if (lpszText)
        m_strText += lpszText;
    return *this;
}

CString& CString::operator+=(char ch)
{
    m_strText += ch;
    return *this;
}

CString CString::Left(int nCount) const
{
    return Mid(0, nCount);
}

CString CString::Right(int nCount) const
{
    return Mid(GetLength() - std::clamp(nCount, 0, GetLength()));
}

CString CString::Mid(int nFirst) const
{
    return Mid(nFirst, GetLength());
}

CString CString::Mid(int nFirst, int nCount) const
{
    const int nStart = std::clamp(nFirst, 0, GetLength());
    return CString(m_strText.data() + nStart, std::clamp(nCount, 0, GetLength() - nStart));
}

int CString::Find(const char* lpszText, int nStart) const
{
    return ToIndex(m_strText.find(lpszText, static_cast<std::size_t>(std::max(nStart, 0))));
}

int CString::Find(char ch, int nStart) const
{
    return ToIndex(m_strText.find(ch, static_cast<std::size_t>(std::max(nStart, 0))));
}

int CString::FindOneOf(const char* lpszCharacters) const
{
    return ToIndex(m_strText.find_first_of(lpszCharacters));
}

int CString::Replace(const char* lpszOld, const char* lpszNew)
{
    const std::size_t nOldLength = std::strlen(lpszOld);
    if (nOldLength == 0)
        return 0;

    std::string strResult;
    std::size_t nStart = 0;
    int nCount = 0;
    for (std::size_t nPlace; (nPlace = m_strText.find(lpszOld, nStart)) != std::string::npos; ++nCount) {
        strResult.append(m_strText, nStart, nPlace - nStart).append(lpszNew);
        nStart = nPlace + nOldLength;
    }
    strResult.append(m_strText, nStart);
    m_strText = std::move(strResult);
    return nCount;
}

CString& CString::TrimLeft()
{
    m_strText.erase(0, m_strText.find_first_not_of(kBlanks));
    return *this;
}

CString& CString::TrimRight()
{
    m_strText.erase(m_strText.find_last_not_of(kBlanks) + 1);
    return *this;
}

CString& CString::MakeLower()
{
    std::transform(m_strText.begin(), m_strText.end(), m_strText.begin(), ToLower);
    return *this;
}

int CString::Compare(const char* lpszOther) const
{
    return m_strText.compare(lpszOther ? lpszOther : "");
}

int CString::CompareNoCase(const char* lpszOther) const
{
    return CString(*this).MakeLower().Compare(CString(lpszOther).MakeLower());
}

void CString::Format(const char* lpszFormat, ...)
{
    va_list arguments;
    va_start(arguments, lpszFormat);
    const int nLength = std::vsnprintf(nullptr, 0, lpszFormat, arguments);
    va_end(arguments);

    std::string strText(static_cast<std::size_t>(std::max(nLength, 0)), '\0');
    va_start(arguments, lpszFormat);
    std::vsnprintf(strText.data(), strText.size() + 1, lpszFormat, arguments);
    va_end(arguments);
    m_strText = std::move(strText);
}

LPTSTR CString::GetBuffer(int nMinLength)
{
    m_strText.resize(std::max(m_strText.size(), static_cast<std::size_t>(std::max(nMinLength, 0))));
    return m_strText.data();
}

void CString::ReleaseBuffer(int nLength)
{
    m_strText.resize(nLength < 0 ? std::strlen(m_strText.c_str()) : static_cast<std::size_t>(nLength));
}
