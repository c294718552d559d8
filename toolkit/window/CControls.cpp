#include <afxwin.h>

IMPLEMENT_DYNAMIC(CEdit, CWnd)
IMPLEMENT_DYNAMIC(CListBox, CWnd)
IMPLEMENT_DYNAMIC(CComboBox, CWnd)

// ---- CEdit ----

BOOL CEdit::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create("EDIT", nullptr, dwStyle, rect, pParentWnd, nID);
}

// ---- CListBox ----

BOOL CListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create("LISTBOX", nullptr, dwStyle, rect, pParentWnd, nID);
}

void CListBox::GetText(int nIndex, CString& rString) const
{
    rString.Empty();
    const int length = GetTextLen(nIndex);
    if (length <= 0) // LB_ERR is one of these
        return;
    Ask(LB_GETTEXT, nIndex, reinterpret_cast<LPARAM>(rString.GetBuffer(length)));
    rString.ReleaseBuffer();
}

void CListBox::MeasureItem(LPMEASUREITEMSTRUCT) {}

void CListBox::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    switch (message) {
    case WM_MEASUREITEM:
        MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        return TRUE;
    case WM_DRAWITEM:
        DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        return TRUE;
    default:
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
}

// ---- CComboBox ----

BOOL CComboBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create("COMBOBOX", nullptr, dwStyle, rect, pParentWnd, nID);
}

// ---- The message box ----

int AfxMessageBox(LPCTSTR lpszText, UINT nType)
{
    CWinApp* app = AfxGetApp();
    const UINT icon = nType & MB_ICONMASK ? 0 : static_cast<UINT>(MB_ICONEXCLAMATION);
    return ::MessageBoxA(::GetActiveWindow(), lpszText, app ? app->m_strAppName : nullptr, nType | icon);
}
