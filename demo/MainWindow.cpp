#include "MainWindow.h"

#include "ErrorText.h"

#include <FileUtils.h>
#include <GraphicsUtils.h>
#include <UIPrinter.h>
#include <afxdlgs.h>
#include <resource.h>

#include <cstdio>

namespace {

constexpr UINT kCalendarId = 100;
constexpr UINT kStatusId = 101;
constexpr UINT kPanelId = 102;
constexpr int kMargin = 12;
constexpr int kStatusHeight = 20;
constexpr int kPanelWidth = 220;
const CRect kWindowRect(CPoint(80, 80), CSize(640, 420));
const CRect kAnywhere(0, 0, 100, 100); // Arrange gives each child its place

CString FormatDate(const DateTime& date)
{
    int year = 0, month = 0, day = 0;
    date.GetDate(year, month, day);
    CString text;
    text.Format("%04d-%02d-%02d", year, month, day);
    return text;
}

}

BEGIN_MESSAGE_MAP(MainWindow, CWnd)
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
    ON_WM_ERASEBKGND()
    ON_WM_DESTROY()
    ON_REGISTERED_MESSAGE(CCalendarWnd::CALWND_ONSELCHANGE, &MainWindow::OnSelChange)
    ON_REGISTERED_MESSAGE(CCalendarWnd::CALWND_ONNODATE, &MainWindow::OnNoDate)
    ON_REGISTERED_MESSAGE(CCalendarWnd::CALWND_ENTERKEY, &MainWindow::OnEnterKey)
    ON_REGISTERED_MESSAGE(CCalendarWnd::CALWND_ESCKEY, &MainWindow::OnEscKey)
    ON_REGISTERED_MESSAGE(CCalendarWnd::CALWND_PROMPT_SAVEWEBPAGE, &MainWindow::OnPromptSaveWebPage)
    ON_REGISTERED_MESSAGE(CCalendarWnd::CALWND_DATERANGE_CHANGED, &MainWindow::OnDateRangeChanged)
END_MESSAGE_MAP()

bool MainWindow::CreateMain()
{
    const LPCTSTR windowClass =
        AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW, LoadCursor(nullptr, IDC_ARROW),
                            reinterpret_cast<HBRUSH>(static_cast<UINT_PTR>(COLOR_BTNFACE + 1)), nullptr);
    if (!CreateEx(0, windowClass, "zeb17 demo", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, kWindowRect, nullptr,
                  0))
        return false;
    return CreateStatus() && CreateCalendar();
}

bool MainWindow::CreateStatus()
{
    if (!m_status.Create("", WS_CHILD | WS_VISIBLE, CRect(0, 0, 10, 10), this, kStatusId))
        return false;
    LOGFONT lf = {};
    GraphicsUtils::SetDefaultFont(lf, "", 13, -1, false, false, false);
    m_font.CreateFontIndirect(&lf);
    m_status.SetFont(&m_font);
    return true;
}

// A file that can't be read is told to the user, and left as it is: the calendar then goes without special
// dates.
bool MainWindow::CreateCalendar()
{
    const auto create = [this](bool useSpecialDates) {
        return m_calendar.Create(kCalendarId, kAnywhere, useSpecialDates, this, true, true, true, true);
    };
    bool created = false;
    CString error;
    const bool readable = RunTellingErrors([&] { created = create(true); }, error);
    if (!readable)
        created = create(false);
    if (!created || !m_panel.CreatePanel(kAnywhere, this, kPanelId, m_font))
        return false;
    m_panel.Refresh();
    m_panel.AllowSave(readable);
    CRect client;
    GetClientRect(&client);
    Arrange(client.Width(), client.Height());
    if (!readable)
        TellUser("Your dates could not be read, so none are shown and none can be saved.\n\n" + error);
    return true;
}

void MainWindow::OnSize(UINT, int cx, int cy)
{
    if (m_panel.GetSafeHwnd() != nullptr)
        Arrange(cx, cy);
}

