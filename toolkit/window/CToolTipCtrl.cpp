#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)

BOOL CToolTipCtrl::Create(CWnd* pParentWnd, DWORD dwStyle)
{
    return CreateEx(0, TOOLTIPS_CLASSA, nullptr, WS_POPUP | dwStyle, CW_USEDEFAULT, CW_USEDEFAULT,
                    CW_USEDEFAULT, CW_USEDEFAULT, pParentWnd ? pParentWnd->m_hWnd : nullptr, nullptr);
}

// Names a tool as AddTool does: by the window and its id, or with no id the window itself, in its parent.
static TOOLINFOA NameTool(const CWnd* pWnd, UINT_PTR nIDTool)
{
    TOOLINFOA tool{};
    tool.cbSize = TTTOOLINFOA_V1_SIZE; // understood by every version of the control
    const HWND hWnd = pWnd ? pWnd->m_hWnd : nullptr;
    tool.hwnd = nIDTool ? hWnd : ::GetParent(hWnd);
    tool.uId = nIDTool ? nIDTool : reinterpret_cast<UINT_PTR>(hWnd);
    tool.uFlags = nIDTool ? 0 : TTF_IDISHWND;
    return tool;
}

static LRESULT SendTool(HWND hWndControl, UINT message, WPARAM wParam, TOOLINFOA& tool)
{
    return ::SendMessageA(hWndControl, message, wParam, reinterpret_cast<LPARAM>(&tool));
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, LPCTSTR lpszText, LPCRECT lpRectTool, UINT_PTR nIDTool)
{
    TOOLINFOA tool = NameTool(pWnd, nIDTool);
    if (lpRectTool)
        tool.rect = *lpRectTool;
    tool.lpszText = const_cast<LPSTR>(lpszText); // only read
    return SendTool(m_hWnd, TTM_ADDTOOLA, 0, tool) != 0;
}

void CToolTipCtrl::DelTool(CWnd* pWnd, UINT_PTR nIDTool)
{
    TOOLINFOA tool = NameTool(pWnd, nIDTool);
    SendTool(m_hWnd, TTM_DELTOOLA, 0, tool);
}

void CToolTipCtrl::GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool) const
{
    constexpr int capacity = 1024;
    TOOLINFOA tool = NameTool(pWnd, nIDTool);
    tool.lpszText = str.GetBuffer(capacity);
    *tool.lpszText = '\0'; // stays for a tool that doesn't exist
    SendTool(m_hWnd, TTM_GETTEXTA, capacity, tool);
    str.ReleaseBuffer();
}
