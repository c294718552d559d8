// What the mouse, the keys and the focus do.
#include "CalendarWnd.h"

#include "Change.h"
#include "DownArrowButton.h"
#include "MonthBlock.h"

#include <Keyboard.h>
#include <WndWatch.h>

#include <algorithm>

namespace {

struct FocusStop
{
    CWnd* pWnd;
    bool bPresent;
    bool bRedrawsFrame; // the selection frame is drawn anew when the focus leaves this stop
};

bool IsLive(const CWnd* pWnd)
{
    return pWnd && ::IsWindow(pWnd->GetSafeHwnd());
}

}

void CCalendarWnd::OnLButtonDown(UINT, CPoint point)
{
    const Change change(*this);
    WhileAlive(
        *this, [&] { Default(); }, [&] { SetFocus(); }, [&] { SelectAt(point); });
}

void CCalendarWnd::SelectAt(const CPoint& point)
{
    if (m_nFirstDayColumn == -1) // not painted yet
        return;
    const auto place = MonthBlock::PlaceAt(m_vRowEdges, m_vColumnEdges, point.x, point.y);
    if (!place)
        return;
    const int nOffset = MonthBlock::OffsetOfPlace(m_nFirstDayColumn, *place);
    const int nDays = DateTime::GetDaysInMonth(m_date.GetYear(), m_date.GetMonth());
    if (nOffset >= 0 && nOffset < nDays)
        SelectShownDay(nOffset + 1, *place);
    else
        SelectNeighbourDay(nOffset, nDays);
}

void CCalendarWnd::SelectShownDay(int nDay, const MonthBlock::Place& place)
{
    if (m_bHaveDate && m_date.GetDay() == nDay)
        return;
    m_bHaveDate = true;
    m_date.SetDate(m_date.GetYear(), m_date.GetMonth(), nDay);
    WhileAlive(
        *this, [&] { NotifyParentWnd(CALWND_ONSELCHANGE, false); },
        [&] { MoveSelectionRect(GetCellRect(place)); });
}

// nOffset is the number of days from day 1 of the month shown, which has nDays days.
void CCalendarWnd::SelectNeighbourDay(int nOffset, int nDays)
{
    m_bHaveDate = true;
    const int nStartDay = nOffset < 0 ? 1 : nDays;
    DateTime date;
    date.Set(m_date.GetYear(), m_date.GetMonth(), nStartDay, 0, 0, 0);
    date.AddDays(nOffset + 1 - nStartDay);
    WhileAlive(
        *this, [&] { ShowDate(date); }, [&] { NotifyParentWnd(CALWND_ONSELCHANGE, false); });
}

// Sees the keys before the control and its buttons see them. Only a Tab that moved the focus, and a letter
// that pressed a button, go no further.
BOOL CCalendarWnd::PreTranslateMessage(MSG* pMsg)
{
    const CWndWatch watch(*this);
    if (pMsg && pMsg->message == WM_KEYDOWN && HandleKey(pMsg->wParam))
        return TRUE;
    if (pMsg && pMsg->message == WM_SYSKEYDOWN && PressMarkedButton(pMsg->wParam))
        return TRUE;
    if (!watch.IsAlive()) // the key goes on to the window that has the focus
        return FALSE;
    if (m_bUseSpecialDates)
        m_toolTip.SendMessage(TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(pMsg));
    return CWnd::PreTranslateMessage(pMsg);
}

bool CCalendarWnd::HandleKey(WPARAM nKey)
{
    switch (nKey) {
    case VK_TAB:
        return MoveFocus(Keyboard::IsShiftKeyDown());
    case VK_PRIOR:
        OnPreviousMonthButton();
        break;
    case VK_NEXT:
        OnNextMonthButton();
        break;
    case VK_END:
        SelectInMonth(&DateTime::SetToLastDay);
        break;
    case VK_HOME:
        SelectInMonth(&DateTime::SetToFirstDay);
        break;
    case VK_LEFT:
        MoveSelection(&DateTime::AddDays, -1);
        break;
    case VK_UP:
        MoveSelection(&DateTime::AddWeeks, -1);
        break;
    case VK_RIGHT:
        MoveSelection(&DateTime::AddDays, 1);
        break;
    case VK_DOWN:
        MoveSelection(&DateTime::AddWeeks, 1);
        break;
    case 'T':
    case VK_F5:
        OnTodayButton();
        break;
    default:
        break;
    }
    return false;
}

// By the key and not by its character, so that the letters work on every layout.
bool CCalendarWnd::PressMarkedButton(WPARAM nKey)
{
    for (CZEBButton* const pButton : GetButtons()) {
        if (!IsLive(pButton) || !pButton->IsMarkedBy(nKey))
            continue;
        pButton->SendMessage(BM_CLICK);
        return true;
    }
    return false;
}

