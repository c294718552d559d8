// A popup menu from a resource, whose items the target window enables and disables.
#pragma once

#include <afxwin.h>
#include <zeb17_export.h>

class ZEB17_EXPORT CImageMenu : public CMenu
{
public:
    CImageMenu();

    // Destroys the menu.
    ~CImageMenu() override;

    // Loads the first popup of a menu resource, and lets the update handlers of pTarget enable and disable
    // its items. An item without an update handler stays as the resource has it. The caller owns the new
    // object, which holds the popup; null if there is no such resource or pTarget is null.
    CImageMenu* LoadFilteredPopupMenu(UINT nResource, CWnd* pTarget);

    // Shows the popup at a point of the screen and returns when it has closed. The chosen command goes to
    // pTarget as WM_COMMAND. A press elsewhere closes the popup and does nothing more. 0 if the menu could
    // not be shown; the thread's last error then tells why.
    int TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pTarget, const RECT* pRect);

private:
    void UpdateItems(CWnd* pTarget);
};
