// The calendar control as the widget uses it: its messages are watched, and it can do more than its user asks
// of it.
#include "control.h"

#include "host.h"

#include <Change.h>
#include <DownArrowButton.h>
#include <MonthBlock.h>
#include <WndWatch.h>

bool Zeb17CalendarWidget::Control::createIn(CWnd& around, Options options)
{
    constexpr UINT kId = 1;
    CRect rect;
    around.GetClientRect(&rect);
    // The special dates are read apart from this: the control is there whatever the file holds.
    if (!Create(kId, rect, false, &around, options.testFlag(NoDate), options.testFlag(OptionsMenu),
                options.testFlag(WebPage), options.testFlag(DateRanges)))
        return false;
    if (options.testFlag(SpecialDates))
        CreateToolTip();
    return true;
}

bool Zeb17CalendarWidget::Control::createAgain(CWnd& around, Options options)
{
    const DateTime date = m_date;
    const bool haveDate = m_bHaveDate;
    const bool useDates = m_bUseSpecialDates;
    DestroyWindow();
    if (!createIn(around, options))
        return false;
    m_date = date;
    m_bHaveDate = haveDate;
    m_bUseSpecialDates = useDates;
    RefreshMonth();
    return true;
}

void Zeb17CalendarWidget::Control::useSpecialDates(bool use)
{
    m_bUseSpecialDates = use;
    refreshSpecialDates();
}

void Zeb17CalendarWidget::Control::setMenu(Options options)
{
    m_bAllowWebPage = options.testFlag(WebPage);
    m_bAllowDateRanges = options.testFlag(DateRanges);
}

// Does what the Clear button does, whether there is one or not.
void Zeb17CalendarWidget::Control::clear()
{
    const Change change(*this);
    m_bHaveDate = false;
    EraseSelectionFrame();
}

void Zeb17CalendarWidget::Control::showPage(int year, int month)
{
    if (!m_date.IsValid())
        SetValidDate();
    const int months = (year - m_date.GetYear()) * 12 + month - m_date.GetMonth();
    if (months != 0)
        StepDate(&DateTime::AddMonths, months);
}

void Zeb17CalendarWidget::Control::showToday()
{
    const Change change(*this);
    DateTime today;
    today.SetToCurrent();
    ShowDate(today);
}

void Zeb17CalendarWidget::Control::enableButtons(bool enable)
{
    for (CZEBButton* const button : GetButtons())
        if (button &&
            (button->GetDlgCtrlID() != ClearButtonId || (button == m_pClearButton && m_bAllowNoDate)) &&
            button != m_pMonthYearButton)
            button->EnableWindow(enable);
}

void Zeb17CalendarWidget::Control::paintNow()
{
    UpdateWindow();
    for (CZEBButton* const button : GetButtons())
        if (button)
            button->UpdateWindow();
}

void Zeb17CalendarWidget::Control::enter(bool atEnd)
{
    if (atEnd)
        m_pNextYearButton->SetFocus();
    else
        SetFocus();
}

bool Zeb17CalendarWidget::Control::isOnDay(CPoint point) const
{
    if (m_nFirstDayColumn == -1) // not painted yet
        return false;
    const auto place = MonthBlock::PlaceAt(m_vRowEdges, m_vColumnEdges, point.x, point.y);
    return place && MonthBlock::DateOfCell(m_date, MonthBlock::CellOfPlace(*place)).IsValid();
}

LRESULT Zeb17CalendarWidget::Control::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const bool dayPressed = message == WM_LBUTTONDOWN && isOnDay(CPoint(lParam));
    LRESULT result = 0;
    m_host.runMessage(message, [&] {
        const CWndWatch watch(*this);
        result = CCalendarWnd::WindowProc(message, wParam, lParam);
        if (dayPressed && watch.IsAlive())
            m_host.hearPress();
    });
    return result;
}

BOOL Zeb17CalendarWidget::Control::PreTranslateMessage(MSG* message)
{
    const bool isTab = message && message->message == WM_KEYDOWN && message->wParam == VK_TAB;
    BOOL handled = FALSE;
    m_host.runMessage(0, [&] {
        const CWndWatch watch(*this);
        m_tabUnderWay = isTab;
        handled = CCalendarWnd::PreTranslateMessage(message);
        if (watch.IsAlive())
            m_tabUnderWay = false;
    });
    return handled;
}
