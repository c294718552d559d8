#include <afxwin.h>

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const
{
    return GetThisMessageMap();
}

const AFX_MSGMAP* CCmdTarget::GetThisMessageMap()
{
    static constexpr AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, nullptr}};
    static constexpr AFX_MSGMAP map = {nullptr, entries};
    return &map;
}

static const AFX_MSGMAP_ENTRY* FindInMap(const AFX_MSGMAP& map, UINT nMessage, UINT nCode, UINT nID)
{
    for (const AFX_MSGMAP_ENTRY* entry = map.lpEntries; entry->pfnHandler; ++entry)
        if (entry->nMessage == nMessage && entry->nCode == nCode && nID >= entry->nID &&
            nID <= entry->nLastID)
            return entry;
    return nullptr;
}

const AFX_MSGMAP_ENTRY* CCmdTarget::FindEntry(UINT nMessage, UINT nCode, UINT nID) const
{
    const AFX_MSGMAP* map = GetMessageMap();
    while (map) {
        if (const AFX_MSGMAP_ENTRY* entry = FindInMap(*map, nMessage, nCode, nID))
            return entry;
        map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr;
    }
    return nullptr;
}

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    const UINT message = HIWORD(nCode) ? HIWORD(nCode) : WM_COMMAND;
    const UINT code = LOWORD(nCode);
    const AFX_MSGMAP_ENTRY* entry = FindEntry(message, code, nID);
    if (!entry)
        return FALSE;
    if (pHandlerInfo) {
        *pHandlerInfo = {this, entry->pfnHandler};
        return TRUE;
    }

    AFX_EVENT event;
    event.nID = nID;
    if (message == WM_NOTIFY) {
        const auto* notify = static_cast<const AFX_NOTIFY*>(pExtra);
        event.pNMHDR = notify->pNMHDR;
        event.pResult = notify->pResult;
    } else if (code == CN_UPDATE_COMMAND_UI) {
        event.pCmdUI = static_cast<CCmdUI*>(pExtra);
    }
    return entry->pfnHandler(this, event);
}

CWnd* AfxArg::WParamWnd(const AFX_EVENT& e)
{
    return CWnd::FromHandle(reinterpret_cast<HWND>(e.wParam));
}

CWnd* AfxArg::LParamWnd(const AFX_EVENT& e)
{
    return CWnd::FromHandle(reinterpret_cast<HWND>(e.lParam));
}

CDC* AfxArg::WParamDC(const AFX_EVENT& e)
{
    return CDC::FromHandle(reinterpret_cast<HDC>(e.wParam));
}
