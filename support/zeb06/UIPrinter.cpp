// A print job from the printer dialog to its end.
#include "UIPrinter.h"

#include <FontSelection.h>
#include <WndWatch.h>
#include <SystemUtils.h>

#include <afxext.h>

#include <algorithm>
#include <utility>

namespace {

constexpr int kPointsPerInch = 72;
constexpr int kMarginUnitsPerInch = 1000;
constexpr int kUnitsPerInch = 96;

constexpr char kFace[] = "Arial";
constexpr int kFooterPoints = 9;
constexpr int kMinPoints = 6;
// The lines of text that fit into the shorter side of the page, or of the content.
constexpr int kHeaderLines = 24;
constexpr int kContentLines = 28;

constexpr COLORREF kTextColor = RGB(0, 0, 0);

CString g_strOutputFile;

// The paper and how it lies, as the user chose them last; at first as a month lies best.
struct Paper
{
    DWORD dwFields = DM_ORIENTATION; // those of the following that are chosen
    short nOrientation = DMORIENT_LANDSCAPE;
    short nSize = 0;
    short nLength = 0;
    short nWidth = 0;
};
Paper g_paper;

// What is common to the settings of a printer and a Paper goes from one to the other.
constexpr DWORD kPaperFields = DM_ORIENTATION | DM_PAPERSIZE | DM_PAPERLENGTH | DM_PAPERWIDTH;

void ApplyPaper(DEVMODEA& mode)
{
    mode.dmFields = (mode.dmFields & ~(g_paper.dwFields & kPaperFields)) | g_paper.dwFields;
    mode.dmOrientation = g_paper.nOrientation;
    if (g_paper.dwFields & DM_PAPERSIZE)
        mode.dmPaperSize = g_paper.nSize;
    if (g_paper.dwFields & DM_PAPERLENGTH)
        mode.dmPaperLength = g_paper.nLength;
    if (g_paper.dwFields & DM_PAPERWIDTH)
        mode.dmPaperWidth = g_paper.nWidth;
}

void RememberPaper(DEVMODEA& mode)
{
    const DWORD dwFields = mode.dmFields & kPaperFields;
    const bool bOrientation = (dwFields & DM_ORIENTATION) != 0;
    g_paper = {dwFields | DM_ORIENTATION, bOrientation ? mode.dmOrientation : g_paper.nOrientation,
               mode.dmPaperSize, mode.dmPaperLength, mode.dmPaperWidth};
}

void VisitMode(HGLOBAL hMode, void (*pVisit)(DEVMODEA& mode))
{
    if (auto* const pMode = hMode ? static_cast<DEVMODEA*>(::GlobalLock(hMode)) : nullptr) {
        pVisit(*pMode);
        ::GlobalUnlock(hMode);
    }
}

// nValue times a fraction of positive numbers, rounded to the nearest.
int Scale(int nValue, int nNumerator, int nDenominator)
{
    return (nValue * nNumerator + nDenominator / 2) / nDenominator;
}

struct DialogError
{
    DWORD dwCode;
    const char* pszText;
};

constexpr DialogError kDialogErrors[] = {
    {PDERR_NODEVICES, "There is no printer."},
    {0, "There is no default printer."}, // some systems tell it without a code
    {PDERR_NODEFAULTPRN, "There is no default printer."},
    {PDERR_PRINTERNOTFOUND, "The printer was not found."},
};

CString GetDialogErrorText(DWORD dwCode)
{
    for (const DialogError& error : kDialogErrors)
        if (error.dwCode == dwCode)
            return error.pszText;
    CString strText;
    strText.Format("The printer could not be opened (error %u).", static_cast<unsigned int>(dwCode));
    return strText;
}

}

struct UIPrinter::Job
{
    explicit Job(PrintInfo& info) : m_info(info) {}

    PrintInfo& m_info;
    CDC m_dc;
    CPrintInfo m_page;
    CFont m_fontHeader;
    CFont m_fontContent;
    CFont m_fontFooter;
    CRect m_rcHeader; // in logical units, as m_page.m_rectDraw
    CRect m_rcFooter;
    CString m_strLeft; // the texts of the footer
    CString m_strCenter;
    CString m_strRight;
    unsigned int m_nPagesAcross = 1;
    bool m_bStarted = false;
    bool m_bFailed = false; // or was cancelled

