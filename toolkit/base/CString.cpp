#include "CString.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace {

constexpr const char* kBlanks = " \t\n\v\f\r";

// std::tolower would follow the locale of the C library.
constexpr char ToLower(char ch)
{
    return ch >= 'A' && ch <= 'Z' ? static_cast<char>(ch - 'A' + 'a') : ch;
}

int ToIndex(std::size_t place)
{
    return place == std::string::npos ? -1 : static_cast<int>(place);
}

std::string FormatText(const char* format, va_list arguments)
{
    va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, arguments);
    std::string text(static_cast<std::size_t>(std::max(length, 0)), '\0');
    std::vsnprintf(text.data(), text.size() + 1, format, again);
    va_end(again);
    return text;
}

}

CString& CString::operator+=(const CString& text)
{
    m_text += text.m_text;
    return *this;
}

CString& CString::operator+=(const char* text)
{
    if (text)
        m_text += text;
    return *this;
}

CString& CString::operator+=(char ch)
{
    m_text += ch;
    return *this;
}

CString CString::Left(int count) const
{
    return Mid(0, count);
}

CString CString::Right(int count) const
{
    return Mid(GetLength() - std::clamp(count, 0, GetLength()));
}

CString CString::Mid(int first) const
{
    return Mid(first, GetLength());
}

CString CString::Mid(int first, int count) const
{
    const int start = std::clamp(first, 0, GetLength());
    return CString(m_text.data() + start, std::clamp(count, 0, GetLength() - start));
}

int CString::Find(const char* text, int start) const
{
    return ToIndex(m_text.find(text, static_cast<std::size_t>(std::max(start, 0))));
}

int CString::Find(char ch, int start) const
{
    return ToIndex(m_text.find(ch, static_cast<std::size_t>(std::max(start, 0))));
}

int CString::FindOneOf(const char* characters) const
{
    return ToIndex(m_text.find_first_of(characters));
}

int CString::Replace(const char* oldText, const char* newText)
{
    const std::size_t oldLength = std::strlen(oldText);
    if (oldLength == 0)
        return 0;

    std::string result;
    std::size_t start = 0;
    int count = 0;
    for (std::size_t place; (place = m_text.find(oldText, start)) != std::string::npos; ++count) {
        result.append(m_text, start, place - start).append(newText);
        start = place + oldLength;
    }
    result.append(m_text, start);
    m_text = std::move(result);
    return count;
}

CString& CString::TrimLeft()
{
    m_text.erase(0, m_text.find_first_not_of(kBlanks));
    return *this;
}

CString& CString::TrimRight()
{
    m_text.erase(m_text.find_last_not_of(kBlanks) + 1);
    return *this;
}

CString& CString::Trim()
{
    return TrimRight().TrimLeft();
}

CString& CString::MakeLower()
{
    std::transform(m_text.begin(), m_text.end(), m_text.begin(), ToLower);
    return *this;
}

int CString::Compare(const char* other) const
{
    return m_text.compare(other ? other : "");
}

int CString::CompareNoCase(const char* other) const
{
    return CString(*this).MakeLower().Compare(CString(other).MakeLower());
}

void CString::Format(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    m_text = FormatText(format, arguments);
    va_end(arguments);
}

LPTSTR CString::GetBuffer(int minLength)
{
    m_text.resize(std::max(m_text.size(), static_cast<std::size_t>(std::max(minLength, 0))));
    return m_text.data();
}

void CString::ReleaseBuffer(int length)
{
    m_text.resize(length < 0 ? std::strlen(m_text.c_str()) : static_cast<std::size_t>(length));
}
