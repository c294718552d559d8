// The places of the buttons, of the grid and of its days in the client area, and what is special about the
// days shown.
#include "CalendarWnd.h"

#include "DownArrowButton.h"
#include "LogLine.h"
#include "MonthBlock.h"

#include <algorithm>

namespace {

constexpr int kHeadingHeight = 23;
constexpr int kFooterHeight = 25;
constexpr int kStepButtonWidth = 25;
constexpr int kDayNamesHeight = 19;
constexpr int kLongestSide = 1 << 24; // far longer than any window, and far from the ends of an int
constexpr COLORREF kNoColor = RGB(255, 255, 255);

struct ButtonPlace
{
    CZEBButton* pButton;
    int x;
    int y;
    int nWidth;
    int nHeight;
};

void MoveButtons(std::span<const ButtonPlace> places)
{
    for (const ButtonPlace& place : places)
        if (::IsWindow(place.pButton->GetSafeHwnd()))
            place.pButton->MoveWindow(place.x, place.y, place.nWidth, place.nHeight);
}

}

void CCalendarWnd::OnSize(UINT, int cx, int cy)
{
    Default();
    if (!HasAllButtons()) {
        LogLine("{EE857672-D8CE-45B9-828B-F0930F6AB2EA}");
        return;
    }
    if (!::IsWindow(m_pMonthYearButton->GetSafeHwnd())) // the window is being created, and has no buttons yet
        return;

    cx = std::clamp(cx, -kLongestSide, kLongestSide);
    cy = std::clamp(cy, -kLongestSide, kLongestSide);
    const ButtonPlace heading[] = {
        {m_pMonthYearButton, 2 * kStepButtonWidth, 0, cx - 4 * kStepButtonWidth, kHeadingHeight},
        {m_pPrevYearButton, 0, 0, kStepButtonWidth, kHeadingHeight},
        {m_pPrevMonthButton, kStepButtonWidth, 0, kStepButtonWidth, kHeadingHeight},
        {m_pNextMonthButton, cx - 2 * kStepButtonWidth, 0, kStepButtonWidth, kHeadingHeight},
        {m_pNextYearButton, cx - kStepButtonWidth, 0, kStepButtonWidth, kHeadingHeight},
    };
    const int nThird = cx / 3;
    const int nFooter = cy - kFooterHeight;
    const ButtonPlace footer[] = {
        {m_pTodayButton, 0, nFooter, nThird, kFooterHeight},
        {m_pOptionsButton, nThird, nFooter, nThird, kFooterHeight},
        {m_pClearButton, 2 * nThird, nFooter, cx - 2 * nThird, kFooterHeight},
    };
    MoveButtons(heading);
    m_rcGrid.SetRect(0, kHeadingHeight, cx, nFooter);
    CalculateDayLocations();
    InvalidateGrid();
    MoveButtons(footer);
}

void CCalendarWnd::CalculateDayLocations()
{
    m_vRowEdges.resize(MonthBlock::kEdges);
    m_vColumnEdges.resize(MonthBlock::kEdges);
    CRect rc = m_rcGrid;
    rc.DeflateRect(1, 1);
    m_vRowEdges[0] = rc.top;
    MonthBlock::Split(std::span(m_vRowEdges).subspan(1), rc.top + kDayNamesHeight, rc.bottom);
    MonthBlock::Split(m_vColumnEdges, rc.left, rc.right);
}

CRect CCalendarWnd::GetCellRect(const MonthBlock::Place& place) const
{
    return MonthBlock::TextRect(m_vRowEdges, m_vColumnEdges, place);
}

void CCalendarWnd::DetermineSpecialDays()
{
    m_nTodayCell = -1;
    ClearCells();
    if (!m_date.IsValid())
        return;

    DateTime today;
    today.SetToCurrent();
    DateTime date = MonthBlock::DateOfCell(m_date, 0);
    DayNumbers::Date parts{};
    date.GetDate(parts.nYear, parts.nMonth, parts.nDay);
    const auto next = [&] {
        date.AddDays(1);
        parts = date.IsValid() ? DayNumbers::DayAfter(parts) : DayNumbers::Date{};
    };
    for (std::size_t i = 0; i < MonthBlock::kCells; ++i, next()) {
        if (m_bUseSpecialDates)
            LookUpDay(parts, i);
        if (date.CompareDate(today) != 0)
            continue;
        m_nTodayCell = static_cast<int>(i);
        if (!m_bUseSpecialDates)
            return;
    }
}

void CCalendarWnd::ClearCells()
{
    std::ranges::fill(m_vDayColors, kNoColor);
    std::ranges::fill(m_vDayDescs, CString());
}

void CCalendarWnd::LookUpDay(const DayNumbers::Date& date, std::size_t nCell)
{
    DWORD dwColor = kNoColor;
    m_vDayDescs[nCell] = m_settings.GetDateDesc(date.nDay, date.nMonth, date.nYear, dwColor);
    if (!m_vDayDescs[nCell].IsEmpty())
        m_vDayColors[nCell] = dwColor;
}
