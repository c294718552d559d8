// The tool tip control: its tools, by the messages that it takes.
#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)

namespace {

// The description of a tool: the rectangle of that id in the window; or, without an id, the window itself as
// a tool in its parent.
TOOLINFOA DescribeTool(const CWnd* pWnd, UINT_PTR nIDTool)
{
    TOOLINFOA tool{};
    tool.cbSize = TTTOOLINFOA_V1_SIZE; // every version of the control knows this size
    const HWND hWnd = pWnd ? pWnd->m_hWnd : nullptr;
    tool.hwnd = nIDTool ? hWnd : ::GetParent(hWnd);
    tool.uId = nIDTool ? nIDTool : reinterpret_cast<UINT_PTR>(hWnd);
    tool.uFlags = nIDTool ? 0 : TTF_IDISHWND;
    return tool;
}

LRESULT SendTool(HWND hWndControl, UINT message, TOOLINFOA& tool)
{
    return ::SendMessageA(hWndControl, message, 0, reinterpret_cast<LPARAM>(&tool));
}

}

BOOL CToolTipCtrl::Create(CWnd* pParentWnd, DWORD dwStyle)
{
    return CreateEx(0, TOOLTIPS_CLASSA, nullptr, WS_POPUP | dwStyle, CW_USEDEFAULT, CW_USEDEFAULT,
                    CW_USEDEFAULT, CW_USEDEFAULT, pParentWnd ? pParentWnd->m_hWnd : nullptr, nullptr);
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, LPCTSTR lpszText, LPCRECT lpRectTool, UINT_PTR nIDTool)
{
    TOOLINFOA tool = DescribeTool(pWnd, nIDTool);
    if (lpRectTool)
        tool.rect = *lpRectTool;
    tool.lpszText = const_cast<LPSTR>(lpszText); // the control only reads it
    return SendTool(m_hWnd, TTM_ADDTOOLA, tool) != 0;
}

void CToolTipCtrl::DelTool(CWnd* pWnd, UINT_PTR nIDTool)
{
    TOOLINFOA tool = DescribeTool(pWnd, nIDTool);
    SendTool(m_hWnd, TTM_DELTOOLA, tool);
}
