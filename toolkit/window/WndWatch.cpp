// The list of the watches of each object.
#include "WndWatch.h"

#include <utility>

CWndWatch::CWndWatch(const CWnd& wnd) : m_pWnd(&wnd), m_pNext(std::exchange(wnd.m_pWatches, this)) {}

// As a rule this watch is the first of the list, since it was made last.
CWndWatch::~CWndWatch()
{
    if (!m_pWnd)
        return;
    CWndWatch** ppWatch = &m_pWnd->m_pWatches;
    while (*ppWatch != this)
        ppWatch = &(*ppWatch)->m_pNext;
    *ppWatch = m_pNext;
}

void CWndWatch::End(const CWnd& wnd)
{
    for (CWndWatch* pWatch = std::exchange(wnd.m_pWatches, nullptr); pWatch; pWatch = pWatch->m_pNext)
        pWatch->m_pWnd = nullptr;
}
