// Device contexts, drawing objects, drawing, printing, and the system's colours and sizes.
//
// Contexts and objects belong to the thread of the windows. Several contexts may draw on one window at a
// time.
#pragma once

#include "windef.h"

// Raster operations.
#define SRCCOPY 0x00CC0020

// Background modes, and the option of ExtTextOut.
#define TRANSPARENT 1
#define OPAQUE 2
#define ETO_OPAQUE 0x0002
#define CLR_INVALID 0xFFFFFFFF

// Pens and brushes.
#define PS_SOLID 0

// Objects of the system, for GetStockObject.
#define WHITE_BRUSH 0

// Device capabilities.
#define HORZRES 8
#define VERTRES 10
#define LOGPIXELSX 88
#define LOGPIXELSY 90
#define PHYSICALWIDTH 110
#define PHYSICALHEIGHT 111
#define PHYSICALOFFSETX 112
#define PHYSICALOFFSETY 113

// Mapping modes: a logical unit is a pixel (MM_TEXT), or what the extents of window and viewport say.
#define MM_TEXT 1
#define MM_ANISOTROPIC 8

// Fonts.
#define LF_FACESIZE 32
#define FW_LIGHT 300
#define FW_NORMAL 400
#define FW_BOLD 700
#define DEFAULT_CHARSET 1

// Paper and printing.
#define CCHDEVICENAME 32
#define CCHFORMNAME 32
#define DM_ORIENTATION 0x00000001
#define DM_PAPERSIZE 0x00000002
#define DM_PAPERLENGTH 0x00000004
#define DM_PAPERWIDTH 0x00000008
#define DM_COPIES 0x00000100
#define DM_PRINTQUALITY 0x00000400
#define DMORIENT_PORTRAIT 1
#define DMORIENT_LANDSCAPE 2
#define SP_ERROR (-1)

typedef struct LOGFONTA
{
    LONG lfHeight; // in logical units; below 0: of the letters; above 0: of the line
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
} LOGFONTA;
typedef struct TEXTMETRICA
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
} TEXTMETRICA;
typedef struct DEVMODEA
{
    BYTE dmDeviceName[CCHDEVICENAME];
    WORD dmSpecVersion;
    WORD dmDriverVersion;
    WORD dmSize;
    WORD dmDriverExtra;
    DWORD dmFields;
    short dmOrientation;
    short dmPaperSize;
    short dmPaperLength; // in tenths of a millimetre, standing upright; with dmPaperWidth before dmPaperSize
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
} DEVMODEA;
typedef struct DOCINFOA
{
    int cbSize;
    LPCSTR lpszDocName;
    LPCSTR lpszOutput; // a file to print to, or null
    LPCSTR lpszDatatype;
    DWORD fwType;
} DOCINFOA;

// Contexts. A memory context begins with a bitmap of one pixel, and is released by DeleteDC.
WINGDIAPI HDC CreateCompatibleDC(HDC dc) ZEB17_NAME(CreateCompatibleDC);
WINGDIAPI BOOL DeleteDC(HDC dc) ZEB17_NAME(DeleteDC);
// A context of a printer. `port`: the file that the printer which stands in writes to. `mode` may be null.
WINGDIAPI HDC CreateDCA(LPCSTR driver, LPCSTR device, LPCSTR port, const DEVMODEA* mode)
    ZEB17_NAME(CreateDCA);
WINGDIAPI int GetDeviceCaps(HDC dc, int index) ZEB17_NAME(GetDeviceCaps);
WINGDIAPI int SetMapMode(HDC dc, int mode) ZEB17_NAME(SetMapMode);
WINGDIAPI BOOL SetWindowExtEx(HDC dc, int width, int height, SIZE* old) ZEB17_NAME(SetWindowExtEx);
WINGDIAPI BOOL SetViewportExtEx(HDC dc, int width, int height, SIZE* old) ZEB17_NAME(SetViewportExtEx);
WINGDIAPI BOOL SetWindowOrgEx(HDC dc, int x, int y, POINT* old) ZEB17_NAME(SetWindowOrgEx);
WINGDIAPI BOOL DPtoLP(HDC dc, POINT* points, int count) ZEB17_NAME(DPtoLP);

// Objects. A selected object lives on after DeleteObject until another takes its place. SelectObject gives
// the object that was selected before, or null if there is no such context or object, or if the bitmap is in
// another context.
WINGDIAPI HGDIOBJ GetStockObject(int index) ZEB17_NAME(GetStockObject); // WHITE_BRUSH only
WINGDIAPI HGDIOBJ SelectObject(HDC dc, HGDIOBJ object) ZEB17_NAME(SelectObject);
WINGDIAPI BOOL DeleteObject(HGDIOBJ object) ZEB17_NAME(DeleteObject);
WINGDIAPI HPEN CreatePen(int style, int width, COLORREF color)
    ZEB17_NAME(CreatePen); // PS_SOLID only; width 0 is 1 pixel
