// The life of a window and its object, and the way of messages to their handlers.
#include "WndProc.h"
#include "WndWatch.h"

IMPLEMENT_DYNAMIC(CWnd, CCmdTarget)

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
    ON_WM_DRAWITEM()
    ON_WM_NCDESTROY()
END_MESSAGE_MAP()

namespace {

// Finds out whether an update handler disables a command.
class EnabledProbe : public CCmdUI
{
public:
    explicit EnabledProbe(UINT nID) { m_nID = nID; }
    void Enable(BOOL bOn) override { m_bEnabled = bOn; }

    BOOL m_bEnabled = TRUE;
};

}

// ---- Handle and object ----

CWnd::~CWnd()
{
    CWndWatch::End(*this);
    if (!m_hWnd)
        return;
    ::DestroyWindow(m_hWnd);
    Detach(); // a window that is attached and not subclassed sends this object no message of its end
}

CWnd* CWnd::FromHandle(HWND hWnd)
{
    return ThreadState::Current().windows.FromHandle(hWnd);
}

CWnd* CWnd::FromHandlePermanent(HWND hWnd)
{
    return ThreadState::Current().windows.Permanent(hWnd);
}

BOOL CWnd::Attach(HWND hWnd)
{
    if (!hWnd || m_hWnd)
        return FALSE;
    m_hWnd = hWnd;
    ThreadState::Current().windows.Attach(hWnd, this);
    return TRUE;
}

HWND CWnd::Detach()
{
    if (!m_hWnd)
        return nullptr;
    EnableToolTips(FALSE); // needs the handle to find the tool
    ThreadState::Current().windows.Detach(m_hWnd, this);
    return std::exchange(m_hWnd, nullptr);
}

BOOL CWnd::SubclassWindow(HWND hWnd)
{
    if (!Attach(hWnd))
        return FALSE;
    m_pfnSuper = SetWindowProcedure(hWnd, &CWnd::Procedure);
    return TRUE;
}

HWND CWnd::UnsubclassWindow()
{
    RestoreProcedure();
    return Detach();
}

void CWnd::RestoreProcedure()
{
    const WNDPROC pfnSuper = std::exchange(m_pfnSuper, nullptr);
    if (pfnSuper && GetWindowProcedure(m_hWnd) == &CWnd::Procedure)
        SetWindowProcedure(m_hWnd, pfnSuper);
}

// ---- Creation and end ----

BOOL CWnd::CreateChild(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                       CWnd* pParentWnd, UINT nID)
{
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                    const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam)
{
    return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top,
                    CRect(rect).Width(), CRect(rect).Height(), pParentWnd ? pParentWnd->m_hWnd : nullptr,
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), lpParam);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x,
                    int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam)
{
    if (m_hWnd)
        return FALSE;

    if (!lpszClassName)
        lpszClassName =
            AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, ::LoadCursorA(nullptr, IDC_ARROW));
    CreationHook hook(this, lpszClassName);
    const HWND hWnd = ::CreateWindowExA(dwExStyle, lpszClassName, lpszWindowName, dwStyle, x, y, nWidth,
                                        nHeight, hWndParent, nIDorHMenu, AfxGetInstanceHandle(), lpParam);
    // A window that came and went again has called PostNcDestroy itself, and the object may be gone.
    if (!hook.HasCaught())
        PostNcDestroy();
    return hWnd != nullptr;
}

BOOL CWnd::DestroyWindow()
{
    if (!m_hWnd)
        return FALSE;
    const HWND hWnd = m_hWnd;
    const bool bSubclassed = m_pfnSuper != nullptr;
    const BOOL bResult = ::DestroyWindow(hWnd);
    if (bResult && !bSubclassed)
        Detach();
    return bResult;
}

void CWnd::OnNcDestroy()
{
    Default();
    UnsubclassWindow();
    PostNcDestroy();
}

void CWnd::PostNcDestroy() {}

