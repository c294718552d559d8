// The message loop, the filter that stands in for it in other loops, and the application.
#include "WndProc.h"

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)
IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

// ---- The message loop ----

int CWinThread::Run()
{
    LONG lIdleCount = 0;
    for (;;) {
        while (!::PeekMessageA(&m_msgCur, nullptr, 0, 0, PM_NOREMOVE) && OnIdle(lIdleCount))
            ++lIdleCount;
        if (!PumpMessage())
            return m_msgCur.message == WM_QUIT ? static_cast<int>(m_msgCur.wParam) : 0;
        lIdleCount = 0;
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
    return CWnd::WalkPreTranslateTree(nullptr, pMsg);
}

BOOL CWinThread::OnIdle(LONG lCount)
{
    if (lCount == 0)
        ThreadState::Current().DeleteTemporary();
    return FALSE;
}

LRESULT CWinThread::ProcessWndProcException(CException* e, const MSG* pMsg)
{
    return EndHandlerException(e, *pMsg);
}

BOOL AfxPreTranslateMessage(MSG* pMsg)
{
    CWinApp* pApp = AfxGetApp();
    return pApp ? pApp->PreTranslateMessage(pMsg) : CWnd::WalkPreTranslateTree(nullptr, pMsg);
}

namespace {

// Does the work of PumpMessage where the loop is not CWinThread's: in a dialog's loop, or in that of a host
// that hands its messages to CallMsgFilter.
LRESULT CALLBACK FilterMessage(int nCode, WPARAM wParam, LPARAM lParam) noexcept
{
    ThreadState& state = ThreadState::Current();
    auto* pMsg = reinterpret_cast<MSG*>(lParam);
    if ((nCode == MSGF_USER || nCode == MSGF_DIALOGBOX) && !MessageOffer::IsAtHand(*pMsg)) {
        if (GuardFromExceptions(*pMsg, [=] { return AfxPreTranslateMessage(pMsg); }))
            return TRUE;
        if (nCode == MSGF_USER && state.nDepth == 0)
            state.DeleteTemporary();
    }
    return ::CallNextHookEx(state.hMessageFilter, nCode, wParam, lParam);
}

}

// ---- The application ----

CWinApp::CWinApp(LPCTSTR lpszAppName) : m_strAppName(lpszAppName)
{
    AfxGetModuleState()->m_pCurrentWinApp = this;
}

CWinApp::~CWinApp()
{
    AFX_MODULE_STATE& module = *AfxGetModuleState();
    if (module.m_pCurrentWinApp == this)
        module.m_pCurrentWinApp = nullptr;
}

BOOL AfxWinInit(HINSTANCE hInstance, HINSTANCE, LPCTSTR, int)
{
    AFX_MODULE_STATE& module = *AfxGetModuleState();
    if (hInstance)
        module.m_hCurrentInstanceHandle = module.m_hCurrentResourceHandle = hInstance;

    const INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_WIN95_CLASSES};
    ::InitCommonControlsEx(&controls);

    HHOOK& hFilter = ThreadState::Current().hMessageFilter;
    if (!hFilter)
        hFilter = ::SetWindowsHookExA(WH_MSGFILTER, &FilterMessage, nullptr, ::GetCurrentThreadId());
    return hFilter != nullptr;
}

CWinApp* AfxGetApp()
{
    return AfxGetModuleState()->m_pCurrentWinApp;
}

int AfxMessageBox(LPCTSTR lpszText, UINT nType)
{
    CWinApp* pApp = AfxGetApp();
    const UINT nIcon = nType & MB_ICONMASK ? 0 : static_cast<UINT>(MB_ICONEXCLAMATION);
    return ::MessageBoxA(::GetActiveWindow(), lpszText, pApp ? pApp->m_strAppName : nullptr, nType | nIcon);
}
