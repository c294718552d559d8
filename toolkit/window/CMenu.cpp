// Menus, and their loading from the resources of a module.
#include <afxdll_.h>

#include <utility>

IMPLEMENT_DYNAMIC(CMenu, CObject)

BOOL CMenu::Attach(HMENU hMenu)
{
    if (!hMenu || m_hMenu)
        return FALSE;
    m_hMenu = hMenu;
    return TRUE;
}

BOOL CMenu::LoadMenu(LPCTSTR lpszResourceName)
{
    return Attach(::LoadMenuA(AfxFindResourceHandle(lpszResourceName, RT_MENU), lpszResourceName));
}

BOOL CMenu::DestroyMenu()
{
    const HMENU hMenu = std::exchange(m_hMenu, nullptr);
    return hMenu && ::DestroyMenu(hMenu);
}
