// Command targets and windows. Included by afxwin.h.
#pragma once

#include <afx.h>
#include <windows.h>
#include <commctrl.h>

#include <atltypes.h>
#include <afxgdi_.h>
#include <afxmenu_.h>
#include <afxmsg_.h>

class CWndWatch;

// A notification on its way to its handler.
struct AFX_NOTIFY
{
    LRESULT* pResult;
    NMHDR* pNMHDR;
};

// The base of all classes that have a message map.
class ZEB17_EXPORT CCmdTarget : public CObject
{
    DECLARE_DYNAMIC(CCmdTarget)
public:
    // Brings a command to its handler, and says whether there is one.
    //
    // nCode: in the low word the code of the command, or CN_COMMAND or CN_UPDATE_COMMAND_UI; in the high word
    // WM_NOTIFY for a notification, otherwise 0 or WM_COMMAND. pExtra: the CCmdUI of an update, the
    // AFX_NOTIFY of a notification, otherwise null.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra);

protected:
    CCmdTarget() = default;

    static const AFX_MSGMAP* GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;

    // The entry of this class's message map, or of the nearest one above it that has such an entry; null if
    // none has.
    const AFX_MSGMAP_ENTRY* FindEntry(UINT nMessage, UINT nCode, UINT nID) const;
};

// The object of a window's handle. Messages reach it through WindowProc and the message map.
//
// An object owns its window. When the object ends, a window that is still there is destroyed; when the window
// ends first, the object is left without a handle. The destructor of a derived class calls DestroyWindow
// first, so that no message of the window reaches an object of which a part is gone.
//
// A handler may do anything, even destroy the window and delete the object. Code that goes on after a call
// that may run such a handler watches the object (WndWatch.h).
//
// A CException that leaves a handler must not cross the frames of the system, so it ends at the window
// procedure: CWinApp::ProcessWndProcException gets it, and the message counts as handled. Any other exception
// that leaves a handler ends the program. An exception outside of a handler reaches the caller as usual.
class ZEB17_EXPORT CWnd : public CCmdTarget
{
    DECLARE_DYNAMIC(CWnd)
public:
    CWnd() = default;
    ~CWnd() override;

    // Destroys the window, not the object. False if there is no window.
    virtual BOOL DestroyWindow();
    // Finds the tool at the point, which is in client coordinates: the hit code of the tool, or -1 for none,
    // and the tool itself in *pTI if pTI is not null. Here the tool is the child window at the point.
    virtual INT_PTR OnToolHitTest(CPoint point, TOOLINFOA* pTI) const;
    // Sees a message before it is dispatched; TRUE keeps it from being dispatched.
    virtual BOOL PreTranslateMessage(MSG* pMsg);

    // Handle and object

    // The object of the window: the permanent one, or else a temporary one; null for null.
    static CWnd* FromHandle(HWND hWnd);
    // The permanent object of the window, or null.
    static CWnd* FromHandlePermanent(HWND hWnd);
    // Makes this the permanent object of the window. False if hWnd is null or this object has a window
    // already.
    BOOL Attach(HWND hWnd);
    HWND Detach();
    // As Attach, and the window's messages go to this object.
    BOOL SubclassWindow(HWND hWnd);
    HWND UnsubclassWindow();
    HWND GetSafeHwnd() const { return m_hWnd; }
    operator HWND() const { return m_hWnd; }

    // Creation

