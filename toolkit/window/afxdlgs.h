// The system's dialogs.
#pragma once

#include <afxwin.h>
#include <commdlg.h>

#include <string>

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
    /// The context that the dialog made; null without PD_RETURNDC. Whoever calls this deletes it.
    HDC GetPrinterDC() const { return m_pd.hDC; }

    PRINTDLGA m_pd{};

private:
    void FreeBlocks();
};

/// The dialog that asks for a colour. The user's own colours last as long as the process.
class ZEB17_EXPORT CColorDialog : public CWnd
{
    DECLARE_DYNAMIC(CColorDialog)
public:
    /// clrInit: what is shown first. dwFlags: CC_ flags.
    explicit CColorDialog(COLORREF clrInit = 0, DWORD dwFlags = 0, CWnd* pParentWnd = nullptr);

    /// Shows the dialog: IDOK, or IDCANCEL for cancelled or failed.
    virtual INT_PTR DoModal();
    /// The colour chosen.
    COLORREF GetColor() const { return m_cc.rgbResult; }

    CHOOSECOLORA m_cc{};
};

/// The dialog that asks for a file to open or to save to.
class ZEB17_EXPORT CFileDialog : public CWnd
{
    DECLARE_DYNAMIC(CFileDialog)
public:
    /// bOpenFileDialog: FALSE to save. lpszDefExt: for a name without an extension, without the dot.
    /// lpszFileName: what is shown first. dwFlags: OFN_ flags. lpszFilter: descriptions and patterns in turn,
    /// each ended by a bar, and one more bar at the end, as in "Texts (*.txt)|*.txt|All files|*.*||".
    explicit CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt = nullptr, LPCTSTR lpszFileName = nullptr,
                         DWORD dwFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCTSTR lpszFilter = nullptr,
                         CWnd* pParentWnd = nullptr);

    /// Shows the dialog: IDOK, or IDCANCEL for cancelled or failed.
    virtual INT_PTR DoModal();
    /// The path chosen.
    CString GetPathName() const { return m_szPath; }

    OPENFILENAMEA m_ofn{};

private:
    BOOL m_bOpenFileDialog;
    CString m_strDefExt;
    std::string m_filter; // with zero bytes within
    char m_szPath[1024] = {};
};
