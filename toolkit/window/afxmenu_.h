// Menus, and the update of what gives a command.
#pragma once

#include <afx.h>
#include <windows.h>

class CCmdTarget;
class CWnd;

/// A menu. Owns its handle as a CGdiObject does.
class ZEB17_EXPORT CMenu : public CObject
{
    DECLARE_DYNAMIC(CMenu)
public:
    CMenu() = default;
    ~CMenu() override { DestroyMenu(); }

    static CMenu* FromHandle(HMENU hMenu);
    /// Takes the handle over. False if it is null or this object has one already.
    BOOL Attach(HMENU hMenu);
    /// Gives the handle away.
    HMENU Detach();
    BOOL CreateMenu() { return Attach(::CreateMenu()); }
    BOOL CreatePopupMenu() { return Attach(::CreatePopupMenu()); }
    /// Looks in the current resource module first, then in the extension modules.
    BOOL LoadMenu(LPCTSTR lpszResourceName);
    BOOL LoadMenu(UINT nIDResource) { return LoadMenu(MAKEINTRESOURCEA(nIDResource)); }
    BOOL DestroyMenu();
    HMENU GetSafeHmenu() const { return m_hMenu; }
    operator HMENU() const { return m_hMenu; }

    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr)
    {
        return ::AppendMenuA(m_hMenu, nFlags, nIDNewItem, lpszNewItem);
    }
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr)
    {
        return ::ModifyMenuA(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
    }
    BOOL RemoveMenu(UINT nPosition, UINT nFlags) { return ::RemoveMenu(m_hMenu, nPosition, nFlags); }
    UINT EnableMenuItem(UINT nIDEnableItem, UINT nEnable)
    {
        return static_cast<UINT>(::EnableMenuItem(m_hMenu, nIDEnableItem, nEnable));
    }
    UINT CheckMenuItem(UINT nIDCheckItem, UINT nCheck)
    {
        return ::CheckMenuItem(m_hMenu, nIDCheckItem, nCheck);
    }
    UINT GetMenuItemCount() const { return static_cast<UINT>(::GetMenuItemCount(m_hMenu)); }
    UINT GetMenuItemID(int nPos) const { return ::GetMenuItemID(m_hMenu, nPos); }
    UINT GetMenuState(UINT nID, UINT nFlags) const { return ::GetMenuState(m_hMenu, nID, nFlags); }
    int GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const;
    CMenu* GetSubMenu(int nPos) const;
    /// Shows the menu at a screen position; the commands go to the window. Zero on failure.
    BOOL TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect = nullptr);

    HMENU m_hMenu = nullptr;
};

/// What an update handler is called with: the menu item or the control that gives the command.
class ZEB17_EXPORT CCmdUI
{
public:
    CCmdUI() = default;
    virtual ~CCmdUI() = default;

    virtual void Enable(BOOL bOn = TRUE);
    /// 0 is off, 1 is on.
    virtual void SetCheck(int nCheck = 1);
    virtual void SetText(LPCTSTR lpszText);
    /// Gives the command to the target's update handler, and says whether it has one. If asked to, disables
    /// the item when neither this handler has set its state nor any handler would carry the command out.
    BOOL DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);

    UINT m_nID = 0;
    UINT m_nIndex = 0;           ///< position in the menu
    CMenu* m_pMenu = nullptr;    ///< the menu that holds the item, null for a control
    CMenu* m_pSubMenu = nullptr; ///< the submenu that the item opens, if it does
    CWnd* m_pOther = nullptr;    ///< the control
    BOOL m_bEnableChanged = FALSE;
    UINT m_nIndexMax = 0; ///< number of items in the menu
};
