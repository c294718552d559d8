// Windows, messages, input, painting, the button and the label.
//
// All calls are for one thread: the one that made the first window. Coordinates are logical pixels. The frame
// and the caption of a top-level window belong to the window manager: its window rectangle is its client
// rectangle.
#pragma once

#include "windef.h"
#include "winbase.h"
#include "wingdi.h"
#include "winmenu.h"
#include "winclipboard.h"

// ---- identifiers ----

#define IDOK 1
#define IDCANCEL 2

// ---- messages ----

#define WM_CREATE 0x0001
#define WM_DESTROY 0x0002
#define WM_MOVE 0x0003
#define WM_SIZE 0x0005
#define WM_ACTIVATE 0x0006
#define WM_SETFOCUS 0x0007
#define WM_KILLFOCUS 0x0008
#define WM_ENABLE 0x000A
#define WM_SETTEXT 0x000C
#define WM_GETTEXT 0x000D
#define WM_GETTEXTLENGTH 0x000E
#define WM_PAINT 0x000F
#define WM_CLOSE 0x0010
#define WM_QUIT 0x0012
#define WM_ERASEBKGND 0x0014
#define WM_SHOWWINDOW 0x0018
#define WM_ACTIVATEAPP 0x001C
#define WM_CANCELMODE 0x001F
#define WM_SETCURSOR 0x0020
#define WM_MOUSEACTIVATE 0x0021
#define WM_NEXTDLGCTL 0x0028
#define WM_DRAWITEM 0x002B
#define WM_SETFONT 0x0030
#define WM_WINDOWPOSCHANGING 0x0046
#define WM_WINDOWPOSCHANGED 0x0047
#define WM_NOTIFY 0x004E
#define WM_CONTEXTMENU 0x007B
#define WM_STYLECHANGING 0x007C
#define WM_STYLECHANGED 0x007D
#define WM_NCCREATE 0x0081
#define WM_NCDESTROY 0x0082
#define WM_NCCALCSIZE 0x0083
#define WM_NCACTIVATE 0x0086
#define WM_GETDLGCODE 0x0087
#define WM_KEYFIRST 0x0100
#define WM_KEYDOWN 0x0100
#define WM_KEYUP 0x0101
#define WM_CHAR 0x0102
#define WM_SYSKEYDOWN 0x0104
#define WM_SYSKEYUP 0x0105
#define WM_SYSCHAR 0x0106
#define WM_KEYLAST 0x0109
#define WM_COMMAND 0x0111
#define WM_SYSCOMMAND 0x0112
#define WM_TIMER 0x0113
#define WM_INITMENU 0x0116
#define WM_INITMENUPOPUP 0x0117
#define WM_MENUSELECT 0x011F
#define WM_UNINITMENUPOPUP 0x0125
#define WM_MOUSEFIRST 0x0200
#define WM_MOUSEMOVE 0x0200
#define WM_LBUTTONDOWN 0x0201
#define WM_LBUTTONUP 0x0202
#define WM_LBUTTONDBLCLK 0x0203
#define WM_RBUTTONDOWN 0x0204
#define WM_RBUTTONUP 0x0205
#define WM_MBUTTONDOWN 0x0207
#define WM_MBUTTONUP 0x0208
#define WM_MBUTTONDBLCLK 0x0209
#define WM_MOUSEWHEEL 0x020A
#define WM_MOUSEHWHEEL 0x020E
#define WM_MOUSELAST 0x020E
#define WM_PARENTNOTIFY 0x0210
#define WM_ENTERMENULOOP 0x0211
#define WM_EXITMENULOOP 0x0212
#define WM_CAPTURECHANGED 0x0215
#define WM_MOUSELEAVE 0x02A3
#define WM_USER 0x0400

#define WHEEL_DELTA 120

#define SIZE_RESTORED 0 // WM_SIZE
#define SIZE_MINIMIZED 1
#define SIZE_MAXIMIZED 2
#define WA_INACTIVE 0 // WM_ACTIVATE
#define WA_ACTIVE 1
#define WA_CLICKACTIVE 2
#define MA_ACTIVATE 1 // WM_MOUSEACTIVATE
#define HTCLIENT 1

