// The controls, on the window classes of the system, and its dialog for a colour.
#include "Controls.h"

#include <array>

namespace {

COLORREF* GetCustomColors()
{
    static auto s_colors = [] {
        std::array<COLORREF, 16> white;
        white.fill(RGB(255, 255, 255));
        return white;
    }();
    return s_colors.data();
}

}

// ---- CStatic ----

BOOL CStatic::Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CreateChild("STATIC", lpszText, dwStyle, rect, pParentWnd, nID);
}

// ---- CEdit ----

BOOL CEdit::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CreateChild("EDIT", nullptr, dwStyle, rect, pParentWnd, nID);
}

// ---- CListBox ----

BOOL CListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CreateChild("LISTBOX", nullptr, dwStyle, rect, pParentWnd, nID);
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
    return CreateChild("COMBOBOX", nullptr, dwStyle, rect, pParentWnd, nID);
}

// ---- CColorDialog ----

CColorDialog::CColorDialog(COLORREF clrInit, DWORD dwFlags, CWnd* pParentWnd)
{
    m_cc.lStructSize = static_cast<DWORD>(sizeof m_cc);
    m_cc.hwndOwner = pParentWnd ? pParentWnd->m_hWnd : ::GetActiveWindow();
    m_cc.rgbResult = clrInit;
    m_cc.lpCustColors = GetCustomColors();
    m_cc.Flags = dwFlags | CC_RGBINIT;
}

INT_PTR CColorDialog::DoModal()
{
    return ::ChooseColorA(&m_cc) ? IDOK : IDCANCEL;
}
