// The tool tip that the toolkit shows for the children of a window.
#include "ThreadState.h"

#include <algorithm>
#include <iterator>

namespace {

void DeleteSharedTool(SharedToolTip& shared)
{
    if (shared.tool.hwnd && shared.control.m_hWnd)
        shared.control.SendMessage(TTM_DELTOOL, 0, reinterpret_cast<LPARAM>(&shared.tool));
    shared.tool = {};
}

bool HoldsPoint(HWND hWndChild, POINT ptScreen)
{
    RECT rect;
    return (::GetWindowLongA(hWndChild, GWL_STYLE) & WS_VISIBLE) && ::GetWindowRect(hWndChild, &rect) &&
           ::PtInRect(&rect, ptScreen);
}

// Turns a message of the pointer into one to the window of the tool. The message is addressed to the parent
// if that window is disabled.
MSG AddressToTool(const MSG& message, const TOOLINFOA& tool)
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

}

BOOL CWnd::PreTranslateMessage(MSG* pMsg)
{
    if (m_bToolTips && pMsg)
        FilterToolTipMessage(pMsg);
    return FALSE;
}

BOOL CWnd::EnableToolTips(BOOL bEnable)
{
    SharedToolTip& shared = ThreadState::Current().toolTip;
    if (!bEnable && m_bToolTips && shared.tool.hwnd == m_hWnd)
        DeleteSharedTool(shared);
    m_bToolTips = bEnable;
    return TRUE;
}

INT_PTR CWnd::OnToolHitTest(CPoint point, TOOLINFOA* pTI) const
{
    ::ClientToScreen(m_hWnd, &point);
    HWND hChild = ::GetWindow(m_hWnd, GW_CHILD);
    while (hChild && !HoldsPoint(hChild, point))
        hChild = ::GetWindow(hChild, GW_HWNDNEXT);
    if (!hChild)
        return -1;
    if (pTI) {
        pTI->hwnd = m_hWnd;
        pTI->uFlags = TTF_IDISHWND;
        pTI->uId = reinterpret_cast<UINT_PTR>(hChild);
        pTI->lpszText = LPSTR_TEXTCALLBACK;
    }
    return ::GetDlgCtrlID(hChild);
}

void CWnd::FilterToolTipMessage(MSG* pMsg)
{
    SharedToolTip& shared = ThreadState::Current().toolTip;
    // What these do may change what the tip tells.
    constexpr UINT kTipEnders[] = {WM_KEYDOWN, WM_SYSKEYDOWN, WM_MOUSEWHEEL, WM_MOUSEHWHEEL};
    if (std::ranges::find(kTipEnders, pMsg->message) != std::end(kTipEnders)) {
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
    // The tip is destroyed together with the top-level window that owns it, or by whoever closes windows, and
    // is then made anew, without a tool.
    if (!shared.control.m_hWnd) {
        shared.tool = {};
        if (!shared.control.Create(this, TTS_ALWAYSTIP))
            return;
    }
    if (tool.hwnd != shared.tool.hwnd || tool.uId != shared.tool.uId) {
        DeleteSharedTool(shared);
        shared.control.SendMessage(TTM_ADDTOOL, 0, reinterpret_cast<LPARAM>(&tool));
        shared.tool = tool;
    }
    MSG relayed = AddressToTool(*pMsg, tool);
    shared.control.RelayEvent(&relayed);
}
