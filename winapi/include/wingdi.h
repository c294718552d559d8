// Device contexts, drawing objects and drawing.
//
// Contexts and objects belong to the thread of the windows. A context holds no painter open: each call draws
// and is done, so that several contexts may draw on one window at a time.
#pragma once

#include "windef.h"

// Raster operations.
#define SRCCOPY 0x00CC0020

// Background modes, text alignment, ExtTextOut options.
#define TRANSPARENT 1
#define OPAQUE 2
#define TA_NOUPDATECP 0
#define TA_LEFT 0
#define TA_TOP 0
#define TA_UPDATECP 1
#define TA_RIGHT 2
#define TA_CENTER 6
#define TA_BOTTOM 8
#define TA_BASELINE 24
#define ETO_OPAQUE 0x0002
#define ETO_CLIPPED 0x0004
#define CLR_INVALID 0xFFFFFFFF
#define GDI_ERROR 0xFFFFFFFFu
#define HGDI_ERROR (reinterpret_cast<HGDIOBJ>(static_cast<LONG_PTR>(-1)))

// Pens and brushes.
#define PS_SOLID 0
#define PS_DOT 2
#define PS_NULL 5
#define BS_SOLID 0
#define BS_NULL 1

// Objects of the system, for GetStockObject.
#define WHITE_BRUSH 0
#define LTGRAY_BRUSH 1
#define GRAY_BRUSH 2
#define DKGRAY_BRUSH 3
#define BLACK_BRUSH 4
#define NULL_BRUSH 5
#define HOLLOW_BRUSH NULL_BRUSH
#define WHITE_PEN 6
#define BLACK_PEN 7
#define NULL_PEN 8
#define ANSI_VAR_FONT 12
#define SYSTEM_FONT 13
#define DEFAULT_GUI_FONT 17

// Kinds of objects, for GetCurrentObject and GetObjectType.
#define OBJ_PEN 1
#define OBJ_BRUSH 2
#define OBJ_DC 3
#define OBJ_FONT 6
#define OBJ_BITMAP 7
#define OBJ_REGION 8
#define OBJ_MEMDC 10

// Regions.
#define ERROR 0
#define NULLREGION 1
#define SIMPLEREGION 2
#define COMPLEXREGION 3

// Device capabilities.
#define DRIVERVERSION 0
#define TECHNOLOGY 2
#define DT_RASDISPLAY 1
#define DT_RASPRINTER 2
#define HORZSIZE 4
#define VERTSIZE 6
#define HORZRES 8
#define VERTRES 10
#define BITSPIXEL 12
#define PLANES 14
#define NUMCOLORS 24
#define RASTERCAPS 38
#define RC_BITBLT 1
#define LOGPIXELSX 88
#define LOGPIXELSY 90
#define PHYSICALWIDTH 110
#define PHYSICALHEIGHT 111
#define PHYSICALOFFSETX 112
#define PHYSICALOFFSETY 113

// Mapping modes: a logical unit is a pixel, or what the extents of window and viewport say.
#define MM_TEXT 1
#define MM_ANISOTROPIC 8

// Fonts.
#define LF_FACESIZE 32
#define FW_DONTCARE 0
#define FW_LIGHT 300
#define FW_NORMAL 400
#define FW_BOLD 700
#define ANSI_CHARSET 0
#define DEFAULT_CHARSET 1
#define SYMBOL_CHARSET 2
#define OUT_DEFAULT_PRECIS 0
#define CLIP_DEFAULT_PRECIS 0
#define DEFAULT_QUALITY 0
#define CLEARTYPE_QUALITY 5
#define DEFAULT_PITCH 0
#define FIXED_PITCH 1
#define VARIABLE_PITCH 2
#define FF_DONTCARE 0x00
#define FF_ROMAN 0x10
#define FF_SWISS 0x20
#define FF_MODERN 0x30

// Paper and printing.
#define CCHDEVICENAME 32
#define CCHFORMNAME 32
#define DM_ORIENTATION 0x00000001
#define DM_PAPERSIZE 0x00000002
#define DM_COPIES 0x00000100
#define DM_PRINTQUALITY 0x00000400
#define DMORIENT_PORTRAIT 1
#define DMORIENT_LANDSCAPE 2
#define DMPAPER_LETTER 1
#define DMPAPER_LEGAL 5
#define DMPAPER_A3 8
#define DMPAPER_A4 9
#define DMPAPER_A5 11
#define SP_ERROR (-1)

