// Drawing: the objects that a device context draws with, and device contexts. Included by afxwin.h.
//
// An object owns the handle that it has created or that was attached to it, and releases the handle at its
// end. FromHandle gives the object that owns the handle, or else a temporary object, which does not own the
// handle and lives until the message loop is idle.
#pragma once

#include <afx.h>
#include <windows.h>

#include <atltypes.h>

class CDC;
class CWnd;

// A pen, brush, font or bitmap.
class ZEB17_EXPORT CGdiObject : public CObject
{
    DECLARE_DYNAMIC(CGdiObject)
public:
    CGdiObject() = default;
    ~CGdiObject() override { DeleteObject(); }

    // Takes the handle over. False if it is null or this object has one already.
    BOOL Attach(HGDIOBJ hObject);
    // Gives the handle away.
    HGDIOBJ Detach();
    // Releases the handle. False if there is none.
    BOOL DeleteObject();

    HGDIOBJ m_hObject = nullptr;
};

// What lines are drawn with.
class ZEB17_EXPORT CPen : public CGdiObject
{
    DECLARE_DYNAMIC(CPen)
public:
    CPen() = default;
    // Throws a CResourceException if the pen can't be made.
    CPen(int nPenStyle, int nWidth, COLORREF crColor);

    static CPen* FromHandle(HPEN hPen);
    // Width in pixels; 0 is 1 pixel in every mapping.
    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor)
    {
        return Attach(::CreatePen(nPenStyle, nWidth, crColor));
    }
    operator HPEN() const { return static_cast<HPEN>(m_hObject); }
};

// What areas are filled with.
class ZEB17_EXPORT CBrush : public CGdiObject
{
    DECLARE_DYNAMIC(CBrush)
public:
    CBrush() = default;
    // Throws a CResourceException if the brush can't be made.
    explicit CBrush(COLORREF crColor);

    static CBrush* FromHandle(HBRUSH hBrush);
    BOOL CreateSolidBrush(COLORREF crColor) { return Attach(::CreateSolidBrush(crColor)); }
    operator HBRUSH() const { return static_cast<HBRUSH>(m_hObject); }
};

// What texts are drawn in.
class ZEB17_EXPORT CFont : public CGdiObject
{
    DECLARE_DYNAMIC(CFont)
public:
    CFont() = default;

    static CFont* FromHandle(HFONT hFont);
    BOOL CreateFontIndirect(const LOGFONTA* lpLogFont) { return Attach(::CreateFontIndirectA(lpLogFont)); }
    operator HFONT() const { return static_cast<HFONT>(m_hObject); }
};

// A picture to draw into or from.
class ZEB17_EXPORT CBitmap : public CGdiObject
{
    DECLARE_DYNAMIC(CBitmap)
public:
    CBitmap() = default;

    static CBitmap* FromHandle(HBITMAP hBitmap);
    BOOL CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight);
    operator HBITMAP() const { return static_cast<HBITMAP>(m_hObject); }
};

// A device context. Each call is the system's call of that name on the context's handle.
class ZEB17_EXPORT CDC : public CObject
{
    DECLARE_DYNAMIC(CDC)
public:
    CDC() = default;
    // Deletes the context, if there is one.
    ~CDC() override { DeleteDC(); }

    static CDC* FromHandle(HDC hDC);
    // Takes the handle over. False if it is null or this object has one already.
    BOOL Attach(HDC hDC);
    // Gives the handle away.
    HDC Detach();
    BOOL CreateCompatibleDC(CDC* pDC);
    BOOL DeleteDC();
    HDC GetSafeHdc() const { return m_hDC; }
    operator HDC() const { return m_hDC; }
    int GetDeviceCaps(int nIndex) const { return ::GetDeviceCaps(m_hDC, nIndex); }

    // Selects an object, and gives the one that was selected before; null on failure.
    CPen* SelectObject(CPen* pPen);
    CBrush* SelectObject(CBrush* pBrush);
    CFont* SelectObject(CFont* pFont);
    CBitmap* SelectObject(CBitmap* pBitmap);

    COLORREF SetBkColor(COLORREF crColor) { return ::SetBkColor(m_hDC, crColor); }
    int SetBkMode(int nBkMode) { return ::SetBkMode(m_hDC, nBkMode); }
    COLORREF SetTextColor(COLORREF crColor) { return ::SetTextColor(m_hDC, crColor); }
    CPoint SetWindowOrg(int x, int y);

    // Gives the place from which the next line would have been drawn.
    CPoint MoveTo(int x, int y);
    // Draws up to the place, but not its own pixel.
    BOOL LineTo(int x, int y) { return ::LineTo(m_hDC, x, y); }
    BOOL Polygon(const POINT* lpPoints, int nCount) { return ::Polygon(m_hDC, lpPoints, nCount); }
    BOOL Rectangle(LPCRECT lpRect)
    {
        return ::Rectangle(m_hDC, lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    int FrameRect(LPCRECT lpRect, CBrush* pBrush) { return ::FrameRect(m_hDC, lpRect, *pBrush); }
    BOOL DrawFocusRect(LPCRECT lpRect) { return ::DrawFocusRect(m_hDC, lpRect); }
    // Fills the rectangle. The background colour of the context is that colour afterwards.
    void FillSolidRect(LPCRECT lpRect, COLORREF clr);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF clr)
    {
        FillSolidRect(CRect(CPoint(x, y), CSize(cx, cy)), clr);
    }
    BOOL BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop);

    int DrawText(const CString& str, LPRECT lpRect, UINT nFormat)
    {
        return ::DrawTextA(m_hDC, str, str.GetLength(), lpRect, nFormat);
    }
    BOOL GetTextMetrics(TEXTMETRICA* lpMetrics) const { return ::GetTextMetricsA(m_hDC, lpMetrics); }

    int StartDoc(const DOCINFOA* lpDocInfo) { return ::StartDocA(m_hDC, lpDocInfo); }
    int StartPage() { return ::StartPage(m_hDC); }
    int EndPage() { return ::EndPage(m_hDC); }
    int EndDoc() { return ::EndDoc(m_hDC); }
    int AbortDoc() { return ::AbortDoc(m_hDC); }

    HDC m_hDC = nullptr;

private:
    HGDIOBJ SelectHandle(const CGdiObject* pObject);
};

// The context of a WM_PAINT message, from BeginPaint to EndPaint.
class ZEB17_EXPORT CPaintDC : public CDC
{
    DECLARE_DYNAMIC(CPaintDC)
public:
    // Throws a CResourceException if there is no context.
    explicit CPaintDC(CWnd* pWnd);
    ~CPaintDC() override;

    PAINTSTRUCT m_ps;

protected:
    HWND m_hWnd;
};

// The context of a window's client area at any time.
class ZEB17_EXPORT CClientDC : public CDC
{
    DECLARE_DYNAMIC(CClientDC)
public:
    // A null window stands for the screen. Throws a CResourceException if there is no context.
    explicit CClientDC(CWnd* pWnd);
    ~CClientDC() override;

protected:
    HWND m_hWnd;
};