WINGDIAPI HBRUSH CreateSolidBrush(COLORREF color) ZEB17_NAME(CreateSolidBrush);
WINGDIAPI HFONT CreateFontIndirectA(const LOGFONTA* font) ZEB17_NAME(CreateFontIndirectA);
WINGDIAPI HBITMAP CreateCompatibleBitmap(HDC dc, int width, int height) ZEB17_NAME(CreateCompatibleBitmap);

// How a context draws. The setters return the value before.
WINGDIAPI COLORREF SetBkColor(HDC dc, COLORREF color) ZEB17_NAME(SetBkColor);
WINGDIAPI int SetBkMode(HDC dc, int mode) ZEB17_NAME(SetBkMode);
WINGDIAPI COLORREF SetTextColor(HDC dc, COLORREF color) ZEB17_NAME(SetTextColor);

// Lines, shapes and pixels. A line leaves its last point out; shapes end before their right and bottom edges.
WINGDIAPI BOOL MoveToEx(HDC dc, int x, int y, POINT* old) ZEB17_NAME(MoveToEx);
WINGDIAPI BOOL LineTo(HDC dc, int x, int y) ZEB17_NAME(LineTo);
WINGDIAPI BOOL Polygon(HDC dc, const POINT* points, int count) ZEB17_NAME(Polygon);
WINGDIAPI BOOL Rectangle(HDC dc, int left, int top, int right, int bottom) ZEB17_NAME(Rectangle);
WINGDIAPI COLORREF GetPixel(HDC dc, int x, int y) ZEB17_NAME(GetPixel);
WINGDIAPI BOOL BitBlt(HDC target, int x, int y, int width, int height, HDC source, int sourceX, int sourceY,
                      DWORD operation) ZEB17_NAME(BitBlt);

// Text, in UTF-8. DrawText below writes it.
// Only fills `rect` with the background colour: the option has to be ETO_OPAQUE, and the length 0.
WINGDIAPI BOOL ExtTextOutA(HDC dc, int x, int y, UINT options, const RECT* rect, LPCSTR text, UINT length,
                           const INT* advances) ZEB17_NAME(ExtTextOutA);
WINGDIAPI BOOL GetTextMetricsA(HDC dc, TEXTMETRICA* metrics) ZEB17_NAME(GetTextMetricsA);

// Printing: a job of pages on a printer's context, which PrintDlg gives. Failure is 0 or less, and sets the
// last error.
WINGDIAPI int StartDocA(HDC dc, const DOCINFOA* document) ZEB17_NAME(StartDocA);
WINGDIAPI int EndDoc(HDC dc) ZEB17_NAME(EndDoc);
WINGDIAPI int AbortDoc(HDC dc) ZEB17_NAME(AbortDoc);
WINGDIAPI int StartPage(HDC dc) ZEB17_NAME(StartPage);
WINGDIAPI int EndPage(HDC dc) ZEB17_NAME(EndPage);

#define CreateFontIndirect CreateFontIndirectA
#define ExtTextOut ExtTextOutA
#define GetTextMetrics GetTextMetricsA
#define StartDoc StartDocA

// Formats of DrawText.
#define DT_LEFT 0x0000
#define DT_CENTER 0x0001
#define DT_RIGHT 0x0002
#define DT_VCENTER 0x0004
#define DT_WORDBREAK 0x0010
#define DT_SINGLELINE 0x0020
#define DT_CALCRECT 0x0400
#define DT_NOPREFIX 0x0800
#define DT_END_ELLIPSIS 0x8000
#define DT_HIDEPREFIX 0x00100000

// Colours of the system. In FillRect and in window classes, the index plus 1 stands for the colour's brush.
#define COLOR_WINDOW 5
#define COLOR_WINDOWTEXT 8
#define COLOR_HIGHLIGHT 13
#define COLOR_HIGHLIGHTTEXT 14
#define COLOR_BTNFACE 15
#define COLOR_BTNSHADOW 16
#define COLOR_GRAYTEXT 17
#define COLOR_BTNTEXT 18
#define COLOR_BTNHIGHLIGHT 20
#define COLOR_3DLIGHT 22

// Sizes of the system's parts: scroll bars.
#define SM_CXVSCROLL 2
#define SM_CYHSCROLL 3

WINUSERAPI int GetSystemMetrics(int index) ZEB17_NAME(GetSystemMetrics);
WINUSERAPI DWORD GetSysColor(int index) ZEB17_NAME(GetSysColor);

WINUSERAPI BOOL PtInRect(const RECT* rect, POINT point) ZEB17_NAME(PtInRect);

WINUSERAPI int FillRect(HDC dc, const RECT* rect, HBRUSH brush) ZEB17_NAME(FillRect);
WINUSERAPI int FrameRect(HDC dc, const RECT* rect, HBRUSH brush) ZEB17_NAME(FrameRect);
WINUSERAPI BOOL DrawFocusRect(HDC dc, const RECT* rect) ZEB17_NAME(DrawFocusRect);
WINUSERAPI int DrawTextA(HDC dc, LPCSTR text, int length, RECT* rect, UINT format) ZEB17_NAME(DrawTextA);

#define DrawText DrawTextA
