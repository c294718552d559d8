// The window toolkit: command targets, windows, buttons, the application and its message loop.
//
// The toolkit adds types and lifetime to the system's calls, and no behaviour of its own: a member that is
// named as a call makes that call on the object's handle.
#pragma once

#include <afx.h>
#include <windows.h>
#include <commctrl.h>

#include <atltypes.h>
#include <afxgdi_.h>
#include <afxmenu_.h>
#include <afxmsg_.h>

class CWinApp;

// ---- Commands ----

/// The target and handler that a command would reach.
struct AFX_CMDHANDLERINFO
{
    CCmdTarget* pTarget = nullptr;
    AFX_HANDLER pfnHandler = nullptr;
};

/// A notification on its way to its handler.
struct AFX_NOTIFY
{
    LRESULT* pResult;
    NMHDR* pNMHDR;
};

/// What commands and messages reach through a message map.
class ZEB17_EXPORT CCmdTarget : public CObject
{
    DECLARE_DYNAMIC(CCmdTarget)
public:
    /// Brings a command to its handler, and says whether there is one.
    /// nCode: in the low word the code, or CN_COMMAND or CN_UPDATE_COMMAND_UI; in the high word WM_NOTIFY for
    /// a notification, else 0 or WM_COMMAND. pExtra: the CCmdUI of an update, the AFX_NOTIFY of a
    /// notification. With pHandlerInfo the handler is only found and written there.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

protected:
    CCmdTarget() = default;

    static const AFX_MSGMAP* GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;

    /// The handler of this class or the nearest above it that has one, or null.
    const AFX_MSGMAP_ENTRY* FindEntry(UINT nMessage, UINT nCode, UINT nID) const;
};

// ---- Windows ----

class CToolTipCtrl;
struct CCreateContext;

/// A window: the object of a handle. Messages reach it through WindowProc and the message map.
///
/// An object owns its window: its end destroys a window that is still there (derived classes then no longer
/// see its messages), and the end of the window leaves the object without a handle.
///
/// A CException that leaves a handler ends at the window procedure, since it must not cross the system's
/// frames: CWinApp::ProcessWndProcException gets it, and the message counts as handled. Any other exception
/// ends the program there. What is thrown outside of a handler reaches the caller as usual.
class ZEB17_EXPORT CWnd : public CCmdTarget
{
    DECLARE_DYNAMIC(CWnd)
public:
    CWnd() = default;
    ~CWnd() override;

