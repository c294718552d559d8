// A popup menu from a resource, whose items the target window has enabled and disabled.
#pragma once

#include <afxwin.h>
#include <zeb17_export.h>

class ZEB17_EXPORT CImageMenu : public CMenu
{
public:
    CImageMenu();

    // Destroys the menu.
    virtual ~CImageMenu();

    // Loads the first popup of menu resource `nResource` of the current resource module and lets the
    // update handlers of `pTarget` set each item. A disabled item shows in grey; an item without an
    // update handler stays as the resource has it. The caller owns the object; null if there is no such
    // menu or no target.
    CImageMenu* LoadFilteredPopupMenu(UINT nResource, CWnd* pTarget);

    // Shows the popup at a point of the screen and returns when it has closed. The chosen command
    // reaches `pTarget` as WM_COMMAND. Zero if the menu could not be shown, which the last error explains.
    int TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pTarget, const RECT* pRect);

private:
    void UpdateItems(CWnd* pTarget);
};