// The buttons and keys in wParam of a mouse message.
#define MK_LBUTTON 0x0001
#define MK_RBUTTON 0x0002
#define MK_SHIFT 0x0004
#define MK_CONTROL 0x0008
#define MK_MBUTTON 0x0010

// WM_GETDLGCODE
#define DLGC_WANTARROWS 0x0001
#define DLGC_WANTTAB 0x0002
#define DLGC_WANTALLKEYS 0x0004
#define DLGC_DEFPUSHBUTTON 0x0010
#define DLGC_UNDEFPUSHBUTTON 0x0020
#define DLGC_WANTCHARS 0x0080
#define DLGC_BUTTON 0x2000

// WM_SYSCOMMAND
#define SC_CLOSE 0xF060

// Bits in the upper word of lParam of a key message.
#define KF_EXTENDED 0x0100
#define KF_ALTDOWN 0x2000
#define KF_REPEAT 0x4000
#define KF_UP 0x8000

// ---- virtual keys ----

#define VK_LBUTTON 0x01
#define VK_RBUTTON 0x02
#define VK_MBUTTON 0x04
#define VK_BACK 0x08
#define VK_TAB 0x09
#define VK_CLEAR 0x0C
#define VK_RETURN 0x0D
#define VK_SHIFT 0x10
#define VK_CONTROL 0x11
#define VK_MENU 0x12
#define VK_PAUSE 0x13
#define VK_CAPITAL 0x14
#define VK_ESCAPE 0x1B
#define VK_SPACE 0x20
#define VK_PRIOR 0x21
#define VK_NEXT 0x22
#define VK_END 0x23
#define VK_HOME 0x24
#define VK_LEFT 0x25
#define VK_UP 0x26
#define VK_RIGHT 0x27
#define VK_DOWN 0x28
#define VK_SNAPSHOT 0x2C
#define VK_INSERT 0x2D
#define VK_DELETE 0x2E
#define VK_LWIN 0x5B
#define VK_RWIN 0x5C
#define VK_APPS 0x5D
#define VK_NUMPAD0 0x60
#define VK_MULTIPLY 0x6A
#define VK_ADD 0x6B
#define VK_SUBTRACT 0x6D
#define VK_DECIMAL 0x6E
#define VK_DIVIDE 0x6F
#define VK_F1 0x70
#define VK_F4 0x73
#define VK_F5 0x74
#define VK_F10 0x79
#define VK_NUMLOCK 0x90
#define VK_SCROLL 0x91
#define VK_OEM_1 0xBA
#define VK_OEM_PLUS 0xBB
#define VK_OEM_COMMA 0xBC
#define VK_OEM_MINUS 0xBD
#define VK_OEM_PERIOD 0xBE
#define VK_OEM_2 0xBF
#define VK_PACKET 0xE7 // text that no single key stands for

// ---- styles ----

#define WS_OVERLAPPED 0x00000000
#define WS_POPUP 0x80000000
#define WS_CHILD 0x40000000
#define WS_MINIMIZE 0x20000000
#define WS_VISIBLE 0x10000000
#define WS_DISABLED 0x08000000
#define WS_CLIPCHILDREN 0x02000000
#define WS_MAXIMIZE 0x01000000
#define WS_CAPTION 0x00C00000
#define WS_SYSMENU 0x00080000
#define WS_THICKFRAME 0x00040000
#define WS_TABSTOP 0x00010000
#define WS_MINIMIZEBOX 0x00020000
#define WS_MAXIMIZEBOX 0x00010000
#define WS_OVERLAPPEDWINDOW                                                                                  \
    (WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX)

#define WS_EX_CONTROLPARENT 0x00010000

#define CS_VREDRAW 0x0001
#define CS_HREDRAW 0x0002
#define CS_DBLCLKS 0x0008
#define CS_CLASSDC 0x0040
#define CS_SAVEBITS 0x0800
#define CS_GLOBALCLASS 0x4000 // all classes are

// ---- structures ----

typedef struct MSG
{
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    DWORD time;
    POINT pt;
} MSG;

typedef struct WNDCLASSA
{
    UINT style;
    WNDPROC lpfnWndProc;
    int cbClsExtra;
    int cbWndExtra;
    HINSTANCE hInstance;
    HICON hIcon;
    HCURSOR hCursor;
    HBRUSH hbrBackground;
    LPCSTR lpszMenuName;
    LPCSTR lpszClassName;
} WNDCLASSA;

