// The time of day, the time since some start, waiting, and the ids of the process and its threads.
#include "clock.h"

#include "winbase.h"

#include <unistd.h>

#include <chrono>
#include <ctime>
#include <thread>

void GetLocalTime(LPSYSTEMTIME time)
{
    using namespace std::chrono;
    const auto now = system_clock::now();
    const std::time_t seconds = system_clock::to_time_t(now);
    std::tm local{};
    localtime_r(&seconds, &local);
    const auto millis = duration_cast<milliseconds>(now.time_since_epoch()).count() % 1000;
    *time = {static_cast<WORD>(local.tm_year + 1900), static_cast<WORD>(local.tm_mon + 1),
             static_cast<WORD>(local.tm_wday),        static_cast<WORD>(local.tm_mday),
             static_cast<WORD>(local.tm_hour),        static_cast<WORD>(local.tm_min),
             static_cast<WORD>(local.tm_sec),         static_cast<WORD>(millis)};
}

DWORD winapi::tickCount()
{
    using namespace std::chrono;
    return static_cast<DWORD>(duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
}

void Sleep(DWORD milliseconds)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

DWORD GetCurrentProcessId()
{
    return static_cast<DWORD>(::getpid());
}

DWORD GetCurrentThreadId()
{
    return static_cast<DWORD>(::gettid());
}
