#pragma once

#include "CalendarWnd.h"

#include <WndWatch.h>

// An operation of the user or the host, for as long as it lasts. What it changed is told to screen readers
// once: when the parent has heard, the title is set, and the operation inside of which this one runs has
// ended too.
class CCalendarWnd::Change
{
public:
    explicit Change(CCalendarWnd& wnd);
    ~Change();
    Change(const Change&) = delete;
    Change& operator=(const Change&) = delete;

private:
    CCalendarWnd& m_wnd;
    const CWndWatch m_watch;
    const DayShown m_before;
};
