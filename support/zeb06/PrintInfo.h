// What one print job is told and what it tells back.
#pragma once

#include <afxwin.h>
#include <zeb17_export.h>

class ZEB17_EXPORT PrintInfo
{
public:
    PrintInfo();
    ~PrintInfo();

    // The heading of the page, and the name of the job in the printer's queue.
    void SetPageTitleText(const CString& strTitle);
    CString GetPageTitleText() const;

    // What went wrong; empty if nothing did. A user who cancels is no error.
    void SetErrorMsg(const CString& strMsg);
    CString GetErrorMsg() const;

private:
    CString m_strPageTitle;

public:
    // Print on the default printer without asking the user.
    bool m_bPrintFlag = false;

    // Margins from the edges of the paper, in thousandths of an inch. They grow where the printer
    // cannot print so close to the edge.
    CRect m_rcPageMargins;

    // The window whose content is printed; it owns the print dialog. May be null.
    CWnd* m_pCtrlWnd = nullptr;

private:
    CString m_strErrorMsg;
};
