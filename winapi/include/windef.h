// Basic types of the Windows calls, in the widths that Windows gives them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdarg>

#define WINAPI
#define CALLBACK
#define APIENTRY

// As on Windows, each call is a C function that the library exports.
#define WINBASEAPI extern "C" __attribute__((visibility("default")))
#define WINUSERAPI WINBASEAPI
#define WINGDIAPI WINBASEAPI
#define WINCOMMCTRLAPI WINBASEAPI

#ifndef TRUE
#define TRUE 1
#define FALSE 0
#endif

#define MAX_PATH 260

using BOOL = int;
using BYTE = unsigned char;
using CHAR = char;
using SHORT = short;
using USHORT = unsigned short;
using WORD = std::uint16_t;
using INT = int;
using UINT = unsigned int;
using LONG = std::int32_t;
using ULONG = std::uint32_t;
using DWORD = std::uint32_t;
using LONGLONG = long long;
using ULONGLONG = unsigned long long;
using INT_PTR = std::intptr_t;
using UINT_PTR = std::uintptr_t;
using LONG_PTR = std::intptr_t;
using ULONG_PTR = std::uintptr_t;
using DWORD_PTR = ULONG_PTR;
using SIZE_T = ULONG_PTR;
using WCHAR = char16_t; // 16 bits, unlike this platform's wchar_t
using LPVOID = void*;
using LPCVOID = const void*;
using LPSTR = char*;
using LPCSTR = const char*;
using LPTSTR = char*;
using LPCTSTR = const char*;
using LPWSTR = WCHAR*;
using LPCWSTR = const WCHAR*;
using LPDWORD = DWORD*;
using LPBOOL = BOOL*;
using WPARAM = UINT_PTR;
using LPARAM = LONG_PTR;
using LRESULT = LONG_PTR;
using ATOM = WORD;
using COLORREF = DWORD; // 0x00BBGGRR
using HRESULT = LONG;
using LCID = DWORD;
using LCTYPE = DWORD;

#define DECLARE_HANDLE(name)                                                                                 \
    struct name##__                                                                                          \
    {                                                                                                        \
        int unused;                                                                                          \
    };                                                                                                       \
    using name = name##__*

using HANDLE = void*;
using HGDIOBJ = void*;
DECLARE_HANDLE(HWND);
DECLARE_HANDLE(HDC);
DECLARE_HANDLE(HMENU);
DECLARE_HANDLE(HINSTANCE);
DECLARE_HANDLE(HRSRC);
DECLARE_HANDLE(HICON);
DECLARE_HANDLE(HBRUSH);
DECLARE_HANDLE(HPEN);
DECLARE_HANDLE(HFONT);
DECLARE_HANDLE(HBITMAP);
DECLARE_HANDLE(HPALETTE);
DECLARE_HANDLE(HHOOK);
using HMODULE = HINSTANCE;
using HCURSOR = HICON;
using HGLOBAL = HANDLE;

#define INVALID_HANDLE_VALUE (reinterpret_cast<HANDLE>(static_cast<LONG_PTR>(-1)))

using WNDPROC = LRESULT (*)(HWND, UINT, WPARAM, LPARAM);
using HOOKPROC = LRESULT (*)(int, WPARAM, LPARAM);
using TIMERPROC = void (*)(HWND, UINT, UINT_PTR, DWORD);

struct POINT
{
    LONG x;
    LONG y;
};
struct SIZE
{
    LONG cx;
    LONG cy;
};
struct RECT
{
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
};
using LPPOINT = POINT*;
using LPRECT = RECT*;
using LPCRECT = const RECT*;

struct GUID
{
    ULONG Data1;
    USHORT Data2;
    USHORT Data3;
    BYTE Data4[8];
};
using CLSID = GUID;

#define LOWORD(l) (static_cast<WORD>(static_cast<DWORD_PTR>(l) & 0xffff))
#define HIWORD(l) (static_cast<WORD>((static_cast<DWORD_PTR>(l) >> 16) & 0xffff))
#define LOBYTE(w) (static_cast<BYTE>(static_cast<DWORD_PTR>(w) & 0xff))
#define MAKELONG(a, b)                                                                                       \
    (static_cast<LONG>(static_cast<DWORD>(static_cast<WORD>(a)) |                                            \
                       (static_cast<DWORD>(static_cast<WORD>(b)) << 16)))
#define MAKEWPARAM(l, h) (static_cast<WPARAM>(static_cast<DWORD>(MAKELONG(l, h))))
#define MAKELPARAM(l, h) (static_cast<LPARAM>(static_cast<DWORD>(MAKELONG(l, h))))
#define GET_X_LPARAM(lp) (static_cast<int>(static_cast<short>(LOWORD(lp))))
#define GET_Y_LPARAM(lp) (static_cast<int>(static_cast<short>(HIWORD(lp))))

#define RGB(r, g, b)                                                                                         \
    (static_cast<COLORREF>(static_cast<BYTE>(r) | (static_cast<DWORD>(static_cast<BYTE>(g)) << 8) |          \
                           (static_cast<DWORD>(static_cast<BYTE>(b)) << 16)))
#define GetRValue(rgb) (LOBYTE(rgb))
#define GetGValue(rgb) (LOBYTE((rgb) >> 8))
#define GetBValue(rgb) (LOBYTE((rgb) >> 16))