// Moves the focus to the next stop, or to the one before. The parent is the stop before the first and behind
// the last one. Buttons that only fill a place are passed over.
bool CCalendarWnd::MoveFocus(bool bBackward)
{
    CWnd* const pParent = GetParent();
    CWnd* const pFocus = GetFocus();
    const FocusStop ring[] = {
        {pParent, true, false},
        {this, true, true},
        {m_pTodayButton, true, true},
        {m_pOptionsButton, m_bShowOptions, true},
        {m_pClearButton, m_bAllowNoDate, false},
        {m_pPrevMonthButton, true, false},
        {m_pNextMonthButton, true, true},
        {m_pPrevYearButton, true, true},
        {m_pNextYearButton, true, true},
        {pParent, true, false},
    };
    const auto isLive = [](const FocusStop& stop) { return IsLive(stop.pWnd); };
    if (!IsLive(pFocus) || !std::ranges::all_of(ring, isLive))
        return false;

    const FocusStop* const pEnd = std::end(ring) - 1;
    const FocusStop* pStop = std::find_if(std::begin(ring) + 1, pEnd,
                                          [pFocus](const FocusStop& stop) { return stop.pWnd == pFocus; });
    if (pStop == pEnd)
        return false;
    const bool bRedrawsFrame = pStop->bRedrawsFrame;
    do
        pStop += bBackward ? -1 : 1;
    while (!pStop->bPresent);
    WhileAlive(
        *this, [&] { pStop->pWnd->SetFocus(); },
        [&] {
            // The parent may have changed the date when it got the focus.
            if (bRedrawsFrame && m_bHaveDate)
                MoveSelectionRect(CRect());
        });
    return true;
}

void CCalendarWnd::SelectInMonth(void (DateTime::*pSet)())
{
    const Change change(*this);
    m_bHaveDate = true;
    (m_date.*pSet)();
    WhileAlive(
        *this, [&] { NotifyParentWnd(CALWND_ONSELCHANGE, true); }, [&] { MoveSelectionRect(CRect()); });
}

// A step that leads out of the range of dates leaves the date as it is.
void CCalendarWnd::MoveSelection(void (DateTime::*pStep)(int), int nCount)
{
    const Change change(*this);
    m_bHaveDate = true;
    DateTime date = m_date;
    (date.*pStep)(nCount);
    const auto showMonth = [&] {
        WhileAlive(
            *this, [&] { RefreshMonth(); }, [&] { InvalidateGrid(); });
    };
    WhileAlive(
        *this, [&] { ApplyNewDate(date) ? showMonth() : MoveSelectionRect(CRect()); },
        [&] { NotifyParentWnd(CALWND_ONSELCHANGE, true); });
}

void CCalendarWnd::OnKeyDown(UINT nChar, UINT, UINT)
{
    WhileAlive(
        *this, [&] { Default(); },
        [&] {
            if (nChar == VK_RETURN)
                NotifyParentWnd(CALWND_ENTERKEY, false);
            else if (nChar == VK_ESCAPE)
                NotifyParentWnd(CALWND_ESCKEY, false);
        });
}

// Each message is one month, however far the wheel was turned. Turning it away from the user goes back in
// time.
BOOL CCalendarWnd::OnMouseWheel(UINT, short zDelta, CPoint)
{
    StepDate(&DateTime::AddMonths, zDelta > 0 ? -1 : 1);
    return TRUE;
}

BOOL CCalendarWnd::OnMouseHWheel(UINT nFlags, short zDelta, CPoint pt)
{
    return OnMouseWheel(nFlags, zDelta, pt);
}

BOOL CCalendarWnd::OnSetCursor(CWnd*, UINT, UINT)
{
    ::SetCursor(::LoadCursor(nullptr, IDC_ARROW));
    return TRUE;
}

void CCalendarWnd::OnSetFocus(CWnd* pOldWnd)
{
    const Change change(*this);
    m_bFocusCame = true;
    WhileAlive(
        *this, [&] { CWnd::OnSetFocus(pOldWnd); }, [&] { RedrawSelection(); });
}

void CCalendarWnd::RedrawSelection()
{
    if (m_rcSelection.IsRectEmpty())
        return;
    InvalidateSelection();
    if (m_bHaveDate)
        MoveSelectionRect(m_rcSelection);
}

void CCalendarWnd::OnKillFocus(CWnd*)
{
    WhileAlive(
        *this, [&] { Default(); },
        [&] {
            InvalidateSelection();
            if (m_bHaveDate && !m_rcSelection.IsRectEmpty())
                MoveSelectionRect(m_rcSelection); // in the colour of a frame without the focus
        });
}

void CCalendarWnd::InvalidateSelection()
{
    CRect rc = m_rcSelection;
    rc.left -= 2;
    InvalidateRect(&rc, TRUE);
}
