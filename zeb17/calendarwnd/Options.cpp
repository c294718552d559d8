// The options menu, and the commands that show a range of dates.
#include "CalendarWnd.h"

#include "DownArrowButton.h"
#include "LogLine.h"
#include "resource.h"

#include <ClipboardUtils.h>
#include <ImageMenu.h>
#include <SystemUtils.h>
#include <WndWatch.h>

#include <memory>

namespace {

// Makes the toolkit look for resources in the library first, for as long as the object lives.
class LibraryResources
{
public:
    LibraryResources()
    {
        HMODULE hLibrary = nullptr;
        ::GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT, "zeb17.dll", &hLibrary);
        if (!hLibrary)
            return;
        m_hSaved = AfxGetModuleState()->m_hCurrentResourceHandle;
        AfxGetModuleState()->m_hCurrentResourceHandle = hLibrary;
    }
    ~LibraryResources()
    {
        if (m_hSaved)
            AfxGetModuleState()->m_hCurrentResourceHandle = m_hSaved;
    }
    LibraryResources(const LibraryResources&) = delete;
    LibraryResources& operator=(const LibraryResources&) = delete;

private:
    HINSTANCE m_hSaved = nullptr;
};

std::unique_ptr<CImageMenu> LoadOptionsMenu(CImageMenu& menu, CWnd* pTarget)
{
    const LibraryResources resources;
    return std::unique_ptr<CImageMenu>(menu.LoadFilteredPopupMenu(IDR_OPTIONS_MENU, pTarget));
}

// A submenu is never a separator, though its state may have the same bit set: that bit is then part of a
// count of items.
bool IsSeparator(HMENU hMenu, int nPosition)
{
    const UINT nState = ::GetMenuState(hMenu, static_cast<UINT>(nPosition), MF_BYPOSITION);
    return nState != static_cast<UINT>(-1) && (nState & MF_SEPARATOR) != 0 && !::GetSubMenu(hMenu, nPosition);
}

void RemoveItem(HMENU hMenu, int nPosition)
{
    ::RemoveMenu(hMenu, static_cast<UINT>(nPosition), MF_BYPOSITION);
}

// Removes the separators at both ends, and all but one where several follow each other.
void TidySeparators(HMENU hMenu)
{
    UINT nRemembered = MF_SEPARATOR;
    for (int i = ::GetMenuItemCount(hMenu) - 1; i >= 0; --i) {
        const UINT nState = ::GetMenuState(hMenu, static_cast<UINT>(i), MF_BYPOSITION);
        if (IsSeparator(hMenu, i) && nState == nRemembered)
            RemoveItem(hMenu, i);
        else
            nRemembered = nState;
    }
    if (IsSeparator(hMenu, 0))
        RemoveItem(hMenu, 0);
    if (const int nLast = ::GetMenuItemCount(hMenu) - 1; IsSeparator(hMenu, nLast))
        RemoveItem(hMenu, nLast);
}

// Moves the date to some day of the same month (nCount 0), the month before (-1) or the month after (1).
void StepToMonth(DateTime& date, int nCount)
{
    if (nCount < 0)
        date.SetToFirstDay();
    else if (nCount > 0)
        date.SetToLastDay();
    date.AddDays(nCount);
}

// The first month of the quarter that comes nCount quarters, -1 to 1, after the quarter of nMonth. Quarters
// are counted within one year: after the last one comes the first.
int FirstMonthOfQuarter(int nMonth, int nCount)
{
    return ((nMonth - 1) / 3 + nCount + 4) % 4 * 3 + 1;
}

}

void CCalendarWnd::OnOptionsButton()
{
    if (!m_bShowOptions || !m_pOptionsButton)
        return;
    CImageMenu menu;
    const std::unique_ptr<CImageMenu> pPopup = LoadOptionsMenu(menu, this);
    if (!pPopup) {
        LogLine("{FEC0DBA9-2245-4F66-8549-E7287A594599}");
        return;
    }
    FilterOptionsMenu(pPopup->m_hMenu);
    CRect rcButton;
    m_pOptionsButton->GetWindowRect(&rcButton);
    if (pPopup->TrackPopupMenu(0, rcButton.left, rcButton.bottom, this, nullptr) == 0)
        LogLine("{E80C3B37-2E59-4924-A01D-320D1318EC50}" + SystemUtils::GetLastError(0));
}

void CCalendarWnd::FilterOptionsMenu(HMENU hMenu) const
{
    if (!m_bAllowWebPage)
        ::RemoveMenu(hMenu, ID_OPTIONS_GENERATEWEBPAGE, MF_BYCOMMAND);
    for (UINT nId = ID_OPTIONS_CURRENTMONTH; !m_bAllowDateRanges && nId <= ID_OPTIONS_PREVYEAR; ++nId)
        ::RemoveMenu(hMenu, nId, MF_BYCOMMAND);
    TidySeparators(hMenu);
}

void CCalendarWnd::OnUpdateOptionsCopydatelongform(CCmdUI* pCmdUI)
{
    if (pCmdUI)
        pCmdUI->Enable(m_date.IsValid());
}

void CCalendarWnd::OnUpdateOptionsCopydateshortform(CCmdUI* pCmdUI)
{
    OnUpdateOptionsCopydatelongform(pCmdUI);
}

void CCalendarWnd::OnOptionsCopydatelongform()
{
    ClipboardUtils::CopyTextToClipboard(DateTime::ConvertDateToText(m_date, false, false, false, false));
}

void CCalendarWnd::OnOptionsCopydateshortform()
{
    ClipboardUtils::CopyTextToClipboard(DateTime::ConvertDateToText(m_date, false, false, false, true));
}

// Selects the first day of the range, and tells the parent the last one.
void CCalendarWnd::ShowDateRange(RangeBase base, RangeUnit unit, int nCount)
{
    DateTime date = base == RangeBase::Shown ? m_date : DateTime();
    if (!date.IsValid())
        date.SetToCurrentDate();
    if (unit == RangeUnit::Quarter && !date.IsValid())
        return;
    const DateTime start = GetRangeStart(date, unit, nCount);
    WhileAlive(
        *this, [&] { SetDate(start); },
        [&] { NotifyParentWndDateRange(unit == RangeUnit::Weeks ? date : GetRangeEnd(start, unit)); });
}

// A month that lacks the day of the date does no harm here: SetMonth and SetYear then give its last day, and
// the day is set to 1 in the end.
DateTime CCalendarWnd::GetRangeStart(DateTime date, RangeUnit unit, int nCount)
{
    switch (unit) {
    case RangeUnit::Weeks:
        date.AddDays(1 - 7 * nCount);
        return date;
    case RangeUnit::Month:
        StepToMonth(date, nCount);
        break;
    case RangeUnit::Quarter:
        date.SetMonth(FirstMonthOfQuarter(date.GetMonth(), nCount));
        break;
    case RangeUnit::Year:
        date.SetYear(date.GetYear() + nCount);
        date.SetMonth(1);
        break;
    }
    date.SetDay(1);
    return date;
}

DateTime CCalendarWnd::GetRangeEnd(DateTime start, RangeUnit unit)
{
    if (unit == RangeUnit::Quarter)
        start.SetMonth(start.GetMonth() + 2);
    else if (unit == RangeUnit::Year)
        start.SetMonth(12);
    start.SetToLastDay();
    return start;
}
