// A picture in memory to draw on and to look at.
#pragma once

#include <afxwin.h>

#include <algorithm>

class Canvas : public CDC
{
public:
    // With the pixels of a window, or those of the screen.
    Canvas(int nWidth, int nHeight, HWND hWnd = nullptr) : m_rect(0, 0, nWidth, nHeight)
    {
        const HDC hDC = ::GetDC(hWnd);
        Attach(::CreateCompatibleDC(hDC));
        m_bitmap.Attach(::CreateCompatibleBitmap(hDC, nWidth, nHeight));
        ::ReleaseDC(hWnd, hDC);
        m_hOldBitmap = ::SelectObject(m_hDC, m_bitmap.m_hObject);
        FillSolidRect(&m_rect, RGB(255, 255, 255));
    }
    ~Canvas() override { ::SelectObject(m_hDC, m_hOldBitmap); }

    const CRect& GetRect() const { return m_rect; }
    COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }

    // The smallest rectangle around all pixels inside `rect` that `isInk` holds for; empty if there are none.
    template <class Predicate>
    CRect FindInk(const CRect& rect, Predicate isInk) const
    {
        CRect rcInk(rect.right, rect.bottom, rect.left, rect.top);
        for (LONG y = rect.top; y < rect.bottom; ++y)
            for (LONG x = rect.left; x < rect.right; ++x)
                if (isInk(GetPixel(x, y)))
                    rcInk = CRect(std::min(rcInk.left, x), std::min(rcInk.top, y),
                                  std::max(rcInk.right, x + 1), std::max(rcInk.bottom, y + 1));
        return rcInk.left < rcInk.right ? rcInk : CRect();
    }
    CRect FindInk(COLORREF crPaper = RGB(255, 255, 255)) const
    {
        return FindInk(m_rect, [=](COLORREF cr) { return cr != crPaper; });
    }

private:
    CRect m_rect;
    CBitmap m_bitmap;
    HGDIOBJ m_hOldBitmap;
};