struct LOGPEN
{
    UINT lopnStyle;
    POINT lopnWidth; // y unused
    COLORREF lopnColor;
};
struct LOGBRUSH
{
    UINT lbStyle;
    COLORREF lbColor;
    ULONG_PTR lbHatch;
};
struct LOGFONTA
{
    LONG lfHeight; // below 0: of the letters; above 0: of the line; in pixels
    LONG lfWidth;
    LONG lfEscapement;
    LONG lfOrientation;
    LONG lfWeight;
    BYTE lfItalic;
    BYTE lfUnderline;
    BYTE lfStrikeOut;
    BYTE lfCharSet;
    BYTE lfOutPrecision;
    BYTE lfClipPrecision;
    BYTE lfQuality;
    BYTE lfPitchAndFamily;
    CHAR lfFaceName[LF_FACESIZE];
};
using LOGFONT = LOGFONTA;
using LPLOGFONTA = LOGFONTA*;
using LPLOGFONT = LOGFONTA*;
struct TEXTMETRICA
{
    LONG tmHeight;
    LONG tmAscent;
    LONG tmDescent;
    LONG tmInternalLeading;
    LONG tmExternalLeading;
    LONG tmAveCharWidth;
    LONG tmMaxCharWidth;
    LONG tmWeight;
    LONG tmOverhang;
    LONG tmDigitizedAspectX;
    LONG tmDigitizedAspectY;
    BYTE tmFirstChar;
    BYTE tmLastChar;
    BYTE tmDefaultChar;
    BYTE tmBreakChar;
    BYTE tmItalic;
    BYTE tmUnderlined;
    BYTE tmStruckOut;
    BYTE tmPitchAndFamily;
    BYTE tmCharSet;
};
using TEXTMETRIC = TEXTMETRICA;
using LPTEXTMETRICA = TEXTMETRICA*;
using LPTEXTMETRIC = TEXTMETRICA*;
struct BITMAP
{
    LONG bmType;
    LONG bmWidth;
    LONG bmHeight;
    LONG bmWidthBytes;
    WORD bmPlanes;
    WORD bmBitsPixel;
    LPVOID bmBits;
};
struct DEVMODEA
{
    BYTE dmDeviceName[CCHDEVICENAME];
    WORD dmSpecVersion;
    WORD dmDriverVersion;
    WORD dmSize;
    WORD dmDriverExtra;
    DWORD dmFields;
    short dmOrientation;
    short dmPaperSize;
    short dmPaperLength;
    short dmPaperWidth;
    short dmScale;
    short dmCopies;
    short dmDefaultSource;
    short dmPrintQuality; // dots per inch when above 0
    short dmColor;
    short dmDuplex;
    short dmYResolution;
    short dmTTOption;
    short dmCollate;
    BYTE dmFormName[CCHFORMNAME];
    WORD dmLogPixels;
    DWORD dmBitsPerPel;
    DWORD dmPelsWidth;
    DWORD dmPelsHeight;
    DWORD dmDisplayFlags;
    DWORD dmDisplayFrequency;
};
using DEVMODE = DEVMODEA;
using LPDEVMODEA = DEVMODEA*;
using LPDEVMODE = DEVMODEA*;
struct DOCINFOA
{
    int cbSize;
    LPCSTR lpszDocName;
    LPCSTR lpszOutput; // a file to print to, or null
    LPCSTR lpszDatatype;
    DWORD fwType;
};
using DOCINFO = DOCINFOA;
using LPDOCINFOA = DOCINFOA*;

// Contexts. Memory contexts begin with a bitmap of one pixel, and are released by DeleteDC.
WINGDIAPI HDC CreateDCA(LPCSTR driver, LPCSTR device, LPCSTR port, const DEVMODEA* mode);
WINGDIAPI HDC CreateCompatibleDC(HDC dc);
WINGDIAPI BOOL DeleteDC(HDC dc);
WINGDIAPI int SaveDC(HDC dc);
WINGDIAPI BOOL RestoreDC(HDC dc, int level);
WINGDIAPI int GetDeviceCaps(HDC dc, int index);
WINGDIAPI int SetMapMode(HDC dc, int mode);
WINGDIAPI BOOL SetWindowExtEx(HDC dc, int width, int height, SIZE* old);
WINGDIAPI BOOL SetViewportExtEx(HDC dc, int width, int height, SIZE* old);
WINGDIAPI BOOL SetViewportOrgEx(HDC dc, int x, int y, POINT* old);
WINGDIAPI BOOL GetViewportOrgEx(HDC dc, POINT* origin);
WINGDIAPI BOOL SetWindowOrgEx(HDC dc, int x, int y, POINT* old);
WINGDIAPI BOOL GetWindowOrgEx(HDC dc, POINT* origin);
WINGDIAPI BOOL DPtoLP(HDC dc, POINT* points, int count);

