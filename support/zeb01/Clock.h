// Where the library gets the present moment from.
#pragma once

#include <zeb17_export.h>

class ZEB17_EXPORT Clock
{
public:
    struct Moment
    {
        int nYear;
        int nMonth;
        int nDay;
        int nHour;
        int nMinute;
        int nSecond;
    };

    // The fixed moment if one is set, else the local time of the system.
    static Moment Now();

    // Stops the clock of the process, for tests and pictures that must come out the same every day. Not
    // guarded: to be called on the thread that uses the library.
    static void SetFixed(const Moment& moment);
    // The same, at noon of the given day.
    static void SetToday(int nYear, int nMonth, int nDay);
    // Follows the system's time again.
    static void Release();
};
