// The control that the benchmarks measure: 300 by 240 pixels, with the special dates of three countries
// coloured.
#pragma once

#include <CalendarWnd.h>
#include <Clock.h>
#include <LocaleUtils.h>
#include <ZebrikUtils.h>
#include <gdiplus.h>

#include <filesystem>
#include <string>
#include <utility>

namespace Bench {

inline constexpr int kWidth = 300;
inline constexpr int kHeight = 240;

// The colours of the national groups, in the order of CalendarSettings::Group.
inline constexpr COLORREF kGroupColors[] = {RGB(200, 30, 30), RGB(20, 120, 220), RGB(10, 160, 60)};

inline void ColorNationalDates(CalendarSettings& settings)
{
    int nGroup = CalendarSettings::GroupUS;
    for (const COLORREF cr : kGroupColors) {
        settings.SetAllShow(static_cast<CalendarSettings::Group>(nGroup), true);
        settings.SetAllColor(static_cast<CalendarSettings::Group>(nGroup++), cr);
    }
}

// Toolkit and GDI+ in use, the clock stopped, no data file.
class Session
{
public:
    Session()
    {
        AfxWinInit(::GetModuleHandleA(nullptr), nullptr, "", SW_SHOW);
        const Gdiplus::GdiplusStartupInput input;
        Gdiplus::GdiplusStartup(&m_token, &input, nullptr);
        Clock::SetToday(2026, 7, 15);
        LocaleUtils::SetLocale("en-US");
        const std::filesystem::path none = std::filesystem::temp_directory_path() / "zeb17-bench-none";
        ZebrikUtils::SetDataDirectory(none.string().c_str());
    }
    ~Session() { Gdiplus::GdiplusShutdown(m_token); }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

private:
    ULONG_PTR m_token = 0;
};

class Calendar : public CCalendarWnd
{
public:
    using CCalendarWnd::m_rcGrid;

    void ColorDates()
    {
        ColorNationalDates(m_settings);
        RefreshMonth();
    }
    const CalendarSettings& GetSettings() const { return m_settings; }
    void StepMonth(bool bForward)
    {
        SendMessage(WM_COMMAND, MAKEWPARAM(bForward ? NextMonthButtonId : PrevMonthButtonId, BN_CLICKED));
    }
    // Paints the grid once, now.
    void PaintGrid()
    {
        InvalidateRect(&m_rcGrid, TRUE);
        UpdateWindow();
    }
};

// A top-level window that the control fills.
class Host : public CWnd
{
public:
    Host()
    {
        const LPCTSTR pClass = AfxRegisterWndClass(0);
        CreateEx(0, pClass, "", WS_POPUP | WS_CLIPCHILDREN, CRect(0, 0, kWidth, kHeight), nullptr, 0);
        m_calendar.Create(1, CRect(0, 0, kWidth, kHeight), true, this, true, true, true, true);
        m_calendar.ColorDates();
        ShowWindow(SW_SHOW);
        m_calendar.SetDate(DateTime(2026, 7, 9, 0, 0, 0));
        m_calendar.SetFocus();
    }

    Calendar m_calendar;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_SIZE && m_calendar.m_hWnd)
            m_calendar.MoveWindow(0, 0, LOWORD(lParam), HIWORD(lParam));
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

}
