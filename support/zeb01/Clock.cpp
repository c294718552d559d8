// The moment that a test has fixed, or the local time of the system.
#include "Clock.h"

#include <windows.h>

#include <optional>

namespace {

std::optional<Clock::Moment> g_fixedMoment;

}

Clock::Moment Clock::Now()
{
    if (g_fixedMoment)
        return *g_fixedMoment;
    SYSTEMTIME time;
    GetLocalTime(&time);
    return {time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond};
}

void Clock::SetFixed(const Moment& moment)
{
    g_fixedMoment = moment;
}

void Clock::SetToday(int nYear, int nMonth, int nDay)
{
    SetFixed({nYear, nMonth, nDay, 12, 0, 0});
}

void Clock::Release()
{
    g_fixedMoment.reset();
}
