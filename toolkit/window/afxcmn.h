// The tool tip control.
#pragma once

#include <afxwnd_.h>
#include <commctrl.h>

// The window that shows tips over its tools, which are windows or rectangles in a window.
class ZEB17_EXPORT CToolTipCtrl : public CWnd
{
    DECLARE_DYNAMIC(CToolTipCtrl)
public:
    // Creates the control as a popup owned by the parent. Style: TTS_ flags.
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = 0);

    // Adds a tool: a rectangle of the window, with an id other than 0; or the window itself, with neither
    // rectangle nor id. With LPSTR_TEXTCALLBACK the window is asked for the text with TTN_NEEDTEXT each time
    // the tip is shown.
    BOOL AddTool(CWnd* pWnd, LPCTSTR lpszText = LPSTR_TEXTCALLBACK, LPCRECT lpRectTool = nullptr,
                 UINT_PTR nIDTool = 0);
    void DelTool(CWnd* pWnd, UINT_PTR nIDTool = 0);

    // Tells the control of a message to a window with tools, so that it sees the pointer come and go.
    void RelayEvent(MSG* lpMsg) { SendMessage(TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(lpMsg)); }
    // Hides the tip that is shown.
    void Pop() { SendMessage(TTM_POP); }
};
