#include "MainWindow.h"

#include "ErrorText.h"

#include "SaveQuestion.h"

#include <GraphicsUtils.h>
#include <Keyboard.h>
#include <UIPrinter.h>
#include <afxdlgs.h>
#include <resource.h>

#include <algorithm>
#include <cstdio>

namespace {

constexpr UINT kCalendarId = 100;
constexpr UINT kPanelId = 101;
constexpr UINT kRangeId = 102;
constexpr UINT kHeardId = 103;
constexpr int kMargin = 12;
constexpr int kGap = 8;
constexpr int kRangeHeight = 20;
constexpr int kHeardHeight = 80;
constexpr int kPanelWidth = 280;
constexpr int kMaxHeard = 100;
constexpr int kMinCalendarWidth = 300;
constexpr int kMinCalendarHeight = 200;
const CRect kWindowRect(CPoint(80, 80), CSize(820, 560));
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
    ON_WM_ACTIVATE()
    ON_WM_ERASEBKGND()
    ON_WM_CLOSE()
    ON_WM_DESTROY()
    ON_REGISTERED_MESSAGE(CCalendarWnd::CALWND_ONSELCHANGE, &MainWindow::OnSelChange)
    ON_REGISTERED_MESSAGE(CCalendarWnd::CALWND_ONNODATE, &MainWindow::OnNoDate)
    ON_REGISTERED_MESSAGE(CCalendarWnd::CALWND_ENTERKEY, &MainWindow::OnEnterKey)
    ON_REGISTERED_MESSAGE(CCalendarWnd::CALWND_ESCKEY, &MainWindow::OnEscKey)
    ON_REGISTERED_MESSAGE(CCalendarWnd::CALWND_PROMPT_SAVEWEBPAGE, &MainWindow::OnPromptSaveWebPage)
    ON_REGISTERED_MESSAGE(CCalendarWnd::CALWND_DATERANGE_CHANGED, &MainWindow::OnDateRangeChanged)
END_MESSAGE_MAP()

MainWindow::MainWindow(bool attended)
    : m_attended(attended), m_log([this](const CString& words) {
          m_failed = true;
          TellUser("The calendar could not do that.\n\n" + words, m_attended);
      })
{
}

bool MainWindow::CreateMain()
{
    const LPCTSTR windowClass =
        AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW, LoadCursor(nullptr, IDC_ARROW),
                            reinterpret_cast<HBRUSH>(static_cast<UINT_PTR>(COLOR_BTNFACE + 1)), nullptr);
    if (!CreateEx(0, windowClass, "zeb17 demo", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, kWindowRect, nullptr,
                  0))
        return false;
    LOGFONT lf = {};
    GraphicsUtils::SetDefaultFont(lf, "", 13, -1, false, false, false);
    m_font.CreateFontIndirect(&lf);
    if (!CreateHeard() || !CreateCalendar())
        return false;
    CRect client;
    GetClientRect(&client);
    Arrange(client.Width(), client.Height());
    return true;
}

bool MainWindow::CreateHeard()
{
    constexpr DWORD list = WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER | WS_VSCROLL | LBS_NOINTEGRALHEIGHT;
    if (!m_range.Create("Last range: none yet", WS_CHILD | WS_VISIBLE, kAnywhere, this, kRangeId) ||
        !m_heard.Create(list, kAnywhere, this, kHeardId))
        return false;
    m_range.SetFont(&m_font);
    m_heard.SetFont(&m_font);
    return true;
}

// A file that can't be read is left as it is: the calendar then goes without special dates.
bool MainWindow::CreateCalendar()
{
    const auto create = [this](bool useSpecialDates) {
        return m_calendar.Create(kCalendarId, kAnywhere, useSpecialDates, this, true, true, true, true);
    };
    bool created = false;
    const bool readable = RunTellingErrors([&] { created = create(true); }, m_loadError);
    if (!readable)
        created = create(false);
    return created && m_panel.CreatePanel(kAnywhere, this, kPanelId, m_font, readable);
}

void MainWindow::TellLoadError()
{
    if (!m_loadError.IsEmpty())
        TellUser("Your dates could not be read, so none are shown and none can be changed.\n\n" + m_loadError,
                 m_attended);
}

void MainWindow::OnSize(UINT, int cx, int cy)
{
    if (m_panel.GetSafeHwnd() != nullptr)
        Arrange(cx, cy);
}

