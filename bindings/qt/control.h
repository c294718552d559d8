// The calendar control as the widget uses it.
#pragma once

#include "Zeb17CalendarWidget.h"

#include <CalendarWnd.h>

class Q_DECL_HIDDEN Zeb17CalendarWidget::Control : public CCalendarWnd
{
public:
    explicit Control(Host& host) : m_host(host) {}
    ~Control() override { DestroyWindow(); }

    // Makes the control fill the client area of the window around it. False if that fails.
    bool createIn(CWnd& around, Options options);
    // Makes it anew, with the same date.
    bool createAgain(CWnd& around, Options options);
    // Shows the special dates of the settings, or none.
    void useSpecialDates(bool use);
    void setMenu(Options options);

    bool usesSpecialDates() const { return m_bUseSpecialDates; }
    DateTime selected() const { return m_bHaveDate ? m_date : DateTime(); }
    CalendarSettings& settings() { return m_settings; }

    void clear();
    void showPage(int year, int month);
    void showToday();
    void step(void (DateTime::*by)(int), int count) { StepDate(by, count); }
    // Shows what was changed in the settings.
    void refreshSpecialDates() { RefreshSpecialDays(); }
    void print() { OnOptionsPrint(); }
    // The buttons look as the state of the control says.
    void enableButtons(bool enable);
    void paintNow(); // what waits to be painted
    // Gives the keyboard to the first or the last stop of the control's round.
    void enter(bool atEnd);
    // Whether the user has pressed Tab, and the keyboard is on its way to the next stop or out of the
    // control.
    bool isTabUnderWay() const { return m_tabUnderWay; }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL PreTranslateMessage(MSG* message) override;

private:
    bool isOnDay(CPoint point) const;

    Host& m_host;
    bool m_tabUnderWay = false;
};
