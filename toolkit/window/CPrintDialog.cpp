#include <afxext.h>

#include <utility>

IMPLEMENT_DYNAMIC(CPrintDialog, CWnd)

CPrintDialog::CPrintDialog(BOOL bPrintSetupOnly, DWORD dwFlags, CWnd* pParentWnd)
{
    constexpr DWORD setupOnly = 0x40; // PD_PRINTSETUP
    m_pd.lStructSize = static_cast<DWORD>(sizeof m_pd);
    m_pd.hwndOwner = pParentWnd ? pParentWnd->m_hWnd : nullptr;
    m_pd.Flags = bPrintSetupOnly ? dwFlags | setupOnly : (dwFlags | PD_RETURNDC) & ~setupOnly;
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
    FreeBlocks(); // the call takes none in
    m_pd.Flags |= PD_RETURNDEFAULT;
    const BOOL result = ::PrintDlgA(&m_pd);
    m_pd.Flags &= ~static_cast<DWORD>(PD_RETURNDEFAULT);
    return result;
}

void CPrintDialog::FreeBlocks()
{
    for (HGLOBAL* block : {&m_pd.hDevMode, &m_pd.hDevNames})
        if (const HGLOBAL memory = std::exchange(*block, nullptr))
            ::GlobalFree(memory);
}

CPrintInfo::CPrintInfo() : m_pOwnedPD(std::make_unique<CPrintDialog>(FALSE)), m_pPD(m_pOwnedPD.get())
{
    SetMinPage(1);
    SetMaxPage(0xFFFF);
}

CPrintInfo::~CPrintInfo() = default;
