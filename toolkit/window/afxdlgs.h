// The system's dialogs.
#pragma once

#include <afxwin.h>
#include <commdlg.h>

/// The dialog that asks for a printer and the pages to print. Owns the memory blocks that the dialog gives.
class ZEB17_EXPORT CPrintDialog : public CWnd
{
    DECLARE_DYNAMIC(CPrintDialog)
public:
    /// dwFlags: PD_ flags. With bPrintSetupOnly the dialog only sets the printer up.
    explicit CPrintDialog(BOOL bPrintSetupOnly,
                          DWORD dwFlags = PD_ALLPAGES | PD_USEDEVMODECOPIES | PD_NOPAGENUMS |
                                          PD_HIDEPRINTTOFILE | PD_NOSELECTION,
                          CWnd* pParentWnd = nullptr);
    ~CPrintDialog() override;

    /// Shows the dialog: IDOK, or IDCANCEL for cancelled or failed.
    virtual INT_PTR DoModal();
    /// Fills in the standard printer without showing a dialog. False if there is none.
    BOOL GetDefaults();
    /// Makes the context of the printer chosen, or gives null. Whoever calls this deletes it.
    HDC CreatePrinterDC();
    /// The context that the dialog made; null without PD_RETURNDC. Whoever calls this deletes it.
    HDC GetPrinterDC() const { return m_pd.hDC; }
    int GetCopies() const { return m_pd.nCopies; }
    int GetFromPage() const { return PrintRange() ? m_pd.nFromPage : -1; }
    int GetToPage() const { return PrintRange() ? m_pd.nToPage : -1; }
    BOOL PrintRange() const { return (m_pd.Flags & PD_PAGENUMS) != 0; }
    BOOL PrintAll() const { return !PrintRange() && !PrintSelection(); }
    BOOL PrintSelection() const { return (m_pd.Flags & PD_SELECTION) != 0; }

    PRINTDLGA m_pd{};

private:
    void FreeBlocks();
};
