#include "MainWindow.h"

#include <GraphicsUtils.h>

#include <cstdio>

namespace {

constexpr UINT kCalendarId = 100;
constexpr UINT kStatusId = 101;
constexpr int kMargin = 12;
constexpr int kStatusHeight = 20;
const CRect kWindowRect(CPoint(80, 80), CSize(360, 330));

struct GroupColor
{
    CalendarSettings::Group group;
    COLORREF color;
};
constexpr GroupColor kGroupColors[] = {
    {CalendarSettings::GroupUS, RGB(0x2a, 0x6f, 0xc9)},
    {CalendarSettings::GroupCanada, RGB(0xd0, 0x3a, 0x3a)},
    {CalendarSettings::GroupNetherlands, RGB(0xe8, 0x80, 0x1a)},
    {CalendarSettings::GroupCustom, RGB(0x2e, 0x9b, 0x4f)},
    {CalendarSettings::GroupToDo, RGB(0x8a, 0x4f, 0xbf)},
};

CString FormatDate(const DateTime& date)
{
    int year = 0, month = 0, day = 0;
    date.GetDate(year, month, day);
    CString text;
    text.Format("%04d-%02d-%02d", year, month, day);
    return text;
}

}

DemoCalendar::DemoCalendar()
{
    for (const GroupColor& entry : kGroupColors)
        m_settings.SetAllColor(entry.group, entry.color);
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

bool MainWindow::CreateCalendar()
{
    CRect client;
    GetClientRect(&client);
    client.DeflateRect(kMargin, kMargin);
    client.bottom -= kStatusHeight + kMargin;
    return m_calendar.Create(kCalendarId, client, true, this, true, true, true, true);
}

void MainWindow::OnSize(UINT, int cx, int cy)
{
    if (m_status.GetSafeHwnd() == nullptr)
        return;
    const int statusTop = cy - kMargin - kStatusHeight;
    m_status.MoveWindow(kMargin, statusTop, cx - 2 * kMargin, kStatusHeight);
    if (m_calendar.GetSafeHwnd() != nullptr)
        m_calendar.MoveWindow(kMargin, kMargin, cx - 2 * kMargin, statusTop - 2 * kMargin);
}

void MainWindow::OnSetFocus(CWnd*)
{
    if (m_calendar.GetSafeHwnd() != nullptr)
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
