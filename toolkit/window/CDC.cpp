// Device contexts, and the objects selected in them.
#include "ThreadState.h"

IMPLEMENT_DYNAMIC(CDC, CObject)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)
IMPLEMENT_DYNAMIC(CClientDC, CDC)

CDC* CDC::FromHandle(HDC hDC)
{
    return ThreadState::Current().contexts.FromHandle(hDC);
}

BOOL CDC::Attach(HDC hDC)
{
    if (!hDC || m_hDC)
        return FALSE;
    m_hDC = hDC;
    ThreadState::Current().contexts.Attach(hDC, this);
    return TRUE;
}

HDC CDC::Detach()
{
    const HDC hDC = std::exchange(m_hDC, nullptr);
    if (hDC)
        ThreadState::Current().contexts.Detach(hDC, this);
    return hDC;
}

BOOL CDC::CreateCompatibleDC(CDC* pDC)
{
    return Attach(::CreateCompatibleDC(pDC ? pDC->m_hDC : nullptr));
}

BOOL CDC::DeleteDC()
{
    const HDC hDC = Detach();
    return hDC && ::DeleteDC(hDC);
}

// ---- Selecting objects ----

CPen* CDC::SelectObject(CPen* pPen)
{
    return CPen::FromHandle(static_cast<HPEN>(SelectHandle(pPen)));
}

CBrush* CDC::SelectObject(CBrush* pBrush)
{
    return CBrush::FromHandle(static_cast<HBRUSH>(SelectHandle(pBrush)));
}

CFont* CDC::SelectObject(CFont* pFont)
{
    return CFont::FromHandle(static_cast<HFONT>(SelectHandle(pFont)));
}

CBitmap* CDC::SelectObject(CBitmap* pBitmap)
{
    return CBitmap::FromHandle(static_cast<HBITMAP>(SelectHandle(pBitmap)));
}

HGDIOBJ CDC::SelectHandle(const CGdiObject* pObject)
{
    return pObject ? ::SelectObject(m_hDC, pObject->m_hObject) : nullptr;
}

// ---- Calls that need more than the arguments passed on ----

CPoint CDC::SetWindowOrg(int x, int y)
{
    CPoint ptOld;
    ::SetWindowOrgEx(m_hDC, x, y, &ptOld);
    return ptOld;
}

CPoint CDC::MoveTo(int x, int y)
{
    CPoint ptOld;
    ::MoveToEx(m_hDC, x, y, &ptOld);
    return ptOld;
}

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr)
{
    ::SetBkColor(m_hDC, clr);
    ::ExtTextOutA(m_hDC, 0, 0, ETO_OPAQUE, lpRect, nullptr, 0, nullptr);
}

BOOL CDC::BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop)
{
    return ::BitBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC ? pSrcDC->m_hDC : nullptr, xSrc, ySrc, dwRop);
}

// ---- Contexts of windows ----

CPaintDC::CPaintDC(CWnd* pWnd) : m_hWnd(pWnd->m_hWnd)
{
    if (!Attach(::BeginPaint(m_hWnd, &m_ps)))
        AfxThrowResourceException();
}

CPaintDC::~CPaintDC()
{
    ::EndPaint(m_hWnd, &m_ps);
    Detach();
}

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(pWnd ? pWnd->m_hWnd : nullptr)
{
    const bool bGone = pWnd && !m_hWnd; // the system would give a context of the screen
    if (bGone || !Attach(::GetDC(m_hWnd)))
        AfxThrowResourceException();
}

CClientDC::~CClientDC()
{
    ::ReleaseDC(m_hWnd, Detach());
}
