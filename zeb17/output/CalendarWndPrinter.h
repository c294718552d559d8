// Prints one month on one page: the block of the window, without special dates, today and selection.
#pragma once

#include <DateTime.h>
#include <UIPrinter.h>

class CCalendarWndPrinter : public UIPrinter
{
public:
    // `date` gives the month; one that is invalid gives a grid without text.
    explicit CCalendarWndPrinter(const DateTime& date);
    ~CCalendarWndPrinter() override;

protected:
    void PrintPageContent(COLORREF crText) override;
    void GetPageTexts(CString& strLeft, CString& strCenter, CString& strRight) override;

    DateTime m_date;

private:
    void PrintMonth(CDC& dc, CRect rect, COLORREF crText) const;
};
