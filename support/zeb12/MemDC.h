// A drawing buffer: what is drawn on it appears at once, when it goes.
#pragma once

#include <afxwin.h>
#include <zeb17_export.h>

class ZEB17_EXPORT CMemDC : public CDC
{
public:
    // Makes a surface for `rect`, which is drawn on in the coordinates of `pDC`. The surface's pixels
    // are undefined until drawn. `pDC` must outlive the object.
    CMemDC(CDC* pDC, const CRect& rect);

    // Copies the surface to `pDC`.
    ~CMemDC() override;

    CMemDC(const CMemDC&) = delete;
    CMemDC& operator=(const CMemDC&) = delete;

    // Whether there is a surface: false for a null context, an empty or inverted rectangle, or if the
    // system refused one. Then nothing may be drawn, and the destructor copies nothing.
    bool m_bIsValid = false;

private:
    CDC* m_pTarget;
    CRect m_rcTarget;
    CBitmap m_bitmap;
    HGDIOBJ m_hOldBitmap = nullptr;
};