void MainWindow::Arrange(int cx, int cy)
{
    const int width = std::max(cx - 3 * kMargin - kPanelWidth, kMinCalendarWidth);
    const int height = std::max(cy - 2 * kMargin - kGap - kRangeHeight - kHeardHeight, kMinCalendarHeight);
    const int rangeTop = kMargin + height + kGap;
    const int heardTop = rangeTop + kRangeHeight;
    m_calendar.MoveWindow(kMargin, kMargin, width, height);
    m_range.MoveWindow(kMargin, rangeTop, width, kRangeHeight);
    m_heard.MoveWindow(kMargin, heardTop, width, kHeardHeight);
    m_panel.MoveWindow(2 * kMargin + width, kMargin, kPanelWidth, heardTop + kHeardHeight - kMargin);
}

bool MainWindow::IsInCalendar(HWND window) const
{
    return window != nullptr && (window == m_calendar.m_hWnd || ::IsChild(m_calendar.m_hWnd, window));
}

// The calendar hands the focus to its parent when Tab leaves it: then it is its neighbour's turn. Otherwise
// the window has just become active, and goes on where it was.
void MainWindow::OnSetFocus(CWnd* pOldWnd)
{
    if (m_panel.GetSafeHwnd() == nullptr)
        return;
    if (IsInCalendar(pOldWnd != nullptr ? pOldWnd->GetSafeHwnd() : nullptr))
        ::SetFocus(::GetNextDlgTabItem(m_hWnd, m_calendar, Keyboard::IsShiftKeyDown()));
    else
        ::SetFocus(::IsWindow(m_lastFocus) ? m_lastFocus : m_calendar.m_hWnd);
}

void MainWindow::OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized)
{
    const HWND focus = ::GetFocus();
    if (nState == WA_INACTIVE && ::IsChild(m_hWnd, focus))
        m_lastFocus = focus;
    CWnd::OnActivate(nState, pWndOther, bMinimized);
}

// Outside of the calendar, which has keys of its own, the keyboard is that of a dialog. Enter presses the
// button that has the focus.
BOOL MainWindow::PreTranslateMessage(MSG* pMsg)
{
    if (CWnd::PreTranslateMessage(pMsg))
        return TRUE;
    if (IsInCalendar(pMsg->hwnd))
        return FALSE;
    if (pMsg->message != WM_KEYDOWN || pMsg->wParam != VK_RETURN)
        return ::IsDialogMessage(m_hWnd, pMsg);
    const LRESULT code = ::SendMessage(pMsg->hwnd, WM_GETDLGCODE, 0, 0);
    if ((code & DLGC_BUTTON) != 0)
        ::SendMessage(pMsg->hwnd, BM_CLICK, 0, 0);
    return (code & DLGC_BUTTON) != 0;
}

BOOL MainWindow::OnEraseBkgnd(CDC* pDC)
{
    CRect client;
    GetClientRect(&client);
    pDC->FillSolidRect(&client, GetSysColor(COLOR_BTNFACE));
    return TRUE;
}

void MainWindow::OnClose()
{
    using Answer = SaveQuestion::Answer;
    const Answer answer = m_panel.IsChanged() ? SaveQuestion().Ask(*this, m_font) : Answer::DontSave;
    if (answer == Answer::Cancel || (answer == Answer::Save && !m_panel.Save()))
        return;
    DestroyWindow();
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
        TellUser("The web page could not be written to " + dialog.GetPathName() + ".", m_attended);
    return 0;
}

LRESULT MainWindow::OnDateRangeChanged(WPARAM, LPARAM lParam)
{
    // The pointer is good during this call only.
    const DateTime last = *reinterpret_cast<const DateTime*>(lParam);
    const CString range = CurrentDate() + " to " + FormatDate(last);
    m_range.SetWindowText("Last range: " + range);
    ShowHeard("CALWND_DATERANGE_CHANGED", range);
    return 0;
}

CString MainWindow::CurrentDate() const
{
    return FormatDate(m_calendar.GetDate());
}

// A row in the window for the user's eyes, and a line on standard output for whoever drives the demo.
void MainWindow::ShowHeard(const char* message, const CString& details)
{
    CString line(message);
    if (!details.IsEmpty())
        line += " " + details;
    if (m_heard.GetCount() == kMaxHeard)
        m_heard.DeleteString(0);
    m_heard.SetTopIndex(m_heard.AddString(line));
    std::printf("%s\n", static_cast<LPCTSTR>(line));
    std::fflush(stdout);
}

// Runs the print command of the calendar's menu, with a file in the printer's place.
bool MainWindow::PrintToFile(const CString& path)
{
    m_failed = false;
    const UIPrinter::ToFile toFile(path);
    m_calendar.SendMessage(WM_COMMAND, ID_OPTIONS_PRINT);
    return !m_failed;
}
