// A drawing buffer. All that is drawn on it appears on the target in one step, when the buffer ends.
#pragma once

#include <afxwin.h>
#include <zeb17_export.h>

class ZEB17_EXPORT CMemDC : public CDC
{
public:
    // Makes a surface for the rectangle, on which things are drawn in the coordinates of pDC. Its pixels are
    // undefined until they are drawn. pDC must outlive the object.
    CMemDC(CDC* pDC, const CRect& rect);

    // Copies the surface to pDC.
    ~CMemDC() override;

    CMemDC(const CMemDC&) = delete;
    CMemDC& operator=(const CMemDC&) = delete;

    // Whether there is a surface. False if pDC is null, if the rectangle is empty or inverted, or if the
    // system gives no surface; then nothing may be drawn on the object, and the destructor copies nothing.
    bool m_bIsValid = false;

private:
    CDC* m_pTarget;
    CRect m_rcTarget;
    CBitmap m_bitmap;
    HGDIOBJ m_hOldBitmap = nullptr;
};