// Objects. An object that is selected lives on, after DeleteObject, until another takes its place.
WINGDIAPI HGDIOBJ GetStockObject(int index);
WINGDIAPI HGDIOBJ SelectObject(HDC dc, HGDIOBJ object);
WINGDIAPI HGDIOBJ GetCurrentObject(HDC dc, UINT kind);
WINGDIAPI BOOL DeleteObject(HGDIOBJ object);
WINGDIAPI int GetObjectA(HANDLE object, int size, LPVOID data);
WINGDIAPI DWORD GetObjectType(HGDIOBJ object);
WINGDIAPI HPEN CreatePen(int style, int width, COLORREF color);
WINGDIAPI HBRUSH CreateSolidBrush(COLORREF color);
WINGDIAPI HBRUSH CreateBrushIndirect(const LOGBRUSH* brush);
WINGDIAPI HFONT CreateFontIndirectA(const LOGFONTA* font);
WINGDIAPI HBITMAP CreateCompatibleBitmap(HDC dc, int width, int height);

// The state of drawing. The setters return what held before.
WINGDIAPI COLORREF SetBkColor(HDC dc, COLORREF color);
WINGDIAPI COLORREF GetBkColor(HDC dc);
WINGDIAPI int SetBkMode(HDC dc, int mode);
WINGDIAPI int GetBkMode(HDC dc);
WINGDIAPI COLORREF SetTextColor(HDC dc, COLORREF color);
WINGDIAPI COLORREF GetTextColor(HDC dc);
WINGDIAPI UINT SetTextAlign(HDC dc, UINT align);
WINGDIAPI UINT GetTextAlign(HDC dc);

// Regions and clipping.
WINGDIAPI HRGN CreateRectRgn(int left, int top, int right, int bottom);
WINGDIAPI HRGN CreateRectRgnIndirect(const RECT* rect);
WINGDIAPI int GetRgnBox(HRGN region, RECT* box);
WINGDIAPI int SelectClipRgn(HDC dc, HRGN region);
WINGDIAPI int IntersectClipRect(HDC dc, int left, int top, int right, int bottom);
WINGDIAPI int ExcludeClipRect(HDC dc, int left, int top, int right, int bottom);
WINGDIAPI int GetClipBox(HDC dc, RECT* box);
WINGDIAPI BOOL RectVisible(HDC dc, const RECT* rect);

// Lines and shapes. A line leaves its last point out; shapes end before their right and bottom edges.
WINGDIAPI BOOL MoveToEx(HDC dc, int x, int y, POINT* old);
WINGDIAPI BOOL LineTo(HDC dc, int x, int y);
WINGDIAPI BOOL Polyline(HDC dc, const POINT* points, int count);
WINGDIAPI BOOL Polygon(HDC dc, const POINT* points, int count);
WINGDIAPI BOOL Rectangle(HDC dc, int left, int top, int right, int bottom);
WINGDIAPI BOOL Ellipse(HDC dc, int left, int top, int right, int bottom);
WINGDIAPI COLORREF SetPixel(HDC dc, int x, int y, COLORREF color);
WINGDIAPI COLORREF GetPixel(HDC dc, int x, int y);
WINGDIAPI BOOL BitBlt(HDC target, int x, int y, int width, int height, HDC source, int sourceX, int sourceY,
                      DWORD operation);

// Text, in UTF-8.
WINGDIAPI BOOL TextOutA(HDC dc, int x, int y, LPCSTR text, int length);
WINGDIAPI BOOL ExtTextOutA(HDC dc, int x, int y, UINT options, const RECT* rect, LPCSTR text, UINT length,
                           const INT* advances);
WINGDIAPI BOOL GetTextExtentPoint32A(HDC dc, LPCSTR text, int length, SIZE* size);
WINGDIAPI BOOL GetTextMetricsA(HDC dc, TEXTMETRICA* metrics);
WINGDIAPI int GetTextFaceA(HDC dc, int size, LPSTR name);

// Printing: a job of pages on a printer's context. Below or equal to 0 is failure.
WINGDIAPI int StartDocA(HDC dc, const DOCINFOA* document);
WINGDIAPI int EndDoc(HDC dc);
WINGDIAPI int AbortDoc(HDC dc);
WINGDIAPI int StartPage(HDC dc);
WINGDIAPI int EndPage(HDC dc);

#define CreateDC CreateDCA
#define GetObject GetObjectA
#define CreateFontIndirect CreateFontIndirectA
#define TextOut TextOutA
#define ExtTextOut ExtTextOutA
#define GetTextExtentPoint32 GetTextExtentPoint32A
#define GetTextMetrics GetTextMetricsA
#define GetTextFace GetTextFaceA
#define StartDoc StartDocA

// Drawing with the help of the window side: rectangles, formatted text, system colours and metrics.

