// The updates of menu items.
#include <afxwnd_.h>

void CCmdUI::Enable(BOOL bOn)
{
    m_pMenu->EnableMenuItem(m_nIndex, MF_BYPOSITION | (bOn ? MF_ENABLED : MF_DISABLED | MF_GRAYED));
}

void CCmdUI::DoUpdate(CCmdTarget* pTarget)
{
    const bool bCommand = m_nID != 0 && LOWORD(m_nID) != 0xFFFF;
    if (bCommand)
        pTarget->OnCmdMsg(m_nID, static_cast<int>(CN_UPDATE_COMMAND_UI), this);
}
