// The windows and the hands of the tests of the control.
#include "CalendarFixture.h"

#include <Clock.h>
#include <LocaleUtils.h>
#include <ZebrikUtils.h>
#include <gdiplus.h>

#include <tuple>

namespace {

class Session : public testing::Environment
{
public:
    void SetUp() override
    {
        AfxWinInit(::GetModuleHandleA(nullptr), nullptr, "", SW_SHOW);
        const Gdiplus::GdiplusStartupInput input;
        ASSERT_EQ(Gdiplus::GdiplusStartup(&m_token, &input, nullptr), Gdiplus::Ok);
    }
    void TearDown() override { Gdiplus::GdiplusShutdown(m_token); }

private:
    ULONG_PTR m_token = 0;
};

const testing::Environment* const theSession = testing::AddGlobalTestEnvironment(new Session);

const char* FindName(UINT nMessage)
{
    static const std::pair<UINT, const char*> messages[] = {
        {CCalendarWnd::CALWND_ONSELCHANGE, "SELCHANGE"},
        {CCalendarWnd::CALWND_ONNODATE, "NODATE"},
        {CCalendarWnd::CALWND_ENTERKEY, "ENTER"},
        {CCalendarWnd::CALWND_ESCKEY, "ESC"},
        {CCalendarWnd::CALWND_PROMPT_SAVEWEBPAGE, "WEBPAGE"},
        {CCalendarWnd::CALWND_DATERANGE_CHANGED, "RANGE"},
    };
    for (const auto& [nKnown, strName] : messages)
        if (nKnown == nMessage)
            return strName;
    return nullptr;
}

}

DateTime Date(int nYear, int nMonth, int nDay)
{
    return {nYear, nMonth, nDay, 0, 0, 0};
}

std::string ToText(const DateTime& date)
{
    int nYear = 0, nMonth = 0, nDay = 0;
    date.GetDate(nYear, nMonth, nDay);
    return std::to_string(nYear) + "-" + std::to_string(nMonth) + "-" + std::to_string(nDay);
}

CString TestCalendar::GetTitle() const
{
    CString strTitle;
    m_pMonthYearButton->GetWindowText(strTitle);
    return strTitle;
}

CRect TestCalendar::GetDayRect(int nDay) const
{
    return GetCellRect(MonthBlock::PlaceOfDay(MonthBlock::ShapeOf(m_date)->nFirstColumn, nDay));
}

LRESULT TestCalendar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    m_nPaints += message == WM_PAINT;
    return CCalendarWnd::WindowProc(message, wParam, lParam);
}

LRESULT RecordingParent::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_SETFOCUS)
        m_onFocus();
    if (message == WM_PARENTNOTIFY && LOWORD(wParam) == WM_DESTROY)
        m_onChildEnd();
    const char* const strName = FindName(message);
    if (!strName || !m_pCalendar)
        return CWnd::WindowProc(message, wParam, lParam);
    const bool bRange = message == CCalendarWnd::CALWND_DATERANGE_CHANGED;
    m_heard.push_back({strName + (" " + std::to_string(bRange ? 0 : lParam)), wParam, m_pCalendar->GetDate(),
                       bRange ? *reinterpret_cast<const DateTime*>(lParam) : DateTime(),
                       m_pCalendar->m_bHaveDate, m_pCalendar->GetTitle(), m_pCalendar->m_rcSelection,
                       m_pCalendar->m_vDayDescs, ::GetFocus()});
    m_onHeard();
    return 0;
}

Picture::Picture(CWnd& wnd) : Canvas(500, 400, wnd.m_hWnd)
{
    CClientDC dc(&wnd);
    BitBlt(0, 0, GetRect().right, GetRect().bottom, &dc, 0, 0, SRCCOPY);
}

bool Picture::IsFilledWith(COLORREF cr, const CRect& rc) const
{
    return FindInk(rc, [=](COLORREF crInk) { return crInk != cr; }).IsRectEmpty();
}

CalendarTest::CalendarTest()
{
    ZebrikUtils::SetDataDirectory(m_directory.PathOf("data").c_str());
    Clock::SetToday(2026, 7, 15);
    LocaleUtils::SetLocale("en-US");
    Renew(); // now that the clock is set
    const LPCTSTR strClass =
        AfxRegisterWndClass(0, nullptr, static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)), nullptr);
    parent.CreateEx(0, strClass, "parent", WS_POPUP | WS_VISIBLE, CRect(0, 0, 500, 400), nullptr, 0);
}

CalendarTest::~CalendarTest()
{
    parent.m_pCalendar = nullptr;
    calendar.reset();
    parent.DestroyWindow();
    LocaleUtils::SetLocale("");
    Clock::Release();
    ZebrikUtils::SetDataDirectory("");
}

void CalendarTest::Renew()
{
    parent.m_pCalendar = nullptr;
    calendar = std::make_unique<TestCalendar>();
    parent.m_pCalendar = calendar.get();
}

bool CalendarTest::Create(const Flags& flags, CSize size)
{
    return calendar->Create(kCalendarId, CRect(CPoint(10, 20), size), flags.bUseSpecialDates, &parent,
                            flags.bAllowNoDate, flags.bShowOptions, flags.bAllowWebPage,
                            flags.bAllowDateRanges);
}

void CalendarTest::Start(const Flags& flags)
{
    ASSERT_TRUE(Create(flags));
    calendar->SetFocus();
    Repaint();
    parent.m_heard.clear();
}

void CalendarTest::Show(const DateTime& date, bool bHaveDate)
{
    calendar->m_date = date;
    calendar->m_bHaveDate = bHaveDate;
    calendar->RefreshMonth();
    Repaint();
}

void CalendarTest::Repaint()
{
    calendar->Invalidate();
    calendar->UpdateWindow();
}

CRect CalendarTest::GetInvalid()
{
    CRect rc;
    ::GetUpdateRect(calendar->m_hWnd, &rc, FALSE);
    return rc;
}

void CalendarTest::ExpectMonth()
{
    const auto look = [this] {
        return std::tuple(calendar->GetTitle(), calendar->m_nTodayCell, calendar->m_vDayColors,
                          calendar->m_vDayDescs);
    };
    const auto found = look();
    calendar->RefreshMonth();
    ASSERT_TRUE(found == look());
}

void CalendarTest::Press(CPoint point)
{
    calendar->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
    calendar->SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
}

void CalendarTest::Key(WPARAM nKey)
{
    MSG msg{::GetFocus(), WM_KEYDOWN, nKey, 1, 0, {}};
    if (!CWnd::WalkPreTranslateTree(parent.m_hWnd, &msg))
        ::DispatchMessageA(&msg);
}

void CalendarTest::Command(UINT nId)
{
    calendar->SendMessage(WM_COMMAND, MAKEWPARAM(nId, 0));
}

void CalendarTest::AddSpecialDay(const char* strText, int nDay, int nMonth, COLORREF cr)
{
    auto* const pEntry = new CalendarDateEntry;
    pEntry->SetDay(strText, nDay, nMonth);
    pEntry->SetColor(cr);
    calendar->m_settings.AddCustomEntry(pEntry);
}

void CalendarTest::HideNationalDays()
{
    for (const auto group :
         {CalendarSettings::GroupUS, CalendarSettings::GroupCanada, CalendarSettings::GroupNetherlands})
        calendar->m_settings.SetAllShow(group, false);
}

std::vector<std::string> CalendarTest::TakeHeard()
{
    std::vector<std::string> names;
    for (const Heard& heard : parent.m_heard)
        names.push_back(heard.strName);
    parent.m_heard.clear();
    return names;
}