typedef struct WNDCLASSEXA
{
    UINT cbSize;
    UINT style;
    WNDPROC lpfnWndProc;
    int cbClsExtra;
    int cbWndExtra;
    HINSTANCE hInstance;
    HICON hIcon;
    HCURSOR hCursor;
    HBRUSH hbrBackground;
    LPCSTR lpszMenuName;
    LPCSTR lpszClassName;
    HICON hIconSm;
} WNDCLASSEXA;

typedef struct CREATESTRUCTA
{
    LPVOID lpCreateParams;
    HINSTANCE hInstance;
    HMENU hMenu;
    HWND hwndParent;
    int cy;
    int cx;
    int y;
    int x;
    LONG style;
    LPCSTR lpszName;
    LPCSTR lpszClass;
    DWORD dwExStyle;
} CREATESTRUCTA;

typedef struct CBT_CREATEWNDA
{
    CREATESTRUCTA* lpcs;
    HWND hwndInsertAfter;
} CBT_CREATEWNDA;

typedef struct PAINTSTRUCT
{
    HDC hdc;
    BOOL fErase;
    RECT rcPaint;
    BOOL fRestore;
    BOOL fIncUpdate;
    BYTE rgbReserved[32];
} PAINTSTRUCT;
typedef PAINTSTRUCT* LPPAINTSTRUCT;

typedef struct WINDOWPOS
{
    HWND hwnd;
    HWND hwndInsertAfter;
    int x;
    int y;
    int cx;
    int cy;
    UINT flags;
} WINDOWPOS;

typedef struct NCCALCSIZE_PARAMS
{
    RECT rgrc[3];
    WINDOWPOS* lppos;
} NCCALCSIZE_PARAMS;

typedef struct STYLESTRUCT
{
    DWORD styleOld;
    DWORD styleNew;
} STYLESTRUCT;

typedef struct NMHDR
{
    HWND hwndFrom;
    UINT_PTR idFrom;
    UINT code;
} NMHDR;

typedef struct DRAWITEMSTRUCT
{
    UINT CtlType;
    UINT CtlID;
    UINT itemID;
    UINT itemAction;
    UINT itemState;
    HWND hwndItem;
    HDC hDC;
    RECT rcItem;
    ULONG_PTR itemData;
} DRAWITEMSTRUCT;
typedef DRAWITEMSTRUCT* LPDRAWITEMSTRUCT;

#define ODT_MENU 1
#define ODT_BUTTON 4
#define ODA_DRAWENTIRE 0x0001
#define ODA_SELECT 0x0002
#define ODA_FOCUS 0x0004
#define ODS_SELECTED 0x0001
#define ODS_DISABLED 0x0004
#define ODS_FOCUS 0x0010
#define ODS_NOACCEL 0x0100
#define ODS_NOFOCUSRECT 0x0200

typedef struct TRACKMOUSEEVENT
{
    DWORD cbSize;
    DWORD dwFlags;
    HWND hwndTrack;
    DWORD dwHoverTime;
} TRACKMOUSEEVENT;
typedef TRACKMOUSEEVENT* LPTRACKMOUSEEVENT;

#define TME_LEAVE 0x00000002

// ---- window classes and creation ----

#define CW_USEDEFAULT (ZEB17_CAST(int, 0x80000000))
#define HWND_TOP (ZEB17_CAST(HWND, NULL))

WINUSERAPI ATOM RegisterClassA(const WNDCLASSA* windowClass) ZEB17_NAME(RegisterClassA);
WINUSERAPI ATOM RegisterClassExA(const WNDCLASSEXA* windowClass) ZEB17_NAME(RegisterClassExA);
WINUSERAPI BOOL UnregisterClassA(LPCSTR className, HINSTANCE instance) ZEB17_NAME(UnregisterClassA);
WINUSERAPI int GetClassNameA(HWND window, LPSTR buffer, int size) ZEB17_NAME(GetClassNameA);
WINUSERAPI HWND CreateWindowExA(DWORD exStyle, LPCSTR className, LPCSTR text, DWORD style, int x, int y,
                                int width, int height, HWND parent, HMENU menuOrId, HINSTANCE instance,
                                LPVOID param) ZEB17_NAME(CreateWindowExA);
