// Prints one month on one page, as the window shows it but without special dates, today and selection.
#pragma once

#include <DateTime.h>
#include <UIPrinter.h>

class CCalendarWndPrinter : public UIPrinter
{
public:
    // The month is that of the date. Without a valid date the grid has no text.
    explicit CCalendarWndPrinter(const DateTime& date);
    ~CCalendarWndPrinter() override;

protected:
    void PrintPageContent(COLORREF crText) override;
    void GetPageTexts(CString& strLeft, CString& strCenter, CString& strRight) override;

    DateTime m_date;

private:
    void PrintMonth(CDC& dc, CRect rect, COLORREF crText) const;
};
