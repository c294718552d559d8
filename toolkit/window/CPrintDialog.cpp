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

HDC CPrintDialog::CreatePrinterDC()
{
    if (!m_pd.hDevNames)
        return nullptr;
    const auto* names = static_cast<const DEVNAMES*>(::GlobalLock(m_pd.hDevNames));
    const auto* mode = m_pd.hDevMode ? static_cast<const DEVMODEA*>(::GlobalLock(m_pd.hDevMode)) : nullptr;
    const auto* texts = reinterpret_cast<const char*>(names);
    m_pd.hDC = ::CreateDCA(texts + names->wDriverOffset, texts + names->wDeviceOffset,
                           texts + names->wOutputOffset, mode);
    if (mode)
        ::GlobalUnlock(m_pd.hDevMode);
    ::GlobalUnlock(m_pd.hDevNames);
    return m_pd.hDC;
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
