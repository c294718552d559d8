// The tips of the four step buttons. The tips of the days are made when the days are painted.
#include "CalendarWnd.h"

#include "CalendarTexts.h"

#include <LocaleUtils.h>
#include <NumberTextConv.h>
#include <StringUtils.h>

namespace {

constexpr int kTipSize = 80; // characters in the buffer of a notification, with the null

// The step button that a notification asks for, or 0.
template <class ToolTipText>
int GetStepButton(const ToolTipText& text, int nFirstId, int nLastId)
{
    if ((text.uFlags & TTF_IDISHWND) == 0)
        return 0;
    const int nId = ::GetDlgCtrlID(reinterpret_cast<HWND>(text.hdr.idFrom));
    return nId >= nFirstId && nId <= nLastId ? nId : 0;
}

void Write(TOOLTIPTEXTA& text, const CString& strTip)
{
    ::lstrcpynA(text.szText, strTip, kTipSize);
}

void Write(TOOLTIPTEXTW& text, const CString& strTip)
{
    const int nWritten = ::MultiByteToWideChar(CP_THREAD_ACP, 0, strTip, -1, text.szText, kTipSize);
    if (nWritten > 0)
        text.szText[nWritten - 1] = 0;
}

}

BOOL CCalendarWnd::OnToolTipNotify(UINT, NMHDR* pNMHDR, LRESULT* pResult)
{
    if (pResult)
        *pResult = 0;
    if (!pNMHDR)
        return FALSE;
    const auto answer = [this](auto& text) -> BOOL {
        const int nButton = GetStepButton(text, PrevYearButtonId, NextMonthButtonId);
        if (nButton == 0)
            return FALSE;
        Write(text, GetStepTip(nButton));
        return TRUE;
    };
    switch (pNMHDR->code) {
    case TTN_NEEDTEXTA:
        return answer(*reinterpret_cast<TOOLTIPTEXTA*>(pNMHDR));
    case TTN_NEEDTEXTW:
        return answer(*reinterpret_cast<TOOLTIPTEXTW*>(pNMHDR));
    default:
        return FALSE;
    }
}

// The tips of the year buttons only add to the number of the year, so they may name a year beyond the range
// of dates.
CString CCalendarWnd::GetStepTip(int nButtonId) const
{
    DateTime date = m_date;
    if (nButtonId == PrevMonthButtonId)
        date.AddMonths(-1);
    else if (nButtonId == NextMonthButtonId)
        date.AddMonths(1);
    if (!date.IsValid()) // there is no date, or the month lies beyond the range of dates
        return StringUtils::DecryptText(CalendarTexts::kNoDate);
    int nYear = 0, nMonth = 0, nDay = 0;
    date.GetDate(nYear, nMonth, nDay);
    if (nButtonId == PrevYearButtonId)
        --nYear;
    else if (nButtonId == NextYearButtonId)
        ++nYear;
    return StringUtils::DecryptText(CalendarTexts::kTipPrefix) + LocaleUtils::GetMonthName(nMonth, false) +
           ", " + NumberTextConv::NumberToString(nYear, false, 0, "");
}
