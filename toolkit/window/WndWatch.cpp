// Whether the object of a window is still there after a call that may have ended it.
#include "WndWatch.h"

CWndWatch::CWndWatch(const CWnd& wnd) : m_pWnd(&wnd), m_pOuter(wnd.m_pWatch)
{
    wnd.m_pWatch = this;
}

CWndWatch::~CWndWatch()
{
    if (m_pWnd)
        m_pWnd->m_pWatch = m_pOuter;
}