    // Creates the window, with this object as its permanent one from the first message on. A null class name
    // stands for a plain class. False if there is no window in the end.
    BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x, int y,
                  int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam = nullptr);
    BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                  const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam = nullptr);

    // State, place and text

    BOOL EnableWindow(BOOL bEnable = TRUE) { return ::EnableWindow(m_hWnd, bEnable); }
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    BOOL ShowWindow(int nCmdShow) { return ::ShowWindow(m_hWnd, nCmdShow); }
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE)
    {
        ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
    }
    void GetClientRect(LPRECT lpRect) const { ::GetClientRect(m_hWnd, lpRect); }
    void GetWindowRect(LPRECT lpRect) const { ::GetWindowRect(m_hWnd, lpRect); }
    void SetWindowText(LPCTSTR lpszString) { ::SetWindowTextA(m_hWnd, lpszString); }
    int GetWindowText(LPTSTR lpszString, int nMaxCount) const
    {
        return ::GetWindowTextA(m_hWnd, lpszString, nMaxCount);
    }
    void GetWindowText(CString& rString) const;
    int GetWindowTextLength() const { return ::GetWindowTextLengthA(m_hWnd); }
    void SetFont(CFont* pFont, BOOL bRedraw = TRUE);
    int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }

    // Relatives and focus

    CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
    // Gives the window that had the focus.
    CWnd* SetFocus() { return m_hWnd ? FromHandle(::SetFocus(m_hWnd)) : nullptr; }
    static CWnd* GetFocus() { return FromHandle(::GetFocus()); }

    // Messages and timers

    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        return ::SendMessageA(m_hWnd, message, wParam, lParam);
    }
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        return ::PostMessageA(m_hWnd, message, wParam, lParam);
    }
    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse, TIMERPROC lpfnTimer = nullptr)
    {
        return ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer);
    }
    BOOL KillTimer(UINT_PTR nIDEvent) { return ::KillTimer(m_hWnd, nIDEvent); }

    // Painting

    void Invalidate(BOOL bErase = TRUE) { InvalidateRect(nullptr, bErase); }
    void InvalidateRect(LPCRECT lpRect, BOOL bErase = TRUE)
    {
        if (m_hWnd) // without a window the system would invalidate all that there are
            ::InvalidateRect(m_hWnd, lpRect, bErase);
    }
    void UpdateWindow() { ::UpdateWindow(m_hWnd); }
    CDC* GetDC() { return CDC::FromHandle(::GetDC(m_hWnd)); }
    // Gives back the context that GetDC gave. The object must not be used afterwards.
    int ReleaseDC(CDC* pDC) { return pDC ? ::ReleaseDC(m_hWnd, pDC->Detach()) : 0; }

    // Tool tips of children

    // Turns the toolkit's own tool tip for the children of this window on or off. This window is asked for
    // each text with TTN_NEEDTEXT, in which idFrom is the child's handle; without a text no tip is shown.
    BOOL EnableToolTips(BOOL bEnable = TRUE);

    // Offers the message to the window that it is addressed to, and then to each ancestor up to hWndStop.
    static BOOL WalkPreTranslateTree(HWND hWndStop, MSG* pMsg);

    HWND m_hWnd = nullptr;

protected:
    // Creates a child window of the class. What the Create of each control calls; WS_CHILD is added to
    // dwStyle.
    BOOL CreateChild(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                     CWnd* pParentWnd, UINT nID);

    // Brings a message to its handler, or to DefWindowProc if there is none.
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    // Sees a message about this control that the system sends to its parent. TRUE keeps it from the parent.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    // Called last in the life of a window, when the object has no handle any more. The object may delete
    // itself here.
    virtual void PostNcDestroy();

    // Does what the system does with the message at hand, with the parameters that it came with. Does nothing
    // if the message at hand is another window's, as in a handler that was called by hand.
    LRESULT Default();
    // The message at hand: its number, its parameters, its time and the place of the pointer.
    static const MSG* GetCurrentMessage();

    // What a window does with the messages of the ON_WM_ macros unless a derived class has a handler of its
    // own.
    afx_msg void OnDestroy() { Default(); }
    afx_msg BOOL OnEraseBkgnd(CDC*) { return Default() != 0; }
    afx_msg void OnKeyDown(UINT, UINT, UINT) { Default(); }
    afx_msg void OnKillFocus(CWnd*) { Default(); }
    afx_msg void OnLButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnLButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnMouseMove(UINT, CPoint) { Default(); }
    afx_msg BOOL OnMouseWheel(UINT, short, CPoint) { return Default() != 0; }
    afx_msg void OnNcDestroy();
    afx_msg void OnPaint() { Default(); }
    afx_msg BOOL OnSetCursor(CWnd*, UINT, UINT) { return Default() != 0; }
    afx_msg void OnSetFocus(CWnd*) { Default(); }
    afx_msg void OnSize(UINT, int, int) { Default(); }
    afx_msg void OnTimer(UINT_PTR) { Default(); }
    // Leaves the work to the object of the child, if it has one.
    afx_msg void OnDrawItem(int, LPDRAWITEMSTRUCT lpDrawItemStruct);
    DECLARE_MESSAGE_MAP()

private:
    friend class CWndWatch;

    static LRESULT CALLBACK Procedure(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    void RestoreProcedure();
    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    BOOL ReflectToChild(HWND hWndChild, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    void FilterToolTipMessage(MSG* pMsg);

    WNDPROC m_pfnSuper = nullptr; // the window's procedure before the window's messages went to this object
    bool m_bToolTips = false;
    mutable CWndWatch* m_pWatches = nullptr; // the first of the watches of this object
};
