// The command that prints the month shown.
#include "CalendarWnd.h"

#include "CalendarWndPrinter.h"

#include <CalendarTexts.h>
#include <LocaleUtils.h>
#include <LogLine.h>
#include <PrintInfo.h>
#include <StringUtils.h>

namespace {

constexpr int kMargin = 500; // half an inch, in thousandths

}

void CCalendarWnd::OnOptionsPrint()
{
    int nYear = 0;
    int nMonth = 0;
    int nDay = 0;
    m_date.GetDate(nYear, nMonth, nDay);
    CString strTitle;
    strTitle.Format("%s %d", LocaleUtils::GetMonthName(nMonth, false).GetString(), nYear);

    PrintInfo info;
    info.SetPageTitleText(m_date.IsValid() ? strTitle : StringUtils::DecryptText(CalendarTexts::kNoDate));
    info.m_bPrintFlag = false;
    info.m_rcPageMargins.SetRect(kMargin, kMargin, kMargin, kMargin);
    info.m_pCtrlWnd = this;

    CCalendarWndPrinter printer(m_date);
    printer.Print(&info);

    if (!info.GetErrorMsg().IsEmpty())
        LogLine("{78FAA3F2-6C47-4BBA-853B-740B92F8688A}" + info.GetErrorMsg());
}
