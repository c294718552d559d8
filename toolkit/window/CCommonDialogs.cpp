#include <afxdlgs.h>

#include <algorithm>
#include <array>

IMPLEMENT_DYNAMIC(CColorDialog, CWnd)
IMPLEMENT_DYNAMIC(CFileDialog, CWnd)

static HWND OwnerOf(const CWnd* parent)
{
    return parent ? parent->m_hWnd : ::GetActiveWindow();
}

// ---- CColorDialog ----

static COLORREF* CustomColors()
{
    static auto colors = [] {
        std::array<COLORREF, 16> white;
        white.fill(RGB(255, 255, 255));
        return white;
    }();
    return colors.data();
}

CColorDialog::CColorDialog(COLORREF clrInit, DWORD dwFlags, CWnd* pParentWnd)
{
    m_cc.lStructSize = static_cast<DWORD>(sizeof m_cc);
    m_cc.hwndOwner = OwnerOf(pParentWnd);
    m_cc.rgbResult = clrInit;
    m_cc.lpCustColors = CustomColors();
    m_cc.Flags = dwFlags | CC_RGBINIT;
}

INT_PTR CColorDialog::DoModal()
{
    return ::ChooseColorA(&m_cc) ? IDOK : IDCANCEL;
}

// ---- CFileDialog ----

CFileDialog::CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt, LPCTSTR lpszFileName, DWORD dwFlags,
                         LPCTSTR lpszFilter, CWnd* pParentWnd)
    : m_bOpenFileDialog(bOpenFileDialog), m_strDefExt(lpszDefExt), m_filter(lpszFilter ? lpszFilter : "")
{
    std::replace(m_filter.begin(), m_filter.end(), '|', '\0');
    if (lpszFileName)
        ::lstrcpynA(m_szPath, lpszFileName, static_cast<int>(sizeof m_szPath));
    m_ofn.lStructSize = static_cast<DWORD>(sizeof m_ofn);
    m_ofn.hwndOwner = OwnerOf(pParentWnd);
    m_ofn.lpstrFile = m_szPath;
    m_ofn.nMaxFile = static_cast<DWORD>(sizeof m_szPath);
    m_ofn.lpstrDefExt = m_strDefExt.IsEmpty() ? nullptr : static_cast<LPCTSTR>(m_strDefExt);
    m_ofn.lpstrFilter = m_filter.empty() ? nullptr : m_filter.c_str();
    m_ofn.Flags = dwFlags | OFN_EXPLORER;
}

INT_PTR CFileDialog::DoModal()
{
    const BOOL chosen = m_bOpenFileDialog ? ::GetOpenFileNameA(&m_ofn) : ::GetSaveFileNameA(&m_ofn);
    return chosen ? IDOK : IDCANCEL;
}
