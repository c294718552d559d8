#include "ImageMenu.h"
#include <memory>

CImageMenu::CImageMenu() = default;

CImageMenu::~CImageMenu() = default;

CImageMenu* CImageMenu::LoadFilteredPopupMenu(UINT nResource, CWnd* pTarget)
{
    CMenu bar;
    if (!pTarget || !bar.LoadMenu(nResource))
        return nullptr;

    // Taken off its bar, the popup outlives it.
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
    CCmdUI state;
    state.m_pMenu = this;
    state.m_nIndexMax = ::GetMenuItemCount(m_hMenu);
    for (state.m_nIndex = 0; state.m_nIndex < state.m_nIndexMax; ++state.m_nIndex) {
        state.m_nID = ::GetMenuItemID(m_hMenu, static_cast<int>(state.m_nIndex));
        const bool bIsCommand = state.m_nID != 0 && state.m_nID != static_cast<UINT>(-1);
        if (bIsCommand)
            state.DoUpdate(pTarget, FALSE);
    }
}
