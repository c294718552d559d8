// The application, its message loop, and what concerns the process as a whole. Included by afxwin.h.
#pragma once

#include <afxwnd_.h>

// A thread with a message loop.
class ZEB17_EXPORT CWinThread : public CCmdTarget
{
    DECLARE_DYNAMIC(CWinThread)
public:
    // Runs the message loop until WM_QUIT, and gives the exit code of that message.
    virtual int Run();
    // Sees each message of the loop before it is dispatched; TRUE keeps it from being dispatched.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    // Waits for a message and handles it. FALSE for WM_QUIT.
    virtual BOOL PumpMessage();
    // Called when the queue is empty, with a count from 0; TRUE asks for another call.
    virtual BOOL OnIdle(LONG lCount);
    // Ends an exception that left a handler of the message *pMsg, and gives the result of that message.
    virtual LRESULT ProcessWndProcException(CException* e, const MSG* pMsg);

protected:
    CWinThread() = default;

    MSG m_msgCur{};
};

// The application. A host makes one object, of this class or of one that is derived from it, and runs it in
// its main function:
//
//     AfxWinInit(GetModuleHandle(nullptr), nullptr, "", SW_SHOW);
//     CWinApp app;
//     ... create the windows ...
//     return app.Run();
class ZEB17_EXPORT CWinApp : public CWinThread
{
    DECLARE_DYNAMIC(CWinApp)
public:
    explicit CWinApp(LPCTSTR lpszAppName = nullptr);
    ~CWinApp() override;

    CString m_strAppName; // the title of AfxMessageBox
};

// Prepares the toolkit and the common controls for the calling thread. A host that runs a message loop other
// than CWinApp's calls it too: PreTranslateMessage then sees each message that the loop hands to
// CallMsgFilter. The last three arguments are ignored.
ZEB17_EXPORT BOOL AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPCTSTR lpCmdLine, int nCmdShow);
// The application's object, or null.
ZEB17_EXPORT CWinApp* AfxGetApp();
// Offers a message to the application, or to the windows if there is no application. TRUE if the message is
// not to be dispatched.
ZEB17_EXPORT BOOL AfxPreTranslateMessage(MSG* pMsg);
// Registers a window class of these attributes once, and gives its name, which stays valid.
// Throws a CResourceException if the class can't be registered.
ZEB17_EXPORT LPCTSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = nullptr,
                                         HBRUSH hbrBackground = nullptr, HICON hIcon = nullptr);
// Shows a text until a button is pressed, and gives the id of that button. nType: MB_ flags.
ZEB17_EXPORT int AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK);