    /// Called when the object gets its handle, before the first message.
    virtual void PreSubclassWindow();
    /// Creates a child window.
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                        CWnd* pParentWnd, UINT nID, CCreateContext* pContext = nullptr);
    /// Destroys the window, not the object. False if there is none.
    virtual BOOL DestroyWindow();
    /// Lets a class change the arguments of its creation. False stops it.
    virtual BOOL PreCreateWindow(CREATESTRUCTA& cs);
    /// Tells the tool at the point (in client coordinates): -1 for none, else its hit code, and the tool
    /// itself in *pTI if that is not null. The one given here is the child window at the point.
    virtual INT_PTR OnToolHitTest(CPoint point, TOOLINFOA* pTI) const;
    /// Sees a message before it is dispatched; TRUE keeps it from being dispatched.
    virtual BOOL PreTranslateMessage(MSG* pMsg);

    // Handle and object

    /// The object of the window: the permanent one, else a temporary one; null for null.
    static CWnd* FromHandle(HWND hWnd);
    /// The permanent object of the window or null.
    static CWnd* FromHandlePermanent(HWND hWnd);
    /// Makes this the permanent object of the window. False if it is null or this object has one already.
    BOOL Attach(HWND hWnd);
    HWND Detach();
    /// As Attach, and the window's messages go to this object.
    BOOL SubclassWindow(HWND hWnd);
    HWND UnsubclassWindow();
    HWND GetSafeHwnd() const { return m_hWnd; }
    operator HWND() const { return m_hWnd; }

    // Creation

    /// Creates the window with this object as its permanent one, so that it gets each message from the very
    /// first on. Null as the class name stands for a plain class. False if there is no window in the end.
    BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x, int y,
                  int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam = nullptr);
    BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                  const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam = nullptr);

    // State, place and text

    DWORD GetStyle() const { return static_cast<DWORD>(::GetWindowLongA(m_hWnd, GWL_STYLE)); }
    BOOL EnableWindow(BOOL bEnable = TRUE) { return ::EnableWindow(m_hWnd, bEnable); }
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    BOOL ShowWindow(int nCmdShow) { return ::ShowWindow(m_hWnd, nCmdShow); }
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE)
    {
        ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
    }
    void MoveWindow(LPCRECT lpRect, BOOL bRepaint = TRUE)
    {
        MoveWindow(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top,
                   bRepaint);
    }
    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags)
    {
        return ::SetWindowPos(m_hWnd, pWndInsertAfter ? pWndInsertAfter->m_hWnd : nullptr, x, y, cx, cy,
                              nFlags);
    }
    void GetClientRect(LPRECT lpRect) const { ::GetClientRect(m_hWnd, lpRect); }
    void GetWindowRect(LPRECT lpRect) const { ::GetWindowRect(m_hWnd, lpRect); }
    void ScreenToClient(LPPOINT lpPoint) const { ::ScreenToClient(m_hWnd, lpPoint); }
    void ScreenToClient(LPRECT lpRect) const;
    void ClientToScreen(LPPOINT lpPoint) const { ::ClientToScreen(m_hWnd, lpPoint); }
    void ClientToScreen(LPRECT lpRect) const;
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
    CWnd* GetTopLevelParent() const { return FromHandle(::GetAncestor(m_hWnd, GA_ROOT)); }
    CWnd* GetWindow(UINT nCmd) const { return FromHandle(::GetWindow(m_hWnd, nCmd)); }
    CWnd* GetDlgItem(int nID) const { return FromHandle(::GetDlgItem(m_hWnd, nID)); }
    /// Gives the window that had the focus.
    CWnd* SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }
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

    void Invalidate(BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, bErase); }
    void InvalidateRect(LPCRECT lpRect, BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, lpRect, bErase); }
    void UpdateWindow() { ::UpdateWindow(m_hWnd); }
    BOOL RedrawWindow(LPCRECT lpRect = nullptr, CRgn* pRgn = nullptr,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    CDC* GetDC() { return CDC::FromHandle(::GetDC(m_hWnd)); }
    /// Gives back what GetDC gave; the object is not to be used afterwards.
    int ReleaseDC(CDC* pDC) { return pDC ? ::ReleaseDC(m_hWnd, pDC->Detach()) : 0; }

    // Tool tips of children

    /// Turns the toolkit's own tool tip for the children of this window on or off. Its texts are asked for
    /// with TTN_NEEDTEXT, in which idFrom is the child's handle; with no text nothing is shown.
    BOOL EnableToolTips(BOOL bEnable = TRUE);

    /// Offers the message to the window it is addressed to and then to its ancestors, as far as hWndStop.
    static BOOL WalkPreTranslateTree(HWND hWndStop, MSG* pMsg);

    HWND m_hWnd = nullptr;

protected:
    /// Brings a message to its handler, or to DefWindowProc if there is none.
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// Brings a message to its handler, and says whether there is one.
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// Hands the message to the procedure that the window had before it became this object's.
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// Sees a message about this control that the system sends to its parent. TRUE keeps it from the parent.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// The last call of a window's life, when the object has no handle any more; the object may end here.
    virtual void PostNcDestroy();

    /// The default processing of the message at hand, with the parameters it came with. Does nothing where
    /// that is no message of this window, as in a handler that was called by hand.
    LRESULT Default();
    /// The message at hand: number, parameters, time and place of the pointer.
    static const MSG* GetCurrentMessage();

    afx_msg void OnActivate(UINT, CWnd*, BOOL) { Default(); }
    afx_msg void OnClose() { Default(); }
    afx_msg int OnCreate(LPCREATESTRUCTA) { return static_cast<int>(Default()); }
    afx_msg void OnDestroy() { Default(); }
    /// Hands the drawing to the object of the control.
    afx_msg void OnDrawItem(int, LPDRAWITEMSTRUCT lpDrawItemStruct);
    afx_msg BOOL OnEraseBkgnd(CDC*) { return Default() != 0; }
    afx_msg void OnKeyDown(UINT, UINT, UINT) { Default(); }
    afx_msg void OnKillFocus(CWnd*) { Default(); }
    afx_msg void OnLButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnLButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnLButtonUp(UINT, CPoint) { Default(); }
    /// Asks the object of the control.
    afx_msg void OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    afx_msg void OnMouseLeave() { Default(); }
    afx_msg void OnMouseMove(UINT, CPoint) { Default(); }
    afx_msg BOOL OnMouseWheel(UINT, short, CPoint) { return Default() != 0; }
    afx_msg void OnNcDestroy();
    afx_msg void OnPaint() { Default(); }
    afx_msg BOOL OnSetCursor(CWnd*, UINT, UINT) { return Default() != 0; }
    afx_msg void OnSetFocus(CWnd*) { Default(); }
    afx_msg void OnSize(UINT, int, int) { Default(); }
    afx_msg void OnTimer(UINT_PTR) { Default(); }
    DECLARE_MESSAGE_MAP()

private:
    static LRESULT CALLBACK Procedure(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    void RestoreProcedure();
    BOOL ReflectToChild(HWND hWndChild, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    void FilterToolTipMessage(MSG* pMsg);

    WNDPROC m_pfnSuper = nullptr; // the window's procedure before it became this object's
    bool m_bToolTips = false;
};

/// A push button, check box or radio button.
class ZEB17_EXPORT CButton : public CWnd
{
    DECLARE_DYNAMIC(CButton)
public:
    virtual BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    /// Draws a button of the style BS_OWNERDRAW.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

    UINT GetState() const { return static_cast<UINT>(::SendMessageA(m_hWnd, BM_GETSTATE, 0, 0)); }
    int GetCheck() const { return static_cast<int>(::SendMessageA(m_hWnd, BM_GETCHECK, 0, 0)); }
    void SetCheck(int nCheck) { SendMessage(BM_SETCHECK, static_cast<WPARAM>(nCheck)); }
    UINT GetButtonStyle() const { return GetStyle() & 0xFF; }
    void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE) { SendMessage(BM_SETSTYLE, nStyle, bRedraw); }

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

/// A text or a frame.
class ZEB17_EXPORT CStatic : public CWnd
{
    DECLARE_DYNAMIC(CStatic)
public:
    virtual BOOL Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                        UINT nID = 0xFFFF);
};

// ---- The application ----

/// A thread with a message loop.
class ZEB17_EXPORT CWinThread : public CCmdTarget
{
    DECLARE_DYNAMIC(CWinThread)
public:
    /// Sets the thread up; FALSE ends it before its loop.
    virtual BOOL InitInstance() { return TRUE; }
    /// Runs the message loop until WM_QUIT. Gives what ExitInstance gives.
    virtual int Run();
    /// Sees each message of the loop before it is dispatched; TRUE keeps it from being dispatched.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    /// Waits for a message and handles it. FALSE for WM_QUIT.
    virtual BOOL PumpMessage();
    /// Called when the queue is empty, with a count from 0; TRUE asks for another call.
    virtual BOOL OnIdle(LONG lCount);
    /// Ends the thread; gives its exit code, as a rule that of WM_QUIT.
    virtual int ExitInstance();
    /// Ends an exception that left a handler, and gives the result of its message.
    virtual LRESULT ProcessWndProcException(CException* e, const MSG* pMsg);
    virtual CWnd* GetMainWnd() { return m_pMainWnd; }

    CWnd* m_pMainWnd = nullptr; ///< not owned; the search for a handler of a key ends at it

protected:
    CWinThread() = default;

    MSG m_msgCur{};
};

/// The application. A host derives from it, makes one object, and runs it in its main function:
///
///     CMyApp app;
///     return AfxWinInit(GetModuleHandle(nullptr), nullptr, "", SW_SHOW) && app.InitInstance() ? app.Run() :
///     1;
class ZEB17_EXPORT CWinApp : public CWinThread
{
    DECLARE_DYNAMIC(CWinApp)
public:
    explicit CWinApp(LPCTSTR lpszAppName = nullptr);
    ~CWinApp() override;

    CString m_strAppName;
    HINSTANCE m_hInstance = nullptr;
    LPCTSTR m_lpCmdLine = "";
    int m_nCmdShow = SW_SHOWNORMAL;
};

/// Prepares the toolkit and the common controls for the calling thread. A host that runs a message loop other
/// than CWinApp's calls it too: PreTranslateMessage then sees each message that the loop offers to
/// CallMsgFilter.
ZEB17_EXPORT BOOL AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPCTSTR lpCmdLine, int nCmdShow);
ZEB17_EXPORT CWinApp* AfxGetApp();
ZEB17_EXPORT CWnd* AfxGetMainWnd();
/// Offers a message to the application, or without one to the windows: TRUE when it is not to be dispatched.
ZEB17_EXPORT BOOL AfxPreTranslateMessage(MSG* pMsg);
/// Registers a window class of these attributes once, and gives its name, which stays valid.
/// Throws a CResourceException if it can't be registered.
ZEB17_EXPORT LPCTSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = nullptr,
                                         HBRUSH hbrBackground = nullptr, HICON hIcon = nullptr);
/// Shows a text until a button is pressed, and gives its id. nType: MB_ flags.
ZEB17_EXPORT int AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK);

#include <afxctrl_.h>
#include <afxdll_.h>
