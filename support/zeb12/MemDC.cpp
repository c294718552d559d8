// The surface of a drawing buffer, and its copying.
#include "MemDC.h"

CMemDC::CMemDC(CDC* pDC, const CRect& rect) : m_pTarget(pDC), m_rcTarget(rect)
{
    if (!pDC || rect.IsRectEmpty() || !CreateCompatibleDC(pDC))
        return;
    if (!m_bitmap.CreateCompatibleBitmap(pDC, rect.Width(), rect.Height()))
        return;

    m_hOldBitmap = ::SelectObject(m_hDC, m_bitmap.m_hObject);
    SetWindowOrg(rect.left, rect.top);
    m_bIsValid = m_hOldBitmap != nullptr;
}

CMemDC::~CMemDC()
{
    if (!m_bIsValid)
        return;
    m_pTarget->BitBlt(m_rcTarget.left, m_rcTarget.top, m_rcTarget.Width(), m_rcTarget.Height(), this,
                      m_rcTarget.left, m_rcTarget.top, SRCCOPY);
    ::SelectObject(m_hDC, m_hOldBitmap);
}
