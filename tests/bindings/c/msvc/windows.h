// As much of the system's header as the host in C needs, for a compiler that has none: x64 only.
#ifndef WINDOWS_H
#define WINDOWS_H

#include <stdarg.h>
#include <stddef.h>
#include <stdint.h>

#define WINAPI
#define CALLBACK
#define TRUE 1
#define FALSE 0

typedef int BOOL;
typedef unsigned char BYTE;
typedef uint16_t WORD;
typedef uint16_t ATOM;
typedef unsigned int UINT;
typedef int32_t LONG;
typedef uint32_t DWORD;
typedef uint32_t COLORREF;
typedef intptr_t INT_PTR;
typedef uintptr_t UINT_PTR;
typedef intptr_t LONG_PTR;
typedef uintptr_t WPARAM;
typedef intptr_t LPARAM;
typedef intptr_t LRESULT;
typedef void* HANDLE;
typedef void* LPVOID;
typedef struct HWND__* HWND;
typedef struct HMENU__* HMENU;
typedef struct HINSTANCE__* HINSTANCE;
typedef struct HICON__* HICON;
typedef struct HBRUSH__* HBRUSH;

typedef LRESULT (*WNDPROC)(HWND, UINT, WPARAM, LPARAM);
typedef INT_PTR (*DLGPROC)(HWND, UINT, WPARAM, LPARAM);
typedef DWORD (*LPTHREAD_START_ROUTINE)(LPVOID);

typedef struct POINT
{
    LONG x;
    LONG y;
} POINT;

typedef struct RECT
{
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
} RECT;

typedef struct MSG
{
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    DWORD time;
    POINT pt;
} MSG;

typedef struct NMHDR
{
    HWND hwndFrom;
    UINT_PTR idFrom;
    UINT code;
} NMHDR;

typedef struct WNDCLASSA
{
    UINT style;
    WNDPROC lpfnWndProc;
    int cbClsExtra;
    int cbWndExtra;
    HINSTANCE hInstance;
    HICON hIcon;
    HICON hCursor;
    HBRUSH hbrBackground;
    const char* lpszMenuName;
    const char* lpszClassName;
} WNDCLASSA;

typedef struct DLGTEMPLATE DLGTEMPLATE;

#define LOWORD(l) ((WORD)((UINT_PTR)(l)&0xffff))
#define HIWORD(l) ((WORD)(((UINT_PTR)(l) >> 16) & 0xffff))
#define RGB(r, g, b) ((COLORREF)((BYTE)(r) | ((WORD)(BYTE)(g) << 8) | ((DWORD)(BYTE)(b) << 16)))

#define IDOK 1
#define IDCANCEL 2
#define WM_NOTIFY 0x004E
#define WM_KEYDOWN 0x0100
#define WM_KEYUP 0x0101
#define WM_INITDIALOG 0x0110
#define WM_COMMAND 0x0111
#define VK_TAB 0x09
#define VK_RETURN 0x0D
#define VK_SHIFT 0x10
#define VK_ESCAPE 0x1B
#define VK_NEXT 0x22
#define VK_HOME 0x24
#define VK_LEFT 0x25
#define VK_UP 0x26
#define VK_RIGHT 0x27
#define WS_POPUP 0x80000000u
#define WS_CHILD 0x40000000u
#define WS_VISIBLE 0x10000000u
#define WS_CAPTION 0x00C00000u
#define WS_TABSTOP 0x00010000u
#define WS_OVERLAPPEDWINDOW 0x00CF0000u
#define SW_SHOW 5
#define PM_REMOVE 1
#define GWL_STYLE (-16)
#define WAIT_TIMEOUT 258u
#define STD_OUTPUT_HANDLE 0xFFFFFFF5u

ATOM RegisterClassA(const WNDCLASSA* window_class);
HWND CreateWindowExA(DWORD ex_style, const char* class_name, const char* text, DWORD style, int x, int y,
                     int width, int height, HWND parent, HMENU menu, HINSTANCE instance, LPVOID param);
BOOL DestroyWindow(HWND window);
BOOL ShowWindow(HWND window, int command);
BOOL SetForegroundWindow(HWND window);
BOOL IsChild(HWND parent, HWND window);
HWND GetParent(HWND window);
HWND GetDlgItem(HWND dialog, int id);
HWND GetFocus(void);
HWND SetFocus(HWND window);
LONG_PTR GetWindowLongPtrA(HWND window, int index);
LONG_PTR SetWindowLongPtrA(HWND window, int index, LONG_PTR value);
LRESULT DefWindowProcA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
BOOL PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
BOOL PeekMessageA(MSG* message, HWND window, UINT first, UINT last, UINT remove);
BOOL IsDialogMessageA(HWND dialog, MSG* message);
BOOL TranslateMessage(const MSG* message);
LRESULT DispatchMessageA(const MSG* message);
BOOL SetKeyboardState(BYTE* keys);
HWND CreateDialogIndirectParamA(HINSTANCE instance, const DLGTEMPLATE* dialog, HWND parent, DLGPROC proc,
                                LPARAM param);
INT_PTR DialogBoxIndirectParamA(HINSTANCE instance, const DLGTEMPLATE* dialog, HWND parent, DLGPROC proc,
                                LPARAM param);
BOOL EndDialog(HWND dialog, INT_PTR result);

HINSTANCE GetModuleHandleA(const char* name);
HANDLE CreateThread(void* security, size_t stack, LPTHREAD_START_ROUTINE start, LPVOID param, DWORD flags,
                    DWORD* id);
DWORD WaitForSingleObject(HANDLE object, DWORD milliseconds);
BOOL CloseHandle(HANDLE object);
DWORD GetEnvironmentVariableA(const char* name, char* value, DWORD size);
HANDLE GetStdHandle(DWORD which);
BOOL WriteFile(HANDLE file, const void* data, DWORD size, DWORD* written, void* overlapped);
void ExitProcess(UINT code);

#endif
