#include "threadstate.h"
#include "wndproc.h"

IMPLEMENT_DYNAMIC(CWnd, CCmdTarget)

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_NCDESTROY()
END_MESSAGE_MAP()

// ---- Handle and object ----

CWnd::~CWnd()
{
    if (!m_hWnd)
        return;
    ::DestroyWindow(m_hWnd);
    Detach(); // a window that was attached and not subclassed told nothing of its end
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
    EnableToolTips(FALSE); // while the tip's tool can still be told by the handle
    ThreadState::Current().windows.Detach(m_hWnd, this);
    return std::exchange(m_hWnd, nullptr);
}

BOOL CWnd::SubclassWindow(HWND hWnd)
{
    if (!Attach(hWnd))
        return FALSE;
    PreSubclassWindow();
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
    const WNDPROC super = std::exchange(m_pfnSuper, nullptr);
    if (super && GetWindowProcedure(m_hWnd) == &CWnd::Procedure)
        SetWindowProcedure(m_hWnd, super);
}

// ---- Creation and end ----

void CWnd::PreSubclassWindow() {}

BOOL CWnd::PreCreateWindow(CREATESTRUCTA& cs)
{
    if (!cs.lpszClass)
        cs.lpszClass =
            AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, ::LoadCursorA(nullptr, IDC_ARROW));
    return TRUE;
}

