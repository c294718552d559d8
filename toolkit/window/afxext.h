// What a print job hands around.
#pragma once

#include <afxdlgs.h>

#include <memory>

/// The pages of a print job and the page at hand.
struct ZEB17_EXPORT CPrintInfo
{
    CPrintInfo();
    ~CPrintInfo();
    CPrintInfo(const CPrintInfo&) = delete;
    CPrintInfo& operator=(const CPrintInfo&) = delete;

    void SetMinPage(UINT nMinPage) { m_pPD->m_pd.nMinPage = static_cast<WORD>(nMinPage); }
    void SetMaxPage(UINT nMaxPage) { m_pPD->m_pd.nMaxPage = static_cast<WORD>(nMaxPage); }
    UINT GetMinPage() const { return m_pPD->m_pd.nMinPage; }
    UINT GetMaxPage() const { return m_pPD->m_pd.nMaxPage; }
    UINT GetFromPage() const { return m_pPD->m_pd.nFromPage; }
    UINT GetToPage() const { return m_pPD->m_pd.nToPage; }

private:
    std::unique_ptr<CPrintDialog> m_pOwnedPD;

public:
    CPrintDialog* m_pPD; ///< the dialog of the job, owned by this object
    BOOL m_bPreview = FALSE;
    BOOL m_bDirect = FALSE;
    BOOL m_bContinuePrinting = TRUE; ///< FALSE ends the job after the page at hand
    UINT m_nCurPage = 1;
    UINT m_nNumPreviewPages = 0;
    CString m_strPageDesc;
    LPVOID m_lpUserData = nullptr;
    CRect m_rectDraw; ///< the usable area of the page, in units of the context
};
