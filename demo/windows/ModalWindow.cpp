#include "ModalWindow.h"

BEGIN_MESSAGE_MAP(ModalWindow, CWnd)
    ON_WM_CLOSE()
END_MESSAGE_MAP()

bool ModalWindow::CreateModal(const char* title, CSize client, CWnd& owner)
{
    constexpr DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU;
    CRect around;
    owner.GetWindowRect(&around);
    CRect rect(CPoint(0, 0), client);
    ::AdjustWindowRectEx(&rect, style, FALSE, WS_EX_DLGMODALFRAME);
    const CPoint place(around.left + (around.Width() - rect.Width()) / 2,
                       around.top + (around.Height() - rect.Height()) / 2);
    const LPCTSTR windowClass =
        AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW),
                            reinterpret_cast<HBRUSH>(static_cast<UINT_PTR>(COLOR_BTNFACE + 1)), nullptr);
    m_owner = &owner;
    return CreateEx(WS_EX_DLGMODALFRAME | WS_EX_CONTROLPARENT, windowClass, title, style,
                    CRect(place, rect.Size()), &owner, 0) != FALSE;
}

int ModalWindow::RunModal()
{
    m_owner->EnableWindow(FALSE);
    ShowWindow(SW_SHOW);
    SetFocus();
    ::SetFocus(::GetNextDlgTabItem(m_hWnd, nullptr, FALSE));
    m_result = 0;
    while (m_result == 0 && AfxGetApp()->PumpMessage())
        ;
    // The owner is enabled first, so that the system makes it the active window and not another program's.
    m_owner->EnableWindow(TRUE);
    DestroyWindow();
    if (m_result != 0)
        return m_result;
    ::PostQuitMessage(0); // the program ends: its own loop is to see it too
    return IDCANCEL;
}

BOOL ModalWindow::PreTranslateMessage(MSG* pMsg)
{
    return CWnd::PreTranslateMessage(pMsg) || ::IsDialogMessage(m_hWnd, pMsg);
}