BOOL CWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                  CWnd* pParentWnd, UINT nID, CCreateContext* pContext)
{
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect, pParentWnd, nID, pContext);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                    const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam)
{
    return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top,
                    rect.right - rect.left, rect.bottom - rect.top, pParentWnd ? pParentWnd->m_hWnd : nullptr,
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), lpParam);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x,
                    int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam)
{
    if (m_hWnd)
        return FALSE;

    CREATESTRUCTA cs{};
    cs.dwExStyle = dwExStyle;
    cs.lpszClass = lpszClassName;
    cs.lpszName = lpszWindowName;
    cs.style = static_cast<LONG>(dwStyle);
    cs.x = x;
    cs.y = y;
    cs.cx = nWidth;
    cs.cy = nHeight;
    cs.hwndParent = hWndParent;
    cs.hMenu = nIDorHMenu;
    cs.hInstance = AfxGetInstanceHandle();
    cs.lpCreateParams = lpParam;
    if (!PreCreateWindow(cs)) {
        PostNcDestroy();
        return FALSE;
    }

    CreationHook hook(this, cs.lpszClass);
    const HWND hWnd =
        ::CreateWindowExA(cs.dwExStyle, cs.lpszClass, cs.lpszName, static_cast<DWORD>(cs.style), cs.x, cs.y,
                          cs.cx, cs.cy, cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
    // A window that came and went again has called this itself, and the object may be gone.
    if (!hook.HasCaught())
        PostNcDestroy();
    return hWnd != nullptr;
}

BOOL CWnd::DestroyWindow()
{
    if (!m_hWnd)
        return FALSE;
    const HWND hWnd = m_hWnd;
    const bool subclassed = m_pfnSuper != nullptr;
    const BOOL result = ::DestroyWindow(hWnd);
    if (result && !subclassed)
        Detach();
    return result;
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
    LRESULT result = 0;
    return OnWndMsg(message, wParam, lParam, &result) ? result : DefWindowProc(message, wParam, lParam);
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (message == WM_COMMAND)
        return OnCommand(wParam, lParam);
    if (message == WM_NOTIFY)
        return OnNotify(wParam, lParam, pResult);

    const AFX_MSGMAP_ENTRY* entry = FindEntry(message, 0, 0);
    if (!entry)
        return FALSE;
    AFX_EVENT event;
    event.wParam = wParam;
    event.lParam = lParam;
    const bool handled = entry->pfnHandler(this, event);
    *pResult = event.lResult;
    return handled;
}

namespace {
/// Finds out whether an update handler disables a command.
class EnabledProbe : public CCmdUI
{
public:
    explicit EnabledProbe(UINT nID) { m_nID = nID; }
    void Enable(BOOL bOn) override { m_bEnabled = bOn; }
    void SetCheck(int) override {}
    void SetText(LPCTSTR) override {}

    BOOL m_bEnabled = TRUE;
};
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const UINT nID = LOWORD(wParam);
    const auto hWndCtrl = reinterpret_cast<HWND>(lParam);
    if (hWndCtrl) {
        LRESULT result = 0;
        return ReflectToChild(hWndCtrl, WM_COMMAND, wParam, lParam, &result) ||
               OnCmdMsg(nID, HIWORD(wParam), nullptr, nullptr);
    }

    // From a menu or an accelerator, which doesn't look at the state of the item.
    EnabledProbe probe(nID);
    OnCmdMsg(nID, static_cast<int>(CN_UPDATE_COMMAND_UI), &probe, nullptr);
    return !probe.m_bEnabled || OnCmdMsg(nID, CN_COMMAND, nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    auto* header = reinterpret_cast<NMHDR*>(lParam);
    if (!header)
        return FALSE;
    if (ReflectToChild(header->hwndFrom, WM_NOTIFY, wParam, lParam, pResult))
        return TRUE;

    // The parameter of the message may be a window's handle, as in the tool tip's; the id is the control's
    // own.
    const UINT nID = LOWORD(::GetDlgCtrlID(header->hwndFrom));
    AFX_NOTIFY notify = {pResult, header};
    return OnCmdMsg(nID, static_cast<int>(MAKELONG(header->code, WM_NOTIFY)), &notify, nullptr);
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    const MSG& message = *GetCurrentMessage();
    LRESULT result = 0;
    if (lpDrawItemStruct->CtlType != ODT_MENU &&
        ReflectToChild(lpDrawItemStruct->hwndItem, WM_DRAWITEM, message.wParam, message.lParam, &result))
        return;
    Default();
}

// Comes while the control is being created, when only its id is told.
void CWnd::OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct)
{
    const MSG& message = *GetCurrentMessage();
    LRESULT result = 0;
    if (lpMeasureItemStruct->CtlType != ODT_MENU &&
        ReflectToChild(::GetDlgItem(m_hWnd, nIDCtl), WM_MEASUREITEM, message.wParam, message.lParam, &result))
        return;
    Default();
}

BOOL CWnd::ReflectToChild(HWND hWndChild, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    CWnd* child = FromHandlePermanent(hWndChild);
    return child && child->OnChildNotify(message, wParam, lParam, pResult);
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
    // A handler called by hand, from the handler of another window's message, has no default to run.
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
        CWnd* window = FromHandlePermanent(hWnd);
        if (window && window->PreTranslateMessage(pMsg))
            return TRUE;
        if (hWnd == hWndStop)
            break;
    }
    return FALSE;
}

// ---- Calls with more to them than the call ----

void CWnd::ScreenToClient(LPRECT lpRect) const
{
    ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::ClientToScreen(LPRECT lpRect) const
{
    ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::GetWindowText(CString& rString) const
{
    const int length = ::GetWindowTextLengthA(m_hWnd);
    ::GetWindowTextA(m_hWnd, rString.GetBuffer(length), length + 1);
    rString.ReleaseBuffer();
}

void CWnd::SetFont(CFont* pFont, BOOL bRedraw)
{
    ::SendMessageA(m_hWnd, WM_SETFONT, reinterpret_cast<WPARAM>(pFont ? pFont->m_hObject : nullptr),
                   MAKELPARAM(bRedraw, 0));
}

BOOL CWnd::RedrawWindow(LPCRECT lpRect, CRgn* pRgn, UINT flags)
{
    return ::RedrawWindow(m_hWnd, lpRect, pRgn ? static_cast<HRGN>(*pRgn) : nullptr, flags);
}
