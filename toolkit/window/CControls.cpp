#include <afxwin.h>

IMPLEMENT_DYNAMIC(CEdit, CWnd)
IMPLEMENT_DYNAMIC(CListBox, CWnd)
IMPLEMENT_DYNAMIC(CComboBox, CWnd)

// Asks for a text whose length the control tells first; a negative length stands for none.
static void FetchText(HWND hWnd, UINT message, int nIndex, int nLength, CString& rString)
{
    rString.Empty();
    if (nLength <= 0)
        return;
    ::SendMessageA(hWnd, message, static_cast<WPARAM>(nIndex),
                   reinterpret_cast<LPARAM>(rString.GetBuffer(nLength)));
    rString.ReleaseBuffer();
}

// ---- CEdit ----

BOOL CEdit::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create("EDIT", nullptr, dwStyle, rect, pParentWnd, nID);
}

void CEdit::GetSel(int& nStartChar, int& nEndChar) const
{
    DWORD start = 0;
    DWORD end = 0;
    ::SendMessageA(m_hWnd, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    nStartChar = static_cast<int>(start);
    nEndChar = static_cast<int>(end);
}

void CEdit::SetSel(int nStartChar, int nEndChar)
{
    SendMessage(EM_SETSEL, static_cast<WPARAM>(nStartChar), nEndChar);
}

void CEdit::ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo)
{
    SendMessage(EM_REPLACESEL, static_cast<WPARAM>(bCanUndo), reinterpret_cast<LPARAM>(lpszNewText));
}

BOOL CEdit::SetReadOnly(BOOL bReadOnly)
{
    return SendMessage(EM_SETREADONLY, static_cast<WPARAM>(bReadOnly)) != 0;
}

// ---- CListBox ----

BOOL CListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create("LISTBOX", nullptr, dwStyle, rect, pParentWnd, nID);
}

void CListBox::GetText(int nIndex, CString& rString) const
{
    FetchText(m_hWnd, LB_GETTEXT, nIndex, GetTextLen(nIndex), rString);
}

DWORD_PTR CListBox::GetItemData(int nIndex) const
{
    return static_cast<DWORD_PTR>(::SendMessageA(m_hWnd, LB_GETITEMDATA, static_cast<WPARAM>(nIndex), 0));
}

UINT CListBox::ItemFromPoint(CPoint pt, BOOL& bOutside) const
{
    const auto result = static_cast<DWORD>(Ask(LB_ITEMFROMPOINT, 0, MAKELPARAM(pt.x, pt.y)));
    bOutside = HIWORD(result);
    return LOWORD(result);
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

void CComboBox::GetLBText(int nIndex, CString& rString) const
{
    FetchText(m_hWnd, CB_GETLBTEXT, nIndex, GetLBTextLen(nIndex), rString);
}

// ---- The message box ----

int AfxMessageBox(LPCTSTR lpszText, UINT nType)
{
    CWinApp* app = AfxGetApp();
    const UINT icon = nType & MB_ICONMASK ? 0 : static_cast<UINT>(MB_ICONEXCLAMATION);
    return ::MessageBoxA(::GetActiveWindow(), lpszText, app ? app->m_strAppName : nullptr, nType | icon);
}
