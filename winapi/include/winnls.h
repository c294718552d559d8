// Locales, and the conversion of text between code pages.
#pragma once

#include "windef.h"

#define CP_ACP 0u // UTF-8
#define CP_THREAD_ACP 3u
#define CP_UTF8 65001u
#define MB_ERR_INVALID_CHARS 0x00000008u

// Convert between UTF-8 and UTF-16, whatever the code page, and give the length of the result; 0 if that
// fails. A size of -1 says that the text ends in a null, which is then converted too. A size of 0 for the
// result asks for the length needed. What is no UTF-8, or no UTF-16, turns into U+FFFD; bytes that are no
// UTF-8 fail with MB_ERR_INVALID_CHARS.
WINBASEAPI int WINAPI MultiByteToWideChar(UINT codePage, DWORD flags, LPCSTR text, int size, LPWSTR wide,
                                          int wideSize) ZEB17_NAME(MultiByteToWideChar);
WINBASEAPI int WINAPI WideCharToMultiByte(UINT codePage, DWORD flags, LPCWSTR wide, int wideSize, LPSTR text,
                                          int size, LPCSTR defaultChar, LPBOOL usedDefaultChar)
    ZEB17_NAME(WideCharToMultiByte);
WINBASEAPI BOOL WINAPI IsDBCSLeadByte(BYTE byte) ZEB17_NAME(IsDBCSLeadByte); // false for every byte of UTF-8

#define LOCALE_NAME_USER_DEFAULT (ZEB17_CAST(LPCWSTR, NULL))
#define LOCALE_SSHORTDATE 0x0000001Fu
#define LOCALE_SLONGDATE 0x00000020u
#define LOCALE_SDAYNAME1 0x0000002Au // Monday; to 7, Sunday
#define LOCALE_SABBREVDAYNAME1 0x00000031u
#define LOCALE_SMONTHNAME1 0x00000038u // January; to 12, December
#define LOCALE_SABBREVMONTHNAME1 0x00000044u
#define LOCALE_SSHORTESTDAYNAME1 0x00000060u // Monday, in one or two letters; to 7, Sunday
#define LOCALE_IFIRSTDAYOFWEEK 0x0000100Cu   // "0" Monday to "6" Sunday
#define LOCALE_RETURN_GENITIVE_NAMES 0x10000000u

// Locale names are those of BCP 47 ("nl-NL"). LOCALE_NAME_USER_DEFAULT is the user's locale. Gives the length
// of the text with its null, also for a size of 0; 0 if that fails.
WINBASEAPI int WINAPI GetLocaleInfoEx(LPCWSTR localeName, LCTYPE type, LPWSTR data, int size)
    ZEB17_NAME(GetLocaleInfoEx);
WINBASEAPI BOOL WINAPI IsValidLocaleName(LPCWSTR localeName) ZEB17_NAME(IsValidLocaleName);
