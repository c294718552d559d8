// The date, the operations and buttons that change it, and the messages to the parent.
#include "CalendarWnd.h"

#include "CalendarTexts.h"
#include "Change.h"
#include "DownArrowButton.h"

#include <LocaleUtils.h>
#include <NumberTextConv.h>
#include <StringUtils.h>
#include <WndWatch.h>

namespace {

constexpr COLORREF kErasedFrameColor = RGB(255, 255, 255);

DateTime Now()
{
    DateTime now;
    now.SetToCurrent();
    return now;
}

struct YearAndMonth
{
    int nYear = 0;
    int nMonth = 0;
};

// The year and month that a text such as "March, 2026" names; year 0 for any other text.
YearAndMonth ParseMonth(const CString& strText)
{
    const int nComma = strText.Find(',');
    if (nComma < 0)
        return {};
    const CString strMonth = strText.Left(nComma);
    CString strYear = strText.Mid(nComma + 1);
    strYear.TrimLeft();
    for (int nMonth = 1; nMonth <= 12; ++nMonth)
        if (LocaleUtils::GetMonthName(nMonth, false) == strMonth)
            return {NumberTextConv::GetNumberFromString(strYear), nMonth};
    return {};
}

}

void CCalendarWnd::SetDate(const DateTime& date)
{
    const Change change(*this);
    m_bHaveDate = date.IsValid();
    WhileAlive(
        *this, [&] { ShowDate(m_bHaveDate ? date : Now()); }, [&] { NotifyIfDate(); });
}

bool CCalendarWnd::ApplyNewDate(const DateTime& date)
{
    if (!date.IsValid())
        return false;
    int nOldYear = 0, nOldMonth = 0, nYear = 0, nMonth = 0, nDay = 0;
    m_date.GetDate(nOldYear, nOldMonth, nDay);
    date.GetDate(nYear, nMonth, nDay);
    m_date = date;
    return nMonth != nOldMonth || nYear != nOldYear;
}

void CCalendarWnd::ShowDate(const DateTime& date)
{
    WhileAlive(
        *this,
        [&] {
            if (ApplyNewDate(date))
                RefreshMonth();
        },
        [&] { InvalidateGrid(); });
}

void CCalendarWnd::SetValidDate()
{
    if (!m_pMonthYearButton || !::IsWindow(m_pMonthYearButton->GetSafeHwnd()))
        return;
    CString strTitle;
    m_pMonthYearButton->GetWindowText(strTitle);
    const YearAndMonth month = ParseMonth(strTitle);
    if (month.nYear != 0)
        m_date.SetDate(month.nYear, month.nMonth, 1);
    else
        ShowDate(Now());
}

void CCalendarWnd::StepDate(void (DateTime::*pStep)(int), int nCount)
{
    const Change change(*this);
    WhileAlive(
        *this,
        [&] {
            if (!m_date.IsValid())
                SetValidDate();
        },
        [&] { (m_date.*pStep)(nCount); }, [&] { NotifyAndRefresh(); });
}

void CCalendarWnd::OnPreviousYearButton()
{
    StepDate(&DateTime::AddYears, -1);
}

void CCalendarWnd::OnNextYearButton()
{
    StepDate(&DateTime::AddYears, 1);
}

void CCalendarWnd::OnPreviousMonthButton()
{
    StepDate(&DateTime::AddMonths, -1);
}

void CCalendarWnd::OnNextMonthButton()
{
    StepDate(&DateTime::AddMonths, 1);
}

// The parent is told of the new date while the title and the special days are still those of the old month.
void CCalendarWnd::NotifyAndRefresh()
{
    WhileAlive(
        *this, [&] { NotifyIfDate(); }, [&] { RefreshMonth(); }, [&] { InvalidateGrid(); });
}

void CCalendarWnd::OnTodayButton()
{
    const Change change(*this);
    m_bHaveDate = true;
    const bool bShown = m_date.IsToday();
    WhileAlive(
        *this,
        [&] {
            if (!bShown)
                ShowDate(Now());
        },
        [&] { SetFocus(); },
        [&] {
            if (bShown && !m_rcSelection.IsRectEmpty()) // no paint will come
                MoveSelectionRect(CRect());
        },
        [&] { NotifyParentWnd(CALWND_ONSELCHANGE, true); });
}

// Draws over the frame instead of painting anew. The date itself stays.
void CCalendarWnd::OnClearButton()
{
    if (!m_bAllowNoDate)
        return;
    const Change change(*this);
    m_bHaveDate = false;
    if (EraseSelectionFrame())
        NotifyParentWnd(CALWND_ONNODATE, false);
}

// Draws over the frame. False if there is no frame, or no context to draw on.
bool CCalendarWnd::EraseSelectionFrame()
{
    if (m_rcSelection.IsRectEmpty())
        return false;
    try {
        CClientDC dc(this);
        DrawSelectionFrame(&dc, kErasedFrameColor);
    } catch (CResourceException* pException) {
        pException->Delete();
        return false;
    }
    return true;
}

void CCalendarWnd::ReloadSpecialDates()
{
    if (!m_bUseSpecialDates)
        return;
    m_settings.Load();
    RefreshSpecialDays();
}

void CCalendarWnd::RefreshSpecialDays()
{
    DetermineSpecialDays();
    InvalidateGrid();
    AnnounceMonth();
}

void CCalendarWnd::RefreshMonth()
{
    WhileAlive(
        *this, [&] { UpdateMonthYearText(); }, [&] { DetermineSpecialDays(); });
}

void CCalendarWnd::UpdateMonthYearText()
{
    if (!m_pMonthYearButton)
        return;
    if (!m_date.IsValid()) {
        m_pMonthYearButton->SetWindowText(StringUtils::DecryptText(CalendarTexts::kNoDate));
        return;
    }
    int nYear = 0, nMonth = 0, nDay = 0;
    m_date.GetDate(nYear, nMonth, nDay);
    m_pMonthYearButton->SetWindowText(LocaleUtils::GetMonthName(nMonth, false) + " " +
                                      NumberTextConv::NumberToString(nYear, false, 0, ""));
}

void CCalendarWnd::InvalidateGrid()
{
    InvalidateRect(&m_rcGrid, TRUE);
}

void CCalendarWnd::NotifyIfDate() const
{
    if (m_bHaveDate)
        NotifyParentWnd(CALWND_ONSELCHANGE, true);
}

void CCalendarWnd::NotifyParentWnd(UINT nMessage, bool bFlag) const
{
    SendToParent(nMessage, bFlag ? 1 : 0);
}

void CCalendarWnd::NotifyParentWndDateRange(const DateTime& dtEnd) const
{
    SendToParent(CALWND_DATERANGE_CHANGED, reinterpret_cast<LPARAM>(&dtEnd));
}

void CCalendarWnd::SendToParent(UINT nMessage, LPARAM lParam) const
{
    const bool bParentEnded = m_pParentWatch && !m_pParentWatch->IsAlive();
    if (!m_pParent || bParentEnded || !::IsWindow(m_pParent->GetSafeHwnd()))
        return;
    ::SendMessageA(m_pParent->GetSafeHwnd(), nMessage, static_cast<WPARAM>(GetDlgCtrlID()), lParam);
}