    bool HasHeader() const { return !m_info.GetPageTitleText().IsEmpty(); }
    bool HasFooter() const { return !m_strLeft.IsEmpty() || !m_strCenter.IsEmpty() || !m_strRight.IsEmpty(); }

    // The part of a margin that lies inside the printable area, in pixels of the printer.
    int GetDeviceMargin(int nMargin, int nDpi, int nUnprintable) const
    {
        return std::max(Scale(nMargin, nDpi, kMarginUnitsPerInch) - nUnprintable, 0);
    }

    // The page within its margins, in logical units from the corner of the printable area.
    CRect GetPageRect() const
    {
        const auto caps = [this](int nIndex) { return m_dc.GetDeviceCaps(nIndex); };
        const CRect& rcMargins = m_info.m_rcPageMargins;
        const int nRight = caps(PHYSICALWIDTH) - caps(PHYSICALOFFSETX) - caps(HORZRES);
        const int nBottom = caps(PHYSICALHEIGHT) - caps(PHYSICALOFFSETY) - caps(VERTRES);
        CRect rect(GetDeviceMargin(rcMargins.left, caps(LOGPIXELSX), caps(PHYSICALOFFSETX)),
                   GetDeviceMargin(rcMargins.top, caps(LOGPIXELSY), caps(PHYSICALOFFSETY)),
                   caps(HORZRES) - GetDeviceMargin(rcMargins.right, caps(LOGPIXELSX), nRight),
                   caps(VERTRES) - GetDeviceMargin(rcMargins.bottom, caps(LOGPIXELSY), nBottom));
        ::DPtoLP(m_dc.m_hDC, reinterpret_cast<POINT*>(&rect), 2);
        return rect;
    }

    // The text grows with the paper, so that it suits a table that fills the page.
    static int GetLinePoints(const CRect& rect, int nLines)
    {
        const int nSide = std::min(rect.Width(), rect.Height());
        return std::max(Scale(nSide, kPointsPerInch, kUnitsPerInch * nLines), kMinPoints);
    }

    static void CreatePointFont(CFont& font, int nPoints, int nWeight)
    {
        CreateFontOfHeight(font, Scale(nPoints, kUnitsPerInch, kPointsPerInch), nWeight);
    }

    int GetLineHeight(const CFont& font)
    {
        const FontSelection selection(m_dc, font);
        TEXTMETRICA metrics = {};
        m_dc.GetTextMetrics(&metrics);
        return metrics.tmHeight;
    }

    void DrawLine(const CString& strText, CRect rect, UINT nAlignment)
    {
        m_dc.DrawText(strText, &rect, nAlignment | DT_SINGLELINE | DT_NOPREFIX);
    }
};

UIPrinter::UIPrinter() = default;

UIPrinter::~UIPrinter() = default;

UIPrinter::ToFile::ToFile(const CString& strPath) : m_strBefore(g_strOutputFile)
{
    g_strOutputFile = strPath;
}

UIPrinter::ToFile::~ToFile()
{
    g_strOutputFile = m_strBefore;
}

void UIPrinter::Print(PrintInfo* pInfo)
{
    if (!pInfo)
        return;

    m_pJob = std::make_unique<Job>(*pInfo);
    try {
        RunJob();
    } catch (...) {
        if (m_pJob->m_bStarted)
            m_pJob->m_dc.AbortDoc();
        m_pJob.reset(); // with the printer's context
        throw;
    }
    m_pJob.reset();
}

void UIPrinter::RunJob()
{
    InitPrintProcess();
    if (GetPrintDC()) {
        StartPrint();
        PrintPages();
        EndPrint();
    }
    EndPrintProcess();
}

void UIPrinter::InitPrintProcess()
{
    const PrintInfo& info = m_pJob->m_info;
    CPrintDialog& dialog = m_pJob->m_page.m_dialog;
    dialog.m_pd.hwndOwner = info.m_pCtrlWnd ? info.m_pCtrlWnd->m_hWnd : nullptr;

    const bool bAsk = !info.m_bPrintFlag && g_strOutputFile.IsEmpty();
    const bool bDefaults = dialog.GetDefaults() != FALSE;
    const DWORD dwDefaultsError = ::CommDlgExtendedError();
    if (bDefaults) {
        VisitMode(dialog.m_pd.hDevMode, &ApplyPaper);
        ::DeleteDC(std::exchange(dialog.m_pd.hDC, nullptr)); // one with that paper is made below
    }
    const bool bChosen = bAsk ? AskForPrinter(dialog) : bDefaults;
    if (bChosen) {
        if (bAsk)
            VisitMode(dialog.m_pd.hDevMode, &RememberPaper);
        SetPrintDC(bAsk ? dialog.GetPrinterDC() : dialog.CreatePrinterDC());
        return;
    }
    const DWORD dwError = ::CommDlgExtendedError();
    // Where there is no default printer the dialog itself has told the user so.
    const bool bToldOrCancelled = bAsk && (dwError == 0 || dwError == dwDefaultsError);
    if (!bToldOrCancelled)
        Fail(GetDialogErrorText(dwError));
}

