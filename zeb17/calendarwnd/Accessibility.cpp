// What screen readers are told of the control. Its items are the 42 days shown; each button has an object of
// its own.
#include "CalendarWnd.h"

#include "CalendarTexts.h"
#include "Change.h"
#include "DownArrowButton.h"
#include "MonthBlock.h"

#include <LocaleUtils.h>
#include <StringUtils.h>
#include <WindowAccessible.h>

#include <utility>

namespace {

// The item of cell 0 to 41.
constexpr LONG ItemOfCell(int nCell)
{
    return nCell + 1;
}

constexpr int CellOfItem(LONG nItem)
{
    return static_cast<int>(nItem) - 1;
}

CString FormatDay(const DateTime& date)
{
    if (!date.IsValid()) // the cell lies beyond the range of dates
        return "";
    return LocaleUtils::FormatDate(date.GetYear(), date.GetMonth(), date.GetDay(), date.GetDayOfWeek(),
                                   false);
}

}

class CCalendarWnd::Accessible final : public AccessibleOf<CCalendarWnd>
{
public:
    using AccessibleOf::AccessibleOf;

private:
    LONG GetItemCount() const override
    {
        return GetWnd().m_date.IsValid() && !GetWnd().m_vRowEdges.empty() ? MonthBlock::kCells : 0;
    }

    CString GetName(LONG nItem) const override
    {
        if (nItem != CHILDID_SELF)
            return GetWnd().GetDayName(CellOfItem(nItem));
        CString strTitle;
        GetWnd().m_pMonthYearButton->GetWindowText(strTitle);
        return strTitle;
    }

    LONG GetRole(LONG nItem) const override
    {
        return nItem == CHILDID_SELF ? ROLE_SYSTEM_TABLE : ROLE_SYSTEM_CELL;
    }

    LONG GetState(LONG nItem) const override
    {
        const LONG nSelected = GetSelectedItem();
        if (nItem == CHILDID_SELF)
            return GetWindowState() & ~(nSelected != 0 ? STATE_SYSTEM_FOCUSED : 0);
        LONG nState = GetWindowState() | STATE_SYSTEM_SELECTABLE;
        return nItem == nSelected ? nState | STATE_SYSTEM_SELECTED : nState & ~STATE_SYSTEM_FOCUSED;
    }

    CRect GetItemRect(LONG nItem) const override
    {
        return GetWnd().GetCellRect(MonthBlock::PlaceOfCell(CellOfItem(nItem)));
    }

    LONG GetItemAt(CPoint point) const override
    {
        if (GetItemCount() == 0)
            return CHILDID_SELF;
        const auto place =
            MonthBlock::PlaceAt(GetWnd().m_vRowEdges, GetWnd().m_vColumnEdges, point.x, point.y);
        return place ? ItemOfCell(MonthBlock::CellOfPlace(*place)) : CHILDID_SELF;
    }

    LONG GetSelectedItem() const override { return GetWnd().GetSelectedItem(); }

    CString GetAction(LONG nItem) const override
    {
        return nItem != CHILDID_SELF ? StringUtils::DecryptText(CalendarTexts::kSelectDay) : CString();
    }

    void DoAction(LONG nItem) override
    {
        const CPoint point = GetItemRect(nItem).CenterPoint();
        const LPARAM lParam = MAKELPARAM(point.x, point.y);
        ::SendMessageA(m_hWnd, WM_LBUTTONDOWN, MK_LBUTTON, lParam);
        ::SendMessageA(m_hWnd, WM_LBUTTONUP, 0, lParam);
    }
};

LRESULT CCalendarWnd::OnGetObject(WPARAM wParam, LPARAM lParam)
{
    return WindowAccessible::IsAskedFor(lParam) ? WindowAccessible::HandOut(new Accessible(m_hWnd), wParam)
                                                : Default();
}

// Joins the date in full, the word for today if it is today, and what is special about the day.
CString CCalendarWnd::GetDayName(int nCell) const
{
    CString strName = FormatDay(MonthBlock::DateOfCell(m_date, nCell));
    if (nCell == m_nTodayCell) {
        CString strToday = StringUtils::DecryptText(CalendarTexts::kToday);
        strToday.Replace("&", "");
        strName += ", " + strToday;
    }
    CString strDesc = m_vDayDescs[static_cast<std::size_t>(nCell)];
    strDesc.Replace("\r\n", ", ");
    return strDesc.IsEmpty() ? strName : strName + ", " + strDesc;
}

LONG CCalendarWnd::GetSelectedItem() const
{
    const std::optional<MonthBlock::Shape> shape = MonthBlock::ShapeOf(m_date);
    if (!m_bHaveDate || !shape || m_vRowEdges.empty())
        return CHILDID_SELF;
    return ItemOfCell(MonthBlock::CellOfPlace(MonthBlock::PlaceOfDay(shape->nFirstColumn, m_date.GetDay())));
}

CCalendarWnd::DayShown CCalendarWnd::GetDayShown() const
{
    DayShown day{.bSelected = m_bHaveDate};
    m_date.GetDate(day.nYear, day.nMonth, day.nDay);
    return day;
}

CCalendarWnd::Change::Change(CCalendarWnd& wnd) : m_wnd(wnd), m_watch(wnd), m_before(wnd.GetDayShown())
{
    ++m_wnd.m_nChanges;
}

CCalendarWnd::Change::~Change()
{
    if (m_watch.IsAlive() && --m_wnd.m_nChanges == 0)
        m_wnd.AnnounceChange(m_before);
}

void CCalendarWnd::AnnounceChange(const DayShown& before)
{
    const bool bFocusCame = std::exchange(m_bFocusCame, false);
    const DayShown now = GetDayShown();
    if (!::IsWindow(m_hWnd))
        return;
    if (now.nYear != before.nYear || now.nMonth != before.nMonth)
        AnnounceMonth();
    if (now != before || (bFocusCame && m_bHaveDate))
        AnnounceSelection();
}

void CCalendarWnd::AnnounceSelection() const
{
    const LONG nItem = GetSelectedItem();
    if (::GetFocus() == m_hWnd)
        ::NotifyWinEvent(EVENT_OBJECT_FOCUS, m_hWnd, OBJID_CLIENT, nItem);
    ::NotifyWinEvent(EVENT_OBJECT_SELECTION, m_hWnd, OBJID_CLIENT, nItem);
}

// Another month is shown: the items stand for other days, and the title and the tips of the step buttons,
// which are the names of the control and of these buttons, have changed.
void CCalendarWnd::AnnounceMonth() const
{
    ::NotifyWinEvent(EVENT_OBJECT_REORDER, m_hWnd, OBJID_CLIENT, CHILDID_SELF);
    ::NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, m_hWnd, OBJID_CLIENT, CHILDID_SELF);
    for (const CZEBButton* const pButton :
         {m_pPrevYearButton, m_pNextYearButton, m_pPrevMonthButton, m_pNextMonthButton})
        ::NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, pButton->GetSafeHwnd(), OBJID_CLIENT, CHILDID_SELF);
}
