// Menus, and the updates of their items. Included by afxwin.h.
#pragma once

#include <afx.h>
#include <windows.h>

class CCmdTarget;

// A menu. The object owns the handle, and destroys the menu at its end.
class ZEB17_EXPORT CMenu : public CObject
{
    DECLARE_DYNAMIC(CMenu)
public:
    CMenu() = default;
    ~CMenu() override { DestroyMenu(); }

    // Takes the handle over. False if it is null or this object has one already.
    BOOL Attach(HMENU hMenu);
    // Looks for the resource in the current resource module first, then in the extension modules.
    BOOL LoadMenu(LPCTSTR lpszResourceName);
    BOOL LoadMenu(UINT nIDResource) { return LoadMenu(MAKEINTRESOURCEA(nIDResource)); }
    // False if there is no menu.
    BOOL DestroyMenu();

    UINT EnableMenuItem(UINT nIDEnableItem, UINT nEnable)
    {
        return static_cast<UINT>(::EnableMenuItem(m_hMenu, nIDEnableItem, nEnable));
    }

    HMENU m_hMenu = nullptr;
};

// What an update handler is called with: a menu item that gives a command.
class ZEB17_EXPORT CCmdUI
{
public:
    CCmdUI() = default;
    virtual ~CCmdUI() = default;

    // Enables the item, or greys and disables it.
    virtual void Enable(BOOL bOn = TRUE);
    // Lets the update handler of the target set the item, if there is one. Does nothing for a separator and
    // for the title of a submenu.
    void DoUpdate(CCmdTarget* pTarget);

    UINT m_nID = 0;           // the command
    UINT m_nIndex = 0;        // the place of the item in the menu
    CMenu* m_pMenu = nullptr; // the menu that holds the item
};
