// The tool tip that the toolkit shows for the children of a window.
#include "threadstate.h"

BOOL CWnd::PreTranslateMessage(MSG* pMsg)
{
    if (m_bToolTips && pMsg)
        FilterToolTipMessage(pMsg);
    return FALSE;
}

static void DeleteSharedTool(SharedToolTip& shared)
{
    if (shared.tool.hwnd && shared.control.m_hWnd)
        shared.control.SendMessage(TTM_DELTOOL, 0, reinterpret_cast<LPARAM>(&shared.tool));
    shared.tool = {};
}

BOOL CWnd::EnableToolTips(BOOL bEnable)
{
    SharedToolTip& shared = ThreadState::Current().toolTip;
    if (!bEnable && m_bToolTips && shared.tool.hwnd == m_hWnd)
        DeleteSharedTool(shared);
    m_bToolTips = bEnable;
    return TRUE;
}

static bool HoldsPoint(HWND hWndChild, POINT screenPoint)
{
    RECT rect;
    return (::GetWindowLongA(hWndChild, GWL_STYLE) & WS_VISIBLE) && ::GetWindowRect(hWndChild, &rect) &&
           ::PtInRect(&rect, screenPoint);
}

INT_PTR CWnd::OnToolHitTest(CPoint point, TOOLINFOA* pTI) const
{
    ClientToScreen(&point);
    HWND child = ::GetWindow(m_hWnd, GW_CHILD);
    while (child && !HoldsPoint(child, point))
        child = ::GetWindow(child, GW_HWNDNEXT);
    if (!child)
        return -1;
    if (pTI) {
        pTI->hwnd = m_hWnd;
        pTI->uFlags = TTF_IDISHWND;
        pTI->uId = reinterpret_cast<UINT_PTR>(child);
        pTI->lpszText = LPSTR_TEXTCALLBACK;
    }
    return ::GetDlgCtrlID(child);
}

// The tool's window gets the pointer's messages, except a disabled one, whose parent gets them.
static MSG AddressToTool(const MSG& message, const TOOLINFOA& tool)
{
    if (!(tool.uFlags & TTF_IDISHWND))
        return message;
    MSG addressed = message;
    addressed.hwnd = reinterpret_cast<HWND>(tool.uId);
    CPoint point(message.lParam);
    ::MapWindowPoints(message.hwnd, addressed.hwnd, &point, 1);
    addressed.lParam = MAKELPARAM(point.x, point.y);
    return addressed;
}

void CWnd::FilterToolTipMessage(MSG* pMsg)
{
    SharedToolTip& shared = ThreadState::Current().toolTip;
    if (pMsg->message == WM_KEYDOWN || pMsg->message == WM_SYSKEYDOWN) {
        if (shared.control.m_hWnd)
            shared.control.Pop();
        return;
    }
    if (pMsg->message < WM_MOUSEFIRST || pMsg->message > WM_MBUTTONDBLCLK)
        return;

    CPoint point(pMsg->lParam);
    ::MapWindowPoints(pMsg->hwnd, m_hWnd, &point, 1);
    TOOLINFOA tool{};
    tool.cbSize = TTTOOLINFOA_V1_SIZE;
    if (OnToolHitTest(point, &tool) == -1) {
        DeleteSharedTool(shared);
        return;
    }
    // The control goes with the top-level window that owns it.
    if (!shared.control.m_hWnd && !shared.control.Create(this, TTS_ALWAYSTIP))
        return;
    if (tool.hwnd != shared.tool.hwnd || tool.uId != shared.tool.uId) {
        DeleteSharedTool(shared);
        shared.control.SendMessage(TTM_ADDTOOL, 0, reinterpret_cast<LPARAM>(&tool));
        shared.tool = tool;
    }
    MSG relayed = AddressToTool(*pMsg, tool);
    shared.control.RelayEvent(&relayed);
}
