// The system's dialogs.
#pragma once

#include <afxwnd_.h>
#include <commdlg.h>

#include <string>

// The dialog that asks for a printer and the pages to print. Owns the memory blocks that the dialog gives.
class ZEB17_EXPORT CPrintDialog : public CWnd
{
    DECLARE_DYNAMIC(CPrintDialog)
public:
    // All pages; the choice of pages and of a file is not offered.
    CPrintDialog();
    ~CPrintDialog() override;

    // Shows the dialog, and gives IDOK, or IDCANCEL if it was cancelled or failed.
    virtual INT_PTR DoModal();
    // Fills in the default printer without showing a dialog. False if there is none.
    BOOL GetDefaults();
    // The context of the chosen printer. Who calls this deletes the context.
    HDC GetPrinterDC() const { return m_pd.hDC; }
    // Makes a context by the settings that the blocks hold now; null if there are none. Who calls this
    // deletes the context.
    HDC CreatePrinterDC() const;

    PRINTDLGA m_pd{};

private:
    void FreeBlocks();
};

// The dialog that asks for a file to open or to save to.
class ZEB17_EXPORT CFileDialog : public CWnd
{
    DECLARE_DYNAMIC(CFileDialog)
public:
    // bOpenFileDialog: TRUE to open a file, FALSE to save one. lpszDefExt: the extension that a name without
    // one gets, without the dot. lpszFileName: the name that is shown first. dwFlags: OFN_ flags. lpszFilter:
    // descriptions and patterns in turn, each ended by a bar, and one more bar at the end: "Texts
    // (*.txt)|*.txt|All files|*.*||".
    explicit CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt = nullptr, LPCTSTR lpszFileName = nullptr,
                         DWORD dwFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCTSTR lpszFilter = nullptr,
                         CWnd* pParentWnd = nullptr);

    // Shows the dialog, and gives IDOK, or IDCANCEL if it was cancelled or failed.
    virtual INT_PTR DoModal();
    // The path chosen.
    CString GetPathName() const { return m_szPath; }

    OPENFILENAMEA m_ofn{};

private:
    BOOL m_bOpenFileDialog;
    CString m_strDefExt;
    std::string m_strFilter; // with a zero byte for each bar
    char m_szPath[1024] = {};
};
