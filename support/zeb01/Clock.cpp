#include "Clock.h"

#include <windows.h>

#include <optional>

namespace {

std::optional<Clock::Moment> fixedMoment;

}

Clock::Moment Clock::Now()
{
    if (fixedMoment)
        return *fixedMoment;
    SYSTEMTIME time;
    GetLocalTime(&time);
    return {time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond};
}

void Clock::SetFixed(const Moment& moment)
{
    fixedMoment = moment;
}

void Clock::SetToday(int nYear, int nMonth, int nDay)
{
    SetFixed({nYear, nMonth, nDay, 12, 0, 0});
}

void Clock::Release()
{
    fixedMoment.reset();
}
