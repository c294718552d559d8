#include "wndproc.h"

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)
IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

// ---- The message loop ----

int CWinThread::Run()
{
    LONG idleCount = 0;
    for (;;) {
        while (!::PeekMessageA(&m_msgCur, nullptr, 0, 0, PM_NOREMOVE) && OnIdle(idleCount))
            ++idleCount;
        if (!PumpMessage())
            return ExitInstance();
        idleCount = 0;
    }
}

BOOL CWinThread::PumpMessage()
{
    if (::GetMessageA(&m_msgCur, nullptr, 0, 0) <= 0)
        return FALSE;
    if (!AfxPreTranslateMessage(&m_msgCur)) {
        ::TranslateMessage(&m_msgCur);
        ::DispatchMessageA(&m_msgCur);
    }
    return TRUE;
}

BOOL CWinThread::PreTranslateMessage(MSG* pMsg)
{
    return CWnd::WalkPreTranslateTree(m_pMainWnd ? m_pMainWnd->m_hWnd : nullptr, pMsg);
}

BOOL CWinThread::OnIdle(LONG lCount)
{
    if (lCount == 0)
        ThreadState::Current().DeleteTemporary();
    return FALSE;
}

int CWinThread::ExitInstance()
{
    return m_msgCur.message == WM_QUIT ? static_cast<int>(m_msgCur.wParam) : 0;
}

LRESULT CWinThread::ProcessWndProcException(CException* e, const MSG* pMsg)
{
    return EndHandlerException(e, *pMsg);
}

BOOL AfxPreTranslateMessage(MSG* pMsg)
{
    CWinApp* app = AfxGetApp();
    return app ? app->PreTranslateMessage(pMsg) : CWnd::WalkPreTranslateTree(nullptr, pMsg);
}

// Stands in for PumpMessage where the loop is another one's: a dialog's, or that of a host that offers its
// messages.
static LRESULT CALLBACK FilterMessage(int code, WPARAM wParam, LPARAM lParam) noexcept
{
    ThreadState& state = ThreadState::Current();
    auto* message = reinterpret_cast<MSG*>(lParam);
    if ((code == MSGF_USER || code == MSGF_DIALOGBOX) && !MessageOffer::IsAtHand(*message)) {
        if (GuardFromExceptions(*message, [=] { return AfxPreTranslateMessage(message); }))
            return TRUE;
        if (code == MSGF_USER && state.depth == 0)
            state.DeleteTemporary();
    }
    return ::CallNextHookEx(state.messageFilter, code, wParam, lParam);
}

// ---- The application ----

CWinApp::CWinApp(LPCTSTR lpszAppName) : m_strAppName(lpszAppName)
{
    AfxGetModuleState()->m_pCurrentWinApp = this;
    m_hInstance = AfxGetInstanceHandle();
}

CWinApp::~CWinApp()
{
    AFX_MODULE_STATE& module = *AfxGetModuleState();
    if (module.m_pCurrentWinApp == this)
        module.m_pCurrentWinApp = nullptr;
}

BOOL AfxWinInit(HINSTANCE hInstance, HINSTANCE, LPCTSTR lpCmdLine, int nCmdShow)
{
    AFX_MODULE_STATE& module = *AfxGetModuleState();
    if (hInstance)
        module.m_hCurrentInstanceHandle = module.m_hCurrentResourceHandle = hInstance;
    if (CWinApp* app = module.m_pCurrentWinApp) {
        app->m_hInstance = module.m_hCurrentInstanceHandle;
        app->m_lpCmdLine = lpCmdLine;
        app->m_nCmdShow = nCmdShow;
    }

    const INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_WIN95_CLASSES};
    ::InitCommonControlsEx(&controls);

    HHOOK& filter = ThreadState::Current().messageFilter;
    if (!filter)
        filter = ::SetWindowsHookExA(WH_MSGFILTER, &FilterMessage, nullptr, ::GetCurrentThreadId());
    return filter != nullptr;
}

CWinApp* AfxGetApp()
{
    return AfxGetModuleState()->m_pCurrentWinApp;
}

CWnd* AfxGetMainWnd()
{
    CWinApp* app = AfxGetApp();
    return app ? app->GetMainWnd() : nullptr;
}