void MainWindow::Arrange(int cx, int cy)
{
    const int statusTop = cy - kMargin - kStatusHeight;
    const int panelLeft = cx - kMargin - kPanelWidth;
    const int height = statusTop - 2 * kMargin;
    m_calendar.MoveWindow(kMargin, kMargin, panelLeft - 2 * kMargin, height);
    m_panel.MoveWindow(panelLeft, kMargin, kPanelWidth, height);
    m_status.MoveWindow(kMargin, statusTop, cx - 2 * kMargin, kStatusHeight);
}

// The calendar hands the focus to its parent when Tab leaves it: then it is the panel's turn.
void MainWindow::OnSetFocus(CWnd* pOldWnd)
{
    if (m_panel.GetSafeHwnd() == nullptr)
        return;
    const HWND old = pOldWnd != nullptr ? pOldWnd->GetSafeHwnd() : nullptr;
    const bool fromCalendar =
        old != nullptr && (old == m_calendar.m_hWnd || ::IsChild(m_calendar.m_hWnd, old));
    if (fromCalendar)
        m_panel.FocusFirst();
    else
        m_calendar.SetFocus();
}

BOOL MainWindow::OnEraseBkgnd(CDC* pDC)
{
    CRect client;
    GetClientRect(&client);
    pDC->FillSolidRect(&client, GetSysColor(COLOR_BTNFACE));
    return TRUE;
}

void MainWindow::OnDestroy()
{
    PostQuitMessage(0);
}

LRESULT MainWindow::OnSelChange(WPARAM, LPARAM lParam)
{
    ShowHeard("CALWND_ONSELCHANGE", CurrentDate() + (lParam == 0 ? " (press)" : ""));
    return 0;
}

LRESULT MainWindow::OnNoDate(WPARAM, LPARAM)
{
    ShowHeard("CALWND_ONNODATE", "");
    return 0;
}

LRESULT MainWindow::OnEnterKey(WPARAM, LPARAM)
{
    ShowHeard("CALWND_ENTERKEY", CurrentDate());
    return 0;
}

LRESULT MainWindow::OnEscKey(WPARAM, LPARAM)
{
    ShowHeard("CALWND_ESCKEY", CurrentDate());
    return 0;
}

LRESULT MainWindow::OnPromptSaveWebPage(WPARAM, LPARAM)
{
    ShowHeard("CALWND_PROMPT_SAVEWEBPAGE", "");
    CFileDialog dialog(FALSE, "html", "calendar.html", OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                       "Web pages (*.html)|*.html|All files|*.*||", this);
    if (dialog.DoModal() == IDOK && !SaveWebPage(dialog.GetPathName()))
        TellUser("The web page could not be written to " + dialog.GetPathName() + ".");
    return 0;
}

LRESULT MainWindow::OnDateRangeChanged(WPARAM, LPARAM lParam)
{
    // The pointer is good during this call only.
    const DateTime last = *reinterpret_cast<const DateTime*>(lParam);
    ShowHeard("CALWND_DATERANGE_CHANGED", CurrentDate() + " to " + FormatDate(last));
    return 0;
}

CString MainWindow::CurrentDate() const
{
    return FormatDate(m_calendar.GetDate());
}

// The line in the window for the user's eyes, and on standard output for whoever drives the demo.
void MainWindow::ShowHeard(const char* message, const CString& details)
{
    CString line(message);
    if (!details.IsEmpty())
        line += " " + details;
    m_status.SetWindowText(line);
    std::printf("%s\n", static_cast<LPCTSTR>(line));
    std::fflush(stdout);
}

// Runs the print command of the calendar's menu, with a file in the printer's place.
bool MainWindow::PrintToFile(const CString& path)
{
    UIPrinter::SetOutputFile(path);
    m_calendar.SendMessage(WM_COMMAND, ID_OPTIONS_PRINT);
    UIPrinter::SetOutputFile("");
    return FileUtils::DoesFileExist(path);
}

void MainWindow::TellUser(const CString& words)
{
    if (m_attended)
        AfxMessageBox(words, MB_OK | MB_ICONEXCLAMATION);
    else
        std::fprintf(stderr, "zeb17_demo: %s\n", static_cast<LPCTSTR>(words));
}