// The object of the printed window may be deleted while the dialog is open.
bool UIPrinter::AskForPrinter(CPrintDialog& dialog)
{
    CWnd*& pWnd = m_pJob->m_info.m_pCtrlWnd;
    const auto ask = [&] { return dialog.DoModal() == IDOK; };
    if (!pWnd)
        return ask();
    bool bChosen = false;
    if (!WhileAlive(*pWnd, [&] { bChosen = ask(); }))
        pWnd = nullptr;
    return bChosen;
}

void UIPrinter::CreateHeaderFont(CFont& font) const
{
    Job::CreatePointFont(font, Job::GetLinePoints(m_pJob->GetPageRect(), kHeaderLines), FW_BOLD);
}

void UIPrinter::CreateContentFont(CFont& font) const
{
    Job::CreatePointFont(font, Job::GetLinePoints(m_pJob->m_page.m_rectDraw, kContentLines), FW_NORMAL);
}

void UIPrinter::CreateFooterFont(CFont& font) const
{
    Job::CreatePointFont(font, kFooterPoints, FW_NORMAL);
}

void UIPrinter::StartPrint()
{
    DoPrePrintCalculations();
    CreateContentFont(m_pJob->m_fontContent);

    const CString strTitle = m_pJob->m_info.GetPageTitleText();
    DOCINFOA document = {};
    document.cbSize = sizeof(document);
    document.lpszDocName = strTitle;
    if (!g_strOutputFile.IsEmpty())
        document.lpszOutput = g_strOutputFile;
    m_pJob->m_bStarted = m_pJob->m_dc.StartDoc(&document) > 0;
    if (m_pJob->m_bStarted)
        return;
    if (::GetLastError() == ERROR_CANCELLED) // a printer that asks for the name of a file
        m_pJob->m_bFailed = true;
    else
        FailWithLastError("The print job could not be started.");
}

void UIPrinter::DoPrePrintCalculations()
{
    Job& job = *m_pJob;
    const HDC hDC = job.m_dc.m_hDC;
    ::SetMapMode(hDC, MM_ANISOTROPIC);
    ::SetWindowExtEx(hDC, kUnitsPerInch, kUnitsPerInch, nullptr);
    ::SetViewportExtEx(hDC, job.m_dc.GetDeviceCaps(LOGPIXELSX), job.m_dc.GetDeviceCaps(LOGPIXELSY), nullptr);

    CreateHeaderFont(job.m_fontHeader);
    CreateFooterFont(job.m_fontFooter);
    GetPageTexts(job.m_strLeft, job.m_strCenter, job.m_strRight);

    const CRect rcPage = job.GetPageRect();
    const int nHeader = job.HasHeader() ? job.GetLineHeight(job.m_fontHeader) : 0;
    const int nFooter = job.HasFooter() ? job.GetLineHeight(job.m_fontFooter) : 0;
    job.m_rcHeader = CRect(rcPage.left, rcPage.top, rcPage.right, rcPage.top + nHeader);
    job.m_rcFooter = CRect(rcPage.left, rcPage.bottom - nFooter, rcPage.right, rcPage.bottom);
    // Half a line keeps the content off the texts above and below it.
    job.m_page.m_rectDraw = CRect(rcPage.left, job.m_rcHeader.bottom + nHeader / 2, rcPage.right,
                                  job.m_rcFooter.top - nFooter / 2);
}

CDC* UIPrinter::GetCtrlDC() const
{
    CWnd* pWnd = m_pJob->m_info.m_pCtrlWnd;
    return pWnd && ::IsWindow(pWnd->m_hWnd) ? pWnd->GetDC() : nullptr;
}

void UIPrinter::ReleaseScreenDC(CDC* pDC) const
{
    m_pJob->m_info.m_pCtrlWnd->ReleaseDC(pDC);
}

unsigned int UIPrinter::DoCalculatePagesAcross()
{
    return 1;
}

