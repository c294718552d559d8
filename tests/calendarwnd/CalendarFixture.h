// A calendar in a real window, with a parent that records what it hears.
#pragma once

#include <Canvas.h>
#include <RecordingLogger.h>
#include <TemporaryDirectory.h>

#include <afxwin.h>

#include <CalendarWnd.h>
#include <DownArrowButton.h>
#include <MonthBlock.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

inline constexpr UINT kCalendarId = 300;

// Reaches the protected members.
class TestCalendar : public CCalendarWnd
{
public:
    using CCalendarWnd::m_bHaveDate;
    using CCalendarWnd::m_bUseSpecialDates;
    using CCalendarWnd::m_date;
    using CCalendarWnd::m_nFirstDayColumn;
    using CCalendarWnd::m_nTodayCell;
    using CCalendarWnd::m_pClearButton;
    using CCalendarWnd::m_pMonthYearButton;
    using CCalendarWnd::m_pNextMonthButton;
    using CCalendarWnd::m_pNextYearButton;
    using CCalendarWnd::m_pOptionsButton;
    using CCalendarWnd::m_pParent;
    using CCalendarWnd::m_pPrevMonthButton;
    using CCalendarWnd::m_pPrevYearButton;
    using CCalendarWnd::m_pTodayButton;
    using CCalendarWnd::m_rcGrid;
    using CCalendarWnd::m_rcSelection;
    using CCalendarWnd::m_settings;
    using CCalendarWnd::m_toolTip;
    using CCalendarWnd::m_vColumnEdges;
    using CCalendarWnd::m_vDayColors;
    using CCalendarWnd::m_vDayDescs;
    using CCalendarWnd::m_vRowEdges;

    using CCalendarWnd::FilterOptionsMenu;
    using CCalendarWnd::GetCellRect;
    using CCalendarWnd::MoveSelectionRect;
    using CCalendarWnd::OnClearButton;
    using CCalendarWnd::OnOptionsButton;
    using CCalendarWnd::OnSize;
    using CCalendarWnd::OnToolTipNotify;
    using CCalendarWnd::PreTranslateMessage;
    using CCalendarWnd::RefreshMonth;
    using CCalendarWnd::SetValidDate;

    CString GetTitle() const;
    // The text rectangles of a cell, 0 to 41, and of a day of the month shown.
    CRect GetRectOfCell(int nCell) const { return GetCellRect(MonthBlock::PlaceOfCell(nCell)); }
    CRect GetDayRect(int nDay) const;

    int m_nPaints = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

// One registered message, and what the control showed at that moment.
struct Heard
{
    std::string strName; // with its `lParam`, such as "SELCHANGE 1"; 0 for a range, whose end is in dtEnd
    WPARAM wParam;
    DateTime date;
    DateTime dtEnd;
    bool bHaveDate;
    CString strTitle;
    CRect rcSelection;
    std::vector<CString> descs;
    HWND hFocus;
};

class RecordingParent : public CWnd
{
public:
    TestCalendar* m_pCalendar = nullptr;
    std::vector<Heard> m_heard;
    std::function<void()> m_onFocus = [] {};    // done when it gets the focus
    std::function<void()> m_onHeard = [] {};    // done after each registered message
    std::function<void()> m_onChildEnd = [] {}; // done when a child below it is about to end

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

struct Flags
{
    bool bUseSpecialDates = true;
    bool bAllowNoDate = true;
    bool bShowOptions = true;
    bool bAllowWebPage = true;
    bool bAllowDateRanges = true;
};

// The pixels of a window's client area.
class Picture : public Canvas
{
public:
    explicit Picture(CWnd& wnd);
    bool IsFilledWith(COLORREF cr, const CRect& rc) const;
};

// Today is Wednesday, 15 July 2026; weeks begin on Sunday.
class CalendarTest : public testing::Test
{
protected:
    static constexpr int kWidth = 300;
    static constexpr int kHeight = 240;

    CalendarTest();
    ~CalendarTest() override;

    bool Create(const Flags& flags = {}, CSize size = {kWidth, kHeight});
    // Starts over with a new control.
    void Renew();
    // Creates the control, paints it, gives it the focus, and forgets what was heard.
    void Start(const Flags& flags = {});
    // Puts the control in a state without a word to the parent, and paints it.
    void Show(const DateTime& date, bool bHaveDate);
    void Repaint();
    // What waits to be painted.
    CRect GetInvalid();

    void Press(CPoint point);
    void PressCell(int nCell) { Press(calendar->GetRectOfCell(nCell).CenterPoint()); }
    void Key(WPARAM nKey); // goes to the focus
    void Command(UINT nId);
    void AddSpecialDay(const char* strText, int nDay, int nMonth, COLORREF cr);
    void HideNationalDays();

    // Title and tables of the cells are those of the month shown.
    void ExpectMonth();

    // Names of what was heard since the last call.
    std::vector<std::string> TakeHeard();

    TemporaryDirectory m_directory;
    RecordingLogger logger;
    RecordingParent parent;
    std::unique_ptr<TestCalendar> calendar;
};

DateTime Date(int nYear, int nMonth, int nDay);
std::string ToText(const DateTime& date);
