// A text of 8-bit characters: UTF-8 on Linux, the active code page on Windows. A value.
#pragma once

#include <windows.h>
#include <zeb17_export.h>

#include <compare>
#include <cstdarg>
#include <string>
#include <string_view>

// Indices and counts are in bytes, from 0. Case and blanks are those of ASCII.
class ZEB17_EXPORT CString
{
public:
    CString() = default;
    CString(const char* text) : m_text(text ? text : "") {} // null gives the empty text
    CString(const char* text, int length) : m_text(text, static_cast<std::size_t>(length)) {}
    explicit CString(char ch, int count = 1) : m_text(static_cast<std::size_t>(count), ch) {}
    explicit CString(std::string_view text) : m_text(text) {}

    operator LPCTSTR() const { return m_text.c_str(); }
    LPCTSTR GetString() const { return m_text.c_str(); }

    int GetLength() const { return static_cast<int>(m_text.size()); }
    bool IsEmpty() const { return m_text.empty(); }
    void Empty() { m_text.clear(); }

    char GetAt(int index) const { return m_text[static_cast<std::size_t>(index)]; }
    char operator[](int index) const { return GetAt(index); }
    void SetAt(int index, char ch) { m_text[static_cast<std::size_t>(index)] = ch; }

    CString& operator+=(const CString& text);
    CString& operator+=(const char* text);
    CString& operator+=(char ch);
    friend CString operator+(CString left, const CString& right) { return left += right; }
    friend CString operator+(CString left, const char* right) { return left += right; }
    friend CString operator+(CString left, char right) { return left += right; }
    friend CString operator+(const char* left, const CString& right) { return CString(left) += right; }
    friend CString operator+(char left, const CString& right) { return CString(left) += right; }

    // Parts of the text; counts and indices beyond its ends are cut to it.
    CString Left(int count) const;
    CString Right(int count) const;
    CString Mid(int first) const;
    CString Mid(int first, int count) const;

    // The index of the first place at or behind `start`, or -1.
    int Find(const char* text, int start = 0) const;
    int Find(char ch, int start = 0) const;
    int FindOneOf(const char* characters) const;

    // Returns how many places were replaced.
    int Replace(const char* oldText, const char* newText);

    CString& TrimLeft();
    CString& TrimRight();
    CString& Trim();
    CString& MakeLower();

    // Below, at or above 0 as the text stands before, at or behind the other; by bytes.
    int Compare(const char* other) const;
    int CompareNoCase(const char* other) const;
    friend bool operator==(const CString& left, const CString& right) { return left.m_text == right.m_text; }
    friend bool operator==(const CString& left, const char* right) { return left.Compare(right) == 0; }
    friend auto operator<=>(const CString& left, const CString& right)
    {
        return left.m_text <=> right.m_text;
    }
    friend auto operator<=>(const CString& left, const char* right) { return left.Compare(right) <=> 0; }

    // As printf; the text's own characters may be among the arguments.
    void Format(const char* format, ...) __attribute__((format(printf, 2, 3)));

    // Room for `minLength` characters and a null, to be written to until ReleaseBuffer, which sets the length
    // (-1: up to the first null).
    LPTSTR GetBuffer(int minLength = 0);
    void ReleaseBuffer(int length = -1);

private:
    std::string m_text;
};
