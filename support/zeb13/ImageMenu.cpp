// Loading, updating and showing a popup menu.
#include "ImageMenu.h"

#include <memory>

CImageMenu::CImageMenu() = default;

CImageMenu::~CImageMenu() = default;

CImageMenu* CImageMenu::LoadFilteredPopupMenu(UINT nResource, CWnd* pTarget)
{
    CMenu bar;
    if (!pTarget || !bar.LoadMenu(nResource))
        return nullptr;

    // A popup that is taken off its bar is not destroyed with the bar.
    const HMENU hPopup = ::GetSubMenu(bar.m_hMenu, 0);
    if (!hPopup || !::RemoveMenu(bar.m_hMenu, 0, MF_BYPOSITION))
        return nullptr;

    auto pMenu = std::make_unique<CImageMenu>();
    pMenu->Attach(hPopup);
    pMenu->UpdateItems(pTarget);
    return pMenu.release();
}

int CImageMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pTarget, const RECT* pRect)
{
    return ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, pTarget ? pTarget->m_hWnd : nullptr, pRect);
}

void CImageMenu::UpdateItems(CWnd* pTarget)
{
    CCmdUI item;
    item.m_pMenu = this;
    const int nItems = ::GetMenuItemCount(m_hMenu);
    for (int i = 0; i < nItems; ++i) {
        item.m_nIndex = static_cast<UINT>(i);
        item.m_nID = ::GetMenuItemID(m_hMenu, i);
        item.DoUpdate(pTarget);
    }
}