unsigned int UIPrinter::DoCalculatePagesDown()
{
    return 1;
}

void UIPrinter::PrintPages()
{
    m_pJob->m_nPagesAcross = std::max(DoCalculatePagesAcross(), 1U);
    const unsigned int nPages = m_pJob->m_nPagesAcross * DoCalculatePagesDown();
    for (unsigned int nPage = 1; nPage <= nPages && !m_pJob->m_bFailed; ++nPage) {
        m_pJob->m_page.m_nCurPage = nPage;
        PrintPage();
    }
}

void UIPrinter::PrintPage()
{
    if (m_pJob->m_dc.StartPage() <= 0) {
        FailWithLastError("The page could not be started.");
        return;
    }
    m_pJob->m_dc.SetBkMode(TRANSPARENT);
    m_pJob->m_dc.SetTextColor(kTextColor);
    PrintPageHeader();
    {
        const FontSelection selection(m_pJob->m_dc, m_pJob->m_fontContent);
        PrintPageContent(kTextColor);
    }
    PrintPageFooter();
    if (m_pJob->m_dc.EndPage() <= 0)
        FailWithLastError("The page could not be printed.");
}

void UIPrinter::PrintPageHeader()
{
    if (!m_pJob->HasHeader())
        return;
    const FontSelection selection(m_pJob->m_dc, m_pJob->m_fontHeader);
    m_pJob->DrawLine(m_pJob->m_info.GetPageTitleText(), m_pJob->m_rcHeader, DT_CENTER);
}

void UIPrinter::PrintPageContent(COLORREF) {}

void UIPrinter::GetPageTexts(CString& strLeft, CString& strCenter, CString& strRight)
{
    strLeft.Empty();
    strCenter.Empty();
    strRight.Empty();
}

void UIPrinter::PrintPageFooter()
{
    const FontSelection selection(m_pJob->m_dc, m_pJob->m_fontFooter);
    m_pJob->DrawLine(m_pJob->m_strLeft, m_pJob->m_rcFooter, DT_LEFT);
    m_pJob->DrawLine(m_pJob->m_strCenter, m_pJob->m_rcFooter, DT_CENTER);
    m_pJob->DrawLine(m_pJob->m_strRight, m_pJob->m_rcFooter, DT_RIGHT);
}

void UIPrinter::EndPrint()
{
    if (!m_pJob->m_bStarted)
        return;
    if (m_pJob->m_bFailed)
        m_pJob->m_dc.AbortDoc();
    else if (m_pJob->m_dc.EndDoc() <= 0)
        FailWithLastError("The print job could not be ended.");
    m_pJob->m_bStarted = false;
}

void UIPrinter::EndPrintProcess()
{
    m_pJob->m_dc.DeleteDC();
}

CDC* UIPrinter::GetPrintDC() const
{
    return m_pJob && m_pJob->m_dc.m_hDC ? &m_pJob->m_dc : nullptr;
}

CPrintInfo* UIPrinter::GetPrintInfo() const
{
    return m_pJob ? &m_pJob->m_page : nullptr;
}

CPoint UIPrinter::GetPagePlace() const
{
    if (!m_pJob)
        return {};
    const unsigned int nIndex = m_pJob->m_page.m_nCurPage - 1;
    const unsigned int nAcross = m_pJob->m_nPagesAcross;
    return CPoint(static_cast<int>(nIndex % nAcross), static_cast<int>(nIndex / nAcross));
}

void UIPrinter::CreateFontOfHeight(CFont& font, int nHeight, int nWeight)
{
    LOGFONTA lf = {};
    lf.lfHeight = -nHeight;
    lf.lfWeight = nWeight;
    lf.lfCharSet = DEFAULT_CHARSET;
    ::lstrcpynA(lf.lfFaceName, kFace, LF_FACESIZE);
    font.CreateFontIndirect(&lf);
}

void UIPrinter::SetPrintDC(HDC hDC)
{
    if (!m_pJob->m_dc.Attach(hDC))
        FailWithLastError("The printer could not be opened.");
}

void UIPrinter::Fail(const CString& strMsg)
{
    if (!m_pJob->m_bFailed)
        m_pJob->m_info.SetErrorMsg(strMsg);
    m_pJob->m_bFailed = true;
}

void UIPrinter::FailWithLastError(const CString& strMsg)
{
    Fail(strMsg + ' ' + SystemUtils::GetLastError(0));
}
