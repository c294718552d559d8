// The common controls.
#pragma once

#include <afxwin.h>
#include <commctrl.h>

/// The window that shows tips over tools: over windows, or over rectangles in a window.
class ZEB17_EXPORT CToolTipCtrl : public CWnd
{
    DECLARE_DYNAMIC(CToolTipCtrl)
public:
    /// Creates the control as a popup owned by the parent. Style: TTS_ flags.
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = 0);

    /// Adds a tool: a rectangle of the window with an id other than 0, or without both the window itself.
    /// LPSTR_TEXTCALLBACK asks for the text with TTN_NEEDTEXT whenever it is to be shown.
    BOOL AddTool(CWnd* pWnd, LPCTSTR lpszText = LPSTR_TEXTCALLBACK, LPCRECT lpRectTool = nullptr,
                 UINT_PTR nIDTool = 0);
    void DelTool(CWnd* pWnd, UINT_PTR nIDTool = 0);
    /// Gives the text of a tool; empty for one that doesn't exist.
    void GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    int GetToolCount() const { return static_cast<int>(::SendMessageA(m_hWnd, TTM_GETTOOLCOUNT, 0, 0)); }

    /// Shows the control a message of a window with tools.
    void RelayEvent(MSG* lpMsg) { SendMessage(TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(lpMsg)); }
    void Pop() { SendMessage(TTM_POP); }
};
