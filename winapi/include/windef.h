// Basic types of the Windows calls, in the widths that Windows gives them.
#pragma once

#include <stdarg.h>
#include <stddef.h>
#include <stdint.h>

#define WINAPI
#define CALLBACK
#define APIENTRY

// As on Windows, each call is a C function that the library exports.
#ifdef __cplusplus
#define ZEB17_C extern "C"
#else
#define ZEB17_C
#endif
#define WINBASEAPI ZEB17_C __attribute__((visibility("default")))
// The name that a call has for the linker, so that a program can also link another library that has the call.
#define ZEB17_NAME(call) __asm__("zeb17_" #call)
#define WINUSERAPI WINBASEAPI
#define WINGDIAPI WINBASEAPI
#define WINCOMMCTRLAPI WINBASEAPI

// Casts of both languages: of a value, and of its bits.
#ifdef __cplusplus
#define ZEB17_CAST(type, value) static_cast<type>(value)
#define ZEB17_AS(type, value) reinterpret_cast<type>(value)
#else
#define ZEB17_CAST(type, value) ((type)(value))
#define ZEB17_AS(type, value) ((type)(value))
#endif

#ifndef TRUE
#define TRUE 1
#define FALSE 0
#endif

#define MAX_PATH 260

typedef int BOOL;
typedef unsigned char BYTE;
typedef char CHAR;
typedef short SHORT;
typedef unsigned short USHORT;
typedef uint16_t WORD;
typedef int INT;
typedef unsigned int UINT;
typedef int32_t LONG;
typedef uint32_t ULONG;
typedef uint32_t DWORD;
typedef long long LONGLONG;
typedef unsigned long long ULONGLONG;
typedef intptr_t INT_PTR;
typedef uintptr_t UINT_PTR;
typedef intptr_t LONG_PTR;
typedef uintptr_t ULONG_PTR;
typedef ULONG_PTR DWORD_PTR;
typedef ULONG_PTR SIZE_T;
#ifdef __cplusplus
typedef char16_t WCHAR; // 16 bits, unlike this platform's wchar_t
#else
typedef uint16_t WCHAR;
#endif
typedef void* LPVOID;
typedef const void* LPCVOID;
typedef char* LPSTR;
typedef const char* LPCSTR;
typedef char* LPTSTR;
typedef const char* LPCTSTR;
typedef WCHAR* LPWSTR;
typedef const WCHAR* LPCWSTR;
typedef DWORD* LPDWORD;
typedef BOOL* LPBOOL;
typedef UINT_PTR WPARAM;
typedef LONG_PTR LPARAM;
typedef LONG_PTR LRESULT;
typedef WORD ATOM;
typedef DWORD COLORREF; // 0x00BBGGRR
typedef LONG HRESULT;
typedef DWORD LCID;
typedef DWORD LCTYPE;

#define DECLARE_HANDLE(name)                                                                                 \
    struct name##__                                                                                          \
    {                                                                                                        \
        int unused;                                                                                          \
    };                                                                                                       \
    typedef struct name##__* name

typedef void* HANDLE;
typedef void* HGDIOBJ;
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
DECLARE_HANDLE(HHOOK);
typedef HINSTANCE HMODULE;
typedef HICON HCURSOR;
typedef HANDLE HGLOBAL;

#define INVALID_HANDLE_VALUE (ZEB17_AS(HANDLE, ZEB17_CAST(LONG_PTR, -1)))

typedef LRESULT (*WNDPROC)(HWND, UINT, WPARAM, LPARAM);
typedef LRESULT (*HOOKPROC)(int, WPARAM, LPARAM);
typedef void (*TIMERPROC)(HWND, UINT, UINT_PTR, DWORD);

typedef struct POINT
{
    LONG x;
    LONG y;
} POINT;
typedef struct SIZE
{
    LONG cx;
    LONG cy;
} SIZE;
typedef struct RECT
{
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
} RECT;
typedef POINT* LPPOINT;
typedef RECT* LPRECT;
typedef const RECT* LPCRECT;

typedef struct GUID
{
    ULONG Data1;
    USHORT Data2;
    USHORT Data3;
    BYTE Data4[8];
} GUID;

#define LOWORD(l) (ZEB17_CAST(WORD, ZEB17_CAST(DWORD_PTR, l) & 0xffff))
#define HIWORD(l) (ZEB17_CAST(WORD, (ZEB17_CAST(DWORD_PTR, l) >> 16) & 0xffff))
#define LOBYTE(w) (ZEB17_CAST(BYTE, ZEB17_CAST(DWORD_PTR, w) & 0xff))
#define MAKELONG(a, b)                                                                                       \
    (ZEB17_CAST(LONG,                                                                                        \
                ZEB17_CAST(DWORD, ZEB17_CAST(WORD, a)) | (ZEB17_CAST(DWORD, ZEB17_CAST(WORD, b)) << 16)))
#define MAKEWPARAM(l, h) (ZEB17_CAST(WPARAM, ZEB17_CAST(DWORD, MAKELONG(l, h))))
#define MAKELPARAM(l, h) (ZEB17_CAST(LPARAM, ZEB17_CAST(DWORD, MAKELONG(l, h))))
#define GET_X_LPARAM(lp) (ZEB17_CAST(int, ZEB17_CAST(short, LOWORD(lp))))
#define GET_Y_LPARAM(lp) (ZEB17_CAST(int, ZEB17_CAST(short, HIWORD(lp))))

#define RGB(r, g, b)                                                                                         \
    (ZEB17_CAST(COLORREF, ZEB17_CAST(BYTE, r) | (ZEB17_CAST(DWORD, ZEB17_CAST(BYTE, g)) << 8) |              \
                              (ZEB17_CAST(DWORD, ZEB17_CAST(BYTE, b)) << 16)))
#define GetRValue(rgb) (LOBYTE(rgb))
#define GetGValue(rgb) (LOBYTE((rgb) >> 8))
#define GetBValue(rgb) (LOBYTE((rgb) >> 16))
