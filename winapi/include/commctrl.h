// The tool-tip control. It shows the text of a tool, a window or a part of one, on which the pointer rests.
#pragma once

#include "winuser.h"

#define ICC_WIN95_CLASSES 0x000000FF

typedef struct INITCOMMONCONTROLSEX
{
    DWORD dwSize;
    DWORD dwICC;
} INITCOMMONCONTROLSEX;

// Gives TRUE; the class needs no preparation.
WINCOMMCTRLAPI BOOL InitCommonControlsEx(const INITCOMMONCONTROLSEX* request)
    ZEB17_NAME(InitCommonControlsEx);

#define TOOLTIPS_CLASSA "tooltips_class32"
#define TOOLTIPS_CLASS TOOLTIPS_CLASSA

#define TTS_ALWAYSTIP 0x01

#define TTF_IDISHWND 0x0001

#define TTM_ADDTOOLA (WM_USER + 4)
#define TTM_DELTOOLA (WM_USER + 5)
#define TTM_RELAYEVENT (WM_USER + 7)
#define TTM_GETTEXTA (WM_USER + 11)
#define TTM_GETTOOLCOUNT (WM_USER + 13)
#define TTM_POP (WM_USER + 28)
#define TTM_ADDTOOL TTM_ADDTOOLA
#define TTM_DELTOOL TTM_DELTOOLA

#define TTN_FIRST (0u - 520u)
#define TTN_GETDISPINFOA (TTN_FIRST - 0)
#define TTN_SHOW (TTN_FIRST - 1)
#define TTN_POP (TTN_FIRST - 2)
#define TTN_GETDISPINFOW (TTN_FIRST - 10)
#define TTN_GETDISPINFO TTN_GETDISPINFOA
#define TTN_NEEDTEXTA TTN_GETDISPINFOA
#define TTN_NEEDTEXTW TTN_GETDISPINFOW
#define TTN_NEEDTEXT TTN_NEEDTEXTA

#define LPSTR_TEXTCALLBACKA (ZEB17_AS(LPSTR, ZEB17_CAST(INT_PTR, -1)))
#define LPSTR_TEXTCALLBACK LPSTR_TEXTCALLBACKA

typedef struct TOOLINFOA
{
    UINT cbSize;
    UINT uFlags;
    HWND hwnd;
    UINT_PTR uId;
    RECT rect;
    HINSTANCE hinst;
    LPSTR lpszText;
    LPARAM lParam;
    void* lpReserved;
} TOOLINFOA;

typedef struct NMTTDISPINFOA
{
    NMHDR hdr;
    LPSTR lpszText;
    char szText[80];
    HINSTANCE hinst;
    UINT uFlags;
    LPARAM lParam;
} NMTTDISPINFOA;
typedef NMTTDISPINFOA TOOLTIPTEXTA;

typedef struct NMTTDISPINFOW
{
    NMHDR hdr;
    LPWSTR lpszText;
    WCHAR szText[80];
    HINSTANCE hinst;
    UINT uFlags;
    LPARAM lParam;
} NMTTDISPINFOW;
typedef NMTTDISPINFOW TOOLTIPTEXTW;

#define TTTOOLINFOA_V1_SIZE (offsetof(TOOLINFOA, lParam))
