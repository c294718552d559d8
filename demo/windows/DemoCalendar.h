// The calendar as this host uses it: a colour for each group, and the settings at the panel's hand.
#pragma once

#include <CalendarWnd.h>

class DemoCalendar : public CCalendarWnd
{
public:
    // Gives each group a colour of its own, until the user's data file says otherwise.
    DemoCalendar();

    CalendarSettings& Settings() { return m_settings; }

    // Shows what was changed in the settings, without reading the file again.
    void RefreshSpecialDates();
};