// DrawText formats.
#define DT_TOP 0x0000
#define DT_LEFT 0x0000
#define DT_CENTER 0x0001
#define DT_RIGHT 0x0002
#define DT_VCENTER 0x0004
#define DT_BOTTOM 0x0008
#define DT_WORDBREAK 0x0010
#define DT_SINGLELINE 0x0020
#define DT_NOCLIP 0x0100
#define DT_EXTERNALLEADING 0x0200
#define DT_CALCRECT 0x0400
#define DT_NOPREFIX 0x0800
#define DT_END_ELLIPSIS 0x8000
#define DT_HIDEPREFIX 0x00100000

// System colours. An index plus 1 stands for its brush in FillRect and in window classes.
#define COLOR_SCROLLBAR 0
#define COLOR_BACKGROUND 1
#define COLOR_ACTIVECAPTION 2
#define COLOR_INACTIVECAPTION 3
#define COLOR_MENU 4
#define COLOR_WINDOW 5
#define COLOR_WINDOWFRAME 6
#define COLOR_MENUTEXT 7
#define COLOR_WINDOWTEXT 8
#define COLOR_CAPTIONTEXT 9
#define COLOR_ACTIVEBORDER 10
#define COLOR_INACTIVEBORDER 11
#define COLOR_APPWORKSPACE 12
#define COLOR_HIGHLIGHT 13
#define COLOR_HIGHLIGHTTEXT 14
#define COLOR_BTNFACE 15
#define COLOR_3DFACE COLOR_BTNFACE
#define COLOR_BTNSHADOW 16
#define COLOR_3DSHADOW COLOR_BTNSHADOW
#define COLOR_GRAYTEXT 17
#define COLOR_BTNTEXT 18
#define COLOR_INACTIVECAPTIONTEXT 19
#define COLOR_BTNHIGHLIGHT 20
#define COLOR_3DHILIGHT COLOR_BTNHIGHLIGHT
#define COLOR_3DDKSHADOW 21
#define COLOR_3DLIGHT 22
#define COLOR_INFOTEXT 23
#define COLOR_INFOBK 24
#define COLOR_HOTLIGHT 26
#define COLOR_GRADIENTACTIVECAPTION 27
#define COLOR_GRADIENTINACTIVECAPTION 28
#define COLOR_MENUHILIGHT 29
#define COLOR_MENUBAR 30

// System metrics.
#define SM_CXSCREEN 0
#define SM_CYSCREEN 1
#define SM_CXVSCROLL 2
#define SM_CYHSCROLL 3
#define SM_CYCAPTION 4
#define SM_CXBORDER 5
#define SM_CYBORDER 6
#define SM_CXDLGFRAME 7
#define SM_CYDLGFRAME 8
#define SM_CXICON 11
#define SM_CYICON 12
#define SM_CXCURSOR 13
#define SM_CYCURSOR 14
#define SM_CYMENU 15
#define SM_CYVSCROLL 20
#define SM_CXHSCROLL 21
#define SM_CXFRAME 32
#define SM_CYFRAME 33
#define SM_CXDOUBLECLK 36
#define SM_CYDOUBLECLK 37
#define SM_CXEDGE 45
#define SM_CYEDGE 46
#define SM_CXSMICON 49
#define SM_CYSMICON 50
#define SM_CXDRAG 68
#define SM_CYDRAG 69
#define SM_CXMENUCHECK 71
#define SM_CYMENUCHECK 72
#define SM_CXVIRTUALSCREEN 78
#define SM_CYVIRTUALSCREEN 79

WINUSERAPI int GetSystemMetrics(int index);
WINUSERAPI DWORD GetSysColor(int index);
WINUSERAPI HBRUSH GetSysColorBrush(int index);

WINUSERAPI BOOL SetRect(RECT* rect, int left, int top, int right, int bottom);
WINUSERAPI BOOL SetRectEmpty(RECT* rect);
WINUSERAPI BOOL CopyRect(RECT* target, const RECT* source);
WINUSERAPI BOOL InflateRect(RECT* rect, int dx, int dy);
WINUSERAPI BOOL OffsetRect(RECT* rect, int dx, int dy);
WINUSERAPI BOOL IntersectRect(RECT* target, const RECT* first, const RECT* second);
WINUSERAPI BOOL UnionRect(RECT* target, const RECT* first, const RECT* second);
WINUSERAPI BOOL IsRectEmpty(const RECT* rect);
WINUSERAPI BOOL EqualRect(const RECT* first, const RECT* second);
WINUSERAPI BOOL PtInRect(const RECT* rect, POINT point);

WINUSERAPI int FillRect(HDC dc, const RECT* rect, HBRUSH brush);
WINUSERAPI int FrameRect(HDC dc, const RECT* rect, HBRUSH brush);
WINUSERAPI BOOL InvertRect(HDC dc, const RECT* rect);
WINUSERAPI BOOL DrawFocusRect(HDC dc, const RECT* rect);
WINUSERAPI int DrawTextA(HDC dc, LPCSTR text, int length, RECT* rect, UINT format);

#define DrawText DrawTextA
