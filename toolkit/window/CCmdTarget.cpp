// The search of message maps, and commands on their way to a handler.
#include <afxwnd_.h>

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

namespace {

const AFX_MSGMAP_ENTRY* FindInMap(const AFX_MSGMAP& map, UINT nMessage, UINT nCode, UINT nID)
{
    for (const AFX_MSGMAP_ENTRY* pEntry = map.lpEntries; pEntry->pfnHandler; ++pEntry)
        if (pEntry->nMessage == nMessage && pEntry->nCode == nCode && nID >= pEntry->nID &&
            nID <= pEntry->nLastID)
            return pEntry;
    return nullptr;
}

}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const
{
    return GetThisMessageMap();
}

const AFX_MSGMAP* CCmdTarget::GetThisMessageMap()
{
    static constexpr AFX_MSGMAP_ENTRY kEntries[] = {{0, 0, 0, 0, nullptr}};
    static constexpr AFX_MSGMAP kMap = {nullptr, kEntries};
    return &kMap;
}

const AFX_MSGMAP_ENTRY* CCmdTarget::FindEntry(UINT nMessage, UINT nCode, UINT nID) const
{
    const AFX_MSGMAP* pMap = GetMessageMap();
    while (pMap) {
        if (const AFX_MSGMAP_ENTRY* pEntry = FindInMap(*pMap, nMessage, nCode, nID))
            return pEntry;
        pMap = pMap->pfnGetBaseMap ? pMap->pfnGetBaseMap() : nullptr;
    }
    return nullptr;
}

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra)
{
    const UINT nMessage = HIWORD(nCode) ? HIWORD(nCode) : WM_COMMAND;
    const UINT nHandlerCode = LOWORD(nCode);
    const AFX_MSGMAP_ENTRY* pEntry = FindEntry(nMessage, nHandlerCode, nID);
    if (!pEntry)
        return FALSE;

    AFX_EVENT event;
    event.nID = nID;
    if (nMessage == WM_NOTIFY) {
        const auto* pNotify = static_cast<const AFX_NOTIFY*>(pExtra);
        event.pNMHDR = pNotify->pNMHDR;
        event.pResult = pNotify->pResult;
    } else if (nHandlerCode == CN_UPDATE_COMMAND_UI) {
        event.pCmdUI = static_cast<CCmdUI*>(pExtra);
    }
    return pEntry->pfnHandler(this, event);
}

CWnd* AfxArg::WParamWnd(const AFX_EVENT& e)
{
    return CWnd::FromHandle(reinterpret_cast<HWND>(e.wParam));
}

CDC* AfxArg::WParamDC(const AFX_EVENT& e)
{
    return CDC::FromHandle(reinterpret_cast<HDC>(e.wParam));
}
