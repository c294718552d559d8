#include <afxwin.h>

void CCmdUI::Enable(BOOL bOn)
{
    m_bEnableChanged = TRUE;
    if (m_pMenu) {
        if (!m_pSubMenu)
            m_pMenu->EnableMenuItem(m_nIndex, MF_BYPOSITION | (bOn ? MF_ENABLED : MF_DISABLED | MF_GRAYED));
    } else if (m_pOther) {
        m_pOther->EnableWindow(bOn);
    }
}

void CCmdUI::SetCheck(int nCheck)
{
    if (m_pMenu) {
        if (!m_pSubMenu)
            m_pMenu->CheckMenuItem(m_nIndex, MF_BYPOSITION | (nCheck ? MF_CHECKED : MF_UNCHECKED));
    } else if (m_pOther) {
        m_pOther->SendMessage(BM_SETCHECK, static_cast<WPARAM>(nCheck));
    }
}

void CCmdUI::SetText(LPCTSTR lpszText)
{
    if (m_pMenu) {
        if (m_pSubMenu)
            return;
        const UINT kept =
            m_pMenu->GetMenuState(m_nIndex, MF_BYPOSITION) & (MF_GRAYED | MF_DISABLED | MF_CHECKED);
        m_pMenu->ModifyMenu(m_nIndex, MF_BYPOSITION | MF_STRING | kept, m_nID, lpszText);
    } else if (m_pOther) {
        m_pOther->SetWindowText(lpszText);
    }
}

BOOL CCmdUI::DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler)
{
    if (m_nID == 0 || LOWORD(m_nID) == 0xFFFF)
        return TRUE; // a separator, or the title of a submenu

    m_bEnableChanged = FALSE;
    const BOOL handled = pTarget->OnCmdMsg(m_nID, static_cast<int>(CN_UPDATE_COMMAND_UI), this, nullptr);
    if (bDisableIfNoHndler && !m_bEnableChanged) {
        AFX_CMDHANDLERINFO info;
        Enable(pTarget->OnCmdMsg(m_nID, CN_COMMAND, nullptr, &info));
    }
    return handled;
}