// ---- Messages ----

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT lResult = 0;
    const CWndWatch watch(*this);
    if (OnWndMsg(message, wParam, lParam, &lResult) || !watch.IsAlive())
        return lResult;
    return DefWindowProc(message, wParam, lParam);
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (message == WM_COMMAND)
        return OnCommand(wParam, lParam);
    if (message == WM_NOTIFY)
        return OnNotify(wParam, lParam, pResult);

    const AFX_MSGMAP_ENTRY* pEntry = FindEntry(message, 0, 0);
    if (!pEntry)
        return FALSE;
    AFX_EVENT event;
    event.wParam = wParam;
    event.lParam = lParam;
    const bool bHandled = pEntry->pfnHandler(this, event);
    *pResult = event.lResult;
    return bHandled;
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const UINT nID = LOWORD(wParam);
    const auto hWndCtrl = reinterpret_cast<HWND>(lParam);
    const CWndWatch watch(*this);
    if (hWndCtrl) {
        LRESULT lResult = 0;
        return ReflectToChild(hWndCtrl, WM_COMMAND, wParam, lParam, &lResult) || !watch.IsAlive() ||
               OnCmdMsg(nID, HIWORD(wParam), nullptr);
    }

    // The command comes from a menu or an accelerator, and the accelerator does not know whether the item is
    // disabled.
    EnabledProbe probe(nID);
    OnCmdMsg(nID, static_cast<int>(CN_UPDATE_COMMAND_UI), &probe);
    return !watch.IsAlive() || !probe.m_bEnabled || OnCmdMsg(nID, CN_COMMAND, nullptr);
}

BOOL CWnd::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    auto* pHeader = reinterpret_cast<NMHDR*>(lParam);
    if (!pHeader)
        return FALSE;
    const CWndWatch watch(*this);
    if (ReflectToChild(pHeader->hwndFrom, WM_NOTIFY, wParam, lParam, pResult) || !watch.IsAlive())
        return TRUE;

    // The id in the message may be the handle of a window, as in those of the tool tip, so the control is
    // asked for its id.
    const UINT nID = LOWORD(::GetDlgCtrlID(pHeader->hwndFrom));
    AFX_NOTIFY notify = {pResult, pHeader};
    return OnCmdMsg(nID, static_cast<int>(MAKELONG(pHeader->code, WM_NOTIFY)), &notify);
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    const MSG& message = *GetCurrentMessage();
    LRESULT lResult = 0;
    if (lpDrawItemStruct->CtlType != ODT_MENU &&
        ReflectToChild(lpDrawItemStruct->hwndItem, WM_DRAWITEM, message.wParam, message.lParam, &lResult))
        return;
    Default();
}

BOOL CWnd::ReflectToChild(HWND hWndChild, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    CWnd* pChild = FromHandlePermanent(hWndChild);
    return pChild && pChild->OnChildNotify(message, wParam, lParam, pResult);
}

BOOL CWnd::OnChildNotify(UINT, WPARAM, LPARAM, LRESULT*)
{
    return FALSE;
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    return m_pfnSuper ? ::CallWindowProcA(m_pfnSuper, m_hWnd, message, wParam, lParam)
                      : ::DefWindowProcA(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default()
{
    const MSG& message = *GetCurrentMessage();
    // In a handler that was called by hand the message at hand may be another window's.
    return message.hwnd == m_hWnd ? DefWindowProc(message.message, message.wParam, message.lParam) : 0;
}

const MSG* CWnd::GetCurrentMessage()
{
    return &ThreadState::Current().message;
}

BOOL CWnd::WalkPreTranslateTree(HWND hWndStop, MSG* pMsg)
{
    const MessageOffer offer(*pMsg);
    for (HWND hWnd = pMsg->hwnd; hWnd; hWnd = ::GetParent(hWnd)) {
        CWnd* pWnd = FromHandlePermanent(hWnd);
        if (pWnd && pWnd->PreTranslateMessage(pMsg))
            return TRUE;
        if (hWnd == hWndStop)
            break;
    }
    return FALSE;
}

// ---- Calls that need more than the arguments passed on ----

void CWnd::GetWindowText(CString& rString) const
{
    const int nLength = ::GetWindowTextLengthA(m_hWnd);
    ::GetWindowTextA(m_hWnd, rString.GetBuffer(nLength), nLength + 1);
    rString.ReleaseBuffer();
}

void CWnd::SetFont(CFont* pFont, BOOL bRedraw)
{
    ::SendMessageA(m_hWnd, WM_SETFONT, reinterpret_cast<WPARAM>(pFont ? pFont->m_hObject : nullptr),
                   MAKELPARAM(bRedraw, 0));
}
