// The settings of a print job, and what went wrong with it.
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

    // What went wrong; empty if nothing did, and if the user cancelled the job.
    void SetErrorMsg(const CString& strMsg);
    CString GetErrorMsg() const;

private:
    CString m_strPageTitle;

public:
    // Print on the default printer without asking the user.
    bool m_bPrintFlag = false;

    // The margins from the edges of the paper, in thousandths of an inch. Where the printer cannot print so
    // close to the edge, the margin is wider.
    CRect m_rcPageMargins;

    // The window whose content is printed, which owns the print dialog. May be null.
    CWnd* m_pCtrlWnd = nullptr;

private:
    CString m_strErrorMsg;
};
