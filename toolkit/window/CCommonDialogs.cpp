// The system's dialogs for a file and a printer.
#include <afxdlgs.h>

#include <algorithm>
#include <utility>

IMPLEMENT_DYNAMIC(CFileDialog, CWnd)
IMPLEMENT_DYNAMIC(CPrintDialog, CWnd)

namespace {

HWND OwnerOf(const CWnd* pParent)
{
    return pParent ? pParent->m_hWnd : ::GetActiveWindow();
}

}

// ---- CFileDialog ----

CFileDialog::CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt, LPCTSTR lpszFileName, DWORD dwFlags,
                         LPCTSTR lpszFilter, CWnd* pParentWnd)
    : m_bOpenFileDialog(bOpenFileDialog), m_strDefExt(lpszDefExt), m_strFilter(lpszFilter ? lpszFilter : "")
{
    std::replace(m_strFilter.begin(), m_strFilter.end(), '|', '\0');
    if (lpszFileName)
        ::lstrcpynA(m_szPath, lpszFileName, static_cast<int>(sizeof m_szPath));
    m_ofn.lStructSize = static_cast<DWORD>(sizeof m_ofn);
    m_ofn.hwndOwner = OwnerOf(pParentWnd);
    m_ofn.lpstrFile = m_szPath;
    m_ofn.nMaxFile = static_cast<DWORD>(sizeof m_szPath);
    m_ofn.lpstrDefExt = m_strDefExt.IsEmpty() ? nullptr : static_cast<LPCTSTR>(m_strDefExt);
    m_ofn.lpstrFilter = m_strFilter.empty() ? nullptr : m_strFilter.c_str();
    m_ofn.Flags = dwFlags | OFN_EXPLORER;
}

INT_PTR CFileDialog::DoModal()
{
    const BOOL bChosen = m_bOpenFileDialog ? ::GetOpenFileNameA(&m_ofn) : ::GetSaveFileNameA(&m_ofn);
    return bChosen ? IDOK : IDCANCEL;
}

// ---- CPrintDialog ----

CPrintDialog::CPrintDialog()
{
    m_pd.lStructSize = static_cast<DWORD>(sizeof m_pd);
    m_pd.Flags =
        PD_RETURNDC | PD_ALLPAGES | PD_USEDEVMODECOPIES | PD_NOPAGENUMS | PD_HIDEPRINTTOFILE | PD_NOSELECTION;
    m_pd.nMinPage = 1;
    m_pd.nMaxPage = 0xFFFF;
}

CPrintDialog::~CPrintDialog()
{
    FreeBlocks();
}

INT_PTR CPrintDialog::DoModal()
{
    return ::PrintDlgA(&m_pd) ? IDOK : IDCANCEL;
}

BOOL CPrintDialog::GetDefaults()
{
    FreeBlocks(); // the call below refuses to be given any
    constexpr DWORD kQuietly = PD_RETURNDEFAULT | PD_NOWARNING;
    m_pd.Flags |= kQuietly;
    const BOOL bResult = ::PrintDlgA(&m_pd);
    m_pd.Flags &= ~kQuietly;
    return bResult;
}

HDC CPrintDialog::CreatePrinterDC() const
{
    const auto* const pNames =
        m_pd.hDevNames ? static_cast<const char*>(::GlobalLock(m_pd.hDevNames)) : nullptr;
    const auto* const pMode =
        m_pd.hDevMode ? static_cast<const DEVMODEA*>(::GlobalLock(m_pd.hDevMode)) : nullptr;
    HDC hDC = nullptr;
    if (pNames) {
        const auto& names = *reinterpret_cast<const DEVNAMES*>(pNames);
        hDC = ::CreateDCA(pNames + names.wDriverOffset, pNames + names.wDeviceOffset,
                          pNames + names.wOutputOffset, pMode);
        ::GlobalUnlock(m_pd.hDevNames);
    }
    if (pMode)
        ::GlobalUnlock(m_pd.hDevMode);
    return hDC;
}

void CPrintDialog::FreeBlocks()
{
    for (HGLOBAL* pBlock : {&m_pd.hDevMode, &m_pd.hDevNames})
        if (const HGLOBAL hMemory = std::exchange(*pBlock, nullptr))
            ::GlobalFree(hMemory);
}
