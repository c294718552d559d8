// Where the library gets the present moment from.
#pragma once

#include <zeb17_export.h>

class ZEB17_EXPORT Clock
{
public:
    // A moment in local time.
    struct Moment
    {
        int nYear;   // 1 to 9999
        int nMonth;  // 1 to 12
        int nDay;    // 1 to 31
        int nHour;   // 0 to 23
        int nMinute; // 0 to 59
        int nSecond; // 0 to 59
    };

    // The fixed moment if one is set, else the local time of the system.
    static Moment Now();

    // Stops the clock of the process at that moment, so that tests and pictures come out the same every day.
    // To be called on the thread that uses the library, since nothing guards the clock.
    static void SetFixed(const Moment& moment);
    // The same, at noon of the given day.
    static void SetToday(int nYear, int nMonth, int nDay);
    // Follows the system's time again.
    static void Release();
};
