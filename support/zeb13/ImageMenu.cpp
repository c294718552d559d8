// Loading, updating and showing a popup menu.
#include "ImageMenu.h"

#include <memory>

namespace {

// While such an object lives, it watches the loop of a menu. The system leaves a press that closes a menu to
// the window that lies there; this one takes it away, so that the press does nothing more.
class ClosingPress
{
public:
    ClosingPress() : m_hHook(::SetWindowsHookExA(WH_MSGFILTER, &Note, nullptr, ::GetCurrentThreadId()))
    {
        s_nLast = 0;
    }

    ~ClosingPress()
    {
        ::UnhookWindowsHookEx(m_hHook);
        MSG msg;
        if (IsPress(s_nLast))
            ::PeekMessageA(&msg, nullptr, s_nLast, s_nLast, PM_REMOVE);
    }

    ClosingPress(const ClosingPress&) = delete;
    ClosingPress& operator=(const ClosingPress&) = delete;

private:
    static bool IsPress(UINT nMessage)
    {
        return nMessage == WM_LBUTTONDOWN || nMessage == WM_LBUTTONDBLCLK || nMessage == WM_RBUTTONDOWN ||
               nMessage == WM_MBUTTONDOWN;
    }

    static LRESULT CALLBACK Note(int nCode, WPARAM wParam, LPARAM lParam)
    {
        if (nCode >= 0)
            s_nLast = reinterpret_cast<const MSG*>(lParam)->message;
        return ::CallNextHookEx(nullptr, nCode, wParam, lParam);
    }

    static inline thread_local UINT s_nLast = 0; // the message that the loop looked at last

    HHOOK m_hHook;
};

}

CImageMenu::CImageMenu() = default;

CImageMenu::~CImageMenu() = default;

CImageMenu* CImageMenu::LoadFilteredPopupMenu(UINT nResource, CWnd* pTarget)
{
    CMenu bar;
    if (!pTarget || !bar.LoadMenu(nResource))
        return nullptr;

    // A popup that is taken off its bar is not destroyed with the bar.
    const HMENU hPopup = ::GetSubMenu(bar.m_hMenu, 0);
    if (!hPopup || !::RemoveMenu(bar.m_hMenu, 0, MF_BYPOSITION))
        return nullptr;

    auto pMenu = std::make_unique<CImageMenu>();
    pMenu->Attach(hPopup);
    pMenu->UpdateItems(pTarget);
    return pMenu.release();
}

int CImageMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pTarget, const RECT* pRect)
{
    const ClosingPress press;
    return ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, pTarget ? pTarget->m_hWnd : nullptr, pRect);
}

void CImageMenu::UpdateItems(CWnd* pTarget)
{
    CCmdUI item;
    item.m_pMenu = this;
    const int nItems = ::GetMenuItemCount(m_hMenu);
    for (int i = 0; i < nItems; ++i) {
        item.m_nIndex = static_cast<UINT>(i);
        item.m_nID = ::GetMenuItemID(m_hMenu, i);
        item.DoUpdate(pTarget);
    }
}
