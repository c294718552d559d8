#include "threadstate.h"

IMPLEMENT_DYNAMIC(CMenu, CObject)

CMenu* CMenu::FromHandle(HMENU hMenu)
{
    return ThreadState::Current().menus.FromHandle(hMenu);
}

BOOL CMenu::Attach(HMENU hMenu)
{
    if (!hMenu || m_hMenu)
        return FALSE;
    m_hMenu = hMenu;
    ThreadState::Current().menus.Attach(hMenu, this);
    return TRUE;
}

HMENU CMenu::Detach()
{
    const HMENU hMenu = std::exchange(m_hMenu, nullptr);
    if (hMenu)
        ThreadState::Current().menus.Detach(hMenu, this);
    return hMenu;
}

BOOL CMenu::LoadMenu(LPCTSTR lpszResourceName)
{
    return Attach(::LoadMenuA(AfxFindResourceHandle(lpszResourceName, RT_MENU), lpszResourceName));
}

BOOL CMenu::DestroyMenu()
{
    const HMENU hMenu = Detach();
    return hMenu && ::DestroyMenu(hMenu);
}

int CMenu::GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const
{
    const int length = ::GetMenuStringA(m_hMenu, nIDItem, nullptr, 0, nFlags);
    ::GetMenuStringA(m_hMenu, nIDItem, rString.GetBuffer(length), length + 1, nFlags);
    rString.ReleaseBuffer();
    return rString.GetLength();
}

CMenu* CMenu::GetSubMenu(int nPos) const
{
    return FromHandle(::GetSubMenu(m_hMenu, nPos));
}

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect)
{
    return ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, pWnd ? pWnd->m_hWnd : nullptr, lpRect);
}