WINUSERAPI BOOL DestroyWindow(HWND window) ZEB17_NAME(DestroyWindow);
#define RegisterClass RegisterClassA
#define RegisterClassEx RegisterClassExA
#define UnregisterClass UnregisterClassA
#define GetClassName GetClassNameA
#define CreateWindowEx CreateWindowExA

#define GWL_STYLE (-16)
#define GWL_EXSTYLE (-20)
#define GWLP_WNDPROC (-4)

// The index is one of these three; the extended style is not to be set.
WINUSERAPI LONG_PTR GetWindowLongPtrA(HWND window, int index) ZEB17_NAME(GetWindowLongPtrA);
WINUSERAPI LONG_PTR SetWindowLongPtrA(HWND window, int index, LONG_PTR value) ZEB17_NAME(SetWindowLongPtrA);
WINUSERAPI LONG GetWindowLongA(HWND window, int index) ZEB17_NAME(GetWindowLongA);
WINUSERAPI LRESULT DefWindowProcA(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    ZEB17_NAME(DefWindowProcA);
WINUSERAPI LRESULT CallWindowProcA(WNDPROC proc, HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    ZEB17_NAME(CallWindowProcA);
#define GetWindowLongPtr GetWindowLongPtrA
#define SetWindowLongPtr SetWindowLongPtrA
#define GetWindowLong GetWindowLongA
#define DefWindowProc DefWindowProcA
#define CallWindowProc CallWindowProcA

// ---- the window tree ----

#define GW_HWNDNEXT 2
#define GW_CHILD 5
#define GA_ROOT 2

typedef BOOL (*WNDENUMPROC)(HWND, LPARAM);

WINUSERAPI BOOL IsWindow(HWND window) ZEB17_NAME(IsWindow);
WINUSERAPI BOOL IsChild(HWND parent, HWND window) ZEB17_NAME(IsChild);
WINUSERAPI HWND GetParent(HWND window) ZEB17_NAME(GetParent);
// Only GA_ROOT is served: the top-level window above.
WINUSERAPI HWND GetAncestor(HWND window, UINT flags) ZEB17_NAME(GetAncestor);
WINUSERAPI HWND GetWindow(HWND window, UINT command) ZEB17_NAME(GetWindow);
WINUSERAPI HWND GetDlgItem(HWND parent, int id) ZEB17_NAME(GetDlgItem);
WINUSERAPI int GetDlgCtrlID(HWND window) ZEB17_NAME(GetDlgCtrlID);
WINUSERAPI BOOL EnumThreadWindows(DWORD thread, WNDENUMPROC proc, LPARAM lParam)
    ZEB17_NAME(EnumThreadWindows);
WINUSERAPI DWORD GetWindowThreadProcessId(HWND window, LPDWORD process) ZEB17_NAME(GetWindowThreadProcessId);
WINUSERAPI HWND ChildWindowFromPoint(HWND parent, POINT point) ZEB17_NAME(ChildWindowFromPoint);

// ---- size, position, visibility, state ----

#define SW_HIDE 0
#define SW_SHOW 5
#define SW_SHOWNA 8

#define SWP_NOSIZE 0x0001
#define SWP_NOMOVE 0x0002
#define SWP_NOZORDER 0x0004
#define SWP_NOREDRAW 0x0008
#define SWP_NOACTIVATE 0x0010
#define SWP_SHOWWINDOW 0x0040
#define SWP_HIDEWINDOW 0x0080

WINUSERAPI BOOL ShowWindow(HWND window, int command) ZEB17_NAME(ShowWindow);
WINUSERAPI BOOL IsWindowVisible(HWND window) ZEB17_NAME(IsWindowVisible);
WINUSERAPI BOOL EnableWindow(HWND window, BOOL enable) ZEB17_NAME(EnableWindow);
WINUSERAPI BOOL IsWindowEnabled(HWND window) ZEB17_NAME(IsWindowEnabled);
WINUSERAPI BOOL MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaint)
    ZEB17_NAME(MoveWindow);
WINUSERAPI BOOL GetClientRect(HWND window, LPRECT rect) ZEB17_NAME(GetClientRect);
WINUSERAPI BOOL GetWindowRect(HWND window, LPRECT rect) ZEB17_NAME(GetWindowRect);
WINUSERAPI BOOL ScreenToClient(HWND window, LPPOINT point) ZEB17_NAME(ScreenToClient);
WINUSERAPI BOOL ClientToScreen(HWND window, LPPOINT point) ZEB17_NAME(ClientToScreen);
WINUSERAPI int MapWindowPoints(HWND from, HWND to, LPPOINT points, UINT count) ZEB17_NAME(MapWindowPoints);
WINUSERAPI BOOL SetWindowTextA(HWND window, LPCSTR text) ZEB17_NAME(SetWindowTextA);
WINUSERAPI int GetWindowTextA(HWND window, LPSTR buffer, int size) ZEB17_NAME(GetWindowTextA);
WINUSERAPI int GetWindowTextLengthA(HWND window) ZEB17_NAME(GetWindowTextLengthA);
#define SetWindowText SetWindowTextA
#define GetWindowText GetWindowTextA
#define GetWindowTextLength GetWindowTextLengthA

// ---- messages ----

#define PM_NOREMOVE 0
#define PM_REMOVE 1

WINUSERAPI UINT RegisterWindowMessageA(LPCSTR name) ZEB17_NAME(RegisterWindowMessageA);
WINUSERAPI LRESULT SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    ZEB17_NAME(SendMessageA);
WINUSERAPI BOOL PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    ZEB17_NAME(PostMessageA);
WINUSERAPI void PostQuitMessage(int exitCode) ZEB17_NAME(PostQuitMessage);
WINUSERAPI BOOL GetMessageA(MSG* message, HWND window, UINT first, UINT last) ZEB17_NAME(GetMessageA);
WINUSERAPI BOOL PeekMessageA(MSG* message, HWND window, UINT first, UINT last, UINT remove)
    ZEB17_NAME(PeekMessageA);
WINUSERAPI BOOL TranslateMessage(const MSG* message) ZEB17_NAME(TranslateMessage);
WINUSERAPI LRESULT DispatchMessageA(const MSG* message) ZEB17_NAME(DispatchMessageA);
// Serves Tab, Enter, Escape and mnemonics of a dialog, or of any window with controls, and hands on all other
// messages. Arrow keys reach the control.
WINUSERAPI BOOL IsDialogMessageA(HWND dialog, MSG* message) ZEB17_NAME(IsDialogMessageA);
WINUSERAPI HWND GetNextDlgTabItem(HWND dialog, HWND control, BOOL previous) ZEB17_NAME(GetNextDlgTabItem);
WINUSERAPI DWORD GetMessagePos(void) ZEB17_NAME(GetMessagePos);
WINUSERAPI LONG GetMessageTime(void) ZEB17_NAME(GetMessageTime);
#define RegisterWindowMessage RegisterWindowMessageA
#define SendMessage SendMessageA
#define PostMessage PostMessageA
#define GetMessage GetMessageA
#define PeekMessage PeekMessageA
#define DispatchMessage DispatchMessageA
#define IsDialogMessage IsDialogMessageA

WINUSERAPI UINT_PTR SetTimer(HWND window, UINT_PTR id, UINT milliseconds, TIMERPROC proc)
    ZEB17_NAME(SetTimer);
WINUSERAPI BOOL KillTimer(HWND window, UINT_PTR id) ZEB17_NAME(KillTimer);

// ---- hooks ----

#define WH_MSGFILTER (-1)
#define WH_CBT 5
#define HCBT_CREATEWND 3
#define HCBT_DESTROYWND 4
#define HCBT_ACTIVATE 5
#define HCBT_SETFOCUS 9
#define MSGF_DIALOGBOX 0
#define MSGF_USER 4096

WINUSERAPI HHOOK SetWindowsHookExA(int type, HOOKPROC proc, HINSTANCE module, DWORD thread)
    ZEB17_NAME(SetWindowsHookExA);
WINUSERAPI BOOL UnhookWindowsHookEx(HHOOK hook) ZEB17_NAME(UnhookWindowsHookEx);
WINUSERAPI LRESULT CallNextHookEx(HHOOK hook, int code, WPARAM wParam, LPARAM lParam)
    ZEB17_NAME(CallNextHookEx);
// While a Qt application runs its own loop, each message is offered here with MSGF_USER before it is
// translated and dispatched.
WINUSERAPI BOOL CallMsgFilterA(MSG* message, int code) ZEB17_NAME(CallMsgFilterA);
#define SetWindowsHookEx SetWindowsHookExA
#define CallMsgFilter CallMsgFilterA

// ---- focus, activation, mouse, keyboard ----

WINUSERAPI HWND SetFocus(HWND window) ZEB17_NAME(SetFocus);
WINUSERAPI HWND GetFocus(void) ZEB17_NAME(GetFocus);
WINUSERAPI HWND GetActiveWindow(void) ZEB17_NAME(GetActiveWindow);
// Once the pointer has left the window, it gets WM_MOUSELEAVE. Only TME_LEAVE is served.
WINUSERAPI BOOL TrackMouseEvent(LPTRACKMOUSEEVENT request) ZEB17_NAME(TrackMouseEvent);

#define IDC_ARROW MAKEINTRESOURCEA(32512)
#define IDC_IBEAM MAKEINTRESOURCEA(32513)

WINUSERAPI HCURSOR LoadCursorA(HINSTANCE instance, LPCSTR name) ZEB17_NAME(LoadCursorA);
WINUSERAPI HCURSOR SetCursor(HCURSOR cursor) ZEB17_NAME(SetCursor);
WINUSERAPI BOOL SetCursorPos(int x, int y) ZEB17_NAME(SetCursorPos);
#define LoadCursor LoadCursorA

WINUSERAPI SHORT GetKeyState(int key) ZEB17_NAME(GetKeyState);
WINUSERAPI BOOL SetKeyboardState(BYTE* state) ZEB17_NAME(SetKeyboardState);

// ---- painting ----

WINUSERAPI HDC GetDC(HWND window) ZEB17_NAME(GetDC);
WINUSERAPI int ReleaseDC(HWND window, HDC dc) ZEB17_NAME(ReleaseDC);
WINUSERAPI HDC BeginPaint(HWND window, LPPAINTSTRUCT paint) ZEB17_NAME(BeginPaint);
WINUSERAPI BOOL EndPaint(HWND window, const PAINTSTRUCT* paint) ZEB17_NAME(EndPaint);
WINUSERAPI BOOL InvalidateRect(HWND window, const RECT* rect, BOOL erase) ZEB17_NAME(InvalidateRect);
WINUSERAPI BOOL ValidateRect(HWND window, const RECT* rect) ZEB17_NAME(ValidateRect);
WINUSERAPI BOOL UpdateWindow(HWND window) ZEB17_NAME(UpdateWindow);
// False, and an empty rectangle, when nothing waits to be painted. Erases nothing, whatever `erase` says.
WINUSERAPI BOOL GetUpdateRect(HWND window, LPRECT rect, BOOL erase) ZEB17_NAME(GetUpdateRect);

// ---- the message box ----

#define MB_OK 0x00000000
#define MB_ICONEXCLAMATION 0x00000030
#define MB_ICONMASK 0x000000F0

// Shows a text, and no more than MB_OK and MB_ICONEXCLAMATION of `type`. The owner is disabled meanwhile.
// Without a caption the box says "Error". Gives IDOK; 0 when `type` asks for other buttons.
WINUSERAPI int MessageBoxA(HWND owner, LPCSTR text, LPCSTR caption, UINT type) ZEB17_NAME(MessageBoxA);
#define MessageBox MessageBoxA

// ---- controls ----

#define BS_PUSHBUTTON 0x0000
#define BS_DEFPUSHBUTTON 0x0001
#define BS_OWNERDRAW 0x000B
#define BS_TYPEMASK 0x000F
#define BS_LEFT 0x0100
#define BS_RIGHT 0x0200
#define BS_CENTER 0x0300
#define BS_TOP 0x0400
#define BS_BOTTOM 0x0800
#define BS_VCENTER 0x0C00

#define BN_CLICKED 0
#define BN_DOUBLECLICKED 5
#define BM_SETSTATE 0x00F3
#define BM_SETSTYLE 0x00F4
#define BM_CLICK 0x00F5
