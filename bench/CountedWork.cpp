// Does a fixed number of one piece of work, so that callgrind can count its instructions:
//
//     valgrind --tool=callgrind --instr-atstart=no counted_work paint|month|resize|lookups COUNT
//
// What is done before, for the caches to fill, is not counted.
#include "BenchCalendar.h"

#include <valgrind/callgrind.h>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>

namespace {

constexpr int kWarmUp = 3;

// Handles what waits, paints included.
void Pump()
{
    MSG message;
    while (::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
        ::DispatchMessageA(&message);
}

void LookUpMonth(const CalendarSettings& settings)
{
    DateTime date(2026, 3, 29, 0, 0, 0);
    for (int nCell = 0; nCell < 42; ++nCell, date.AddDays(1)) {
        int nYear = 0, nMonth = 0, nDay = 0;
        date.GetDate(nYear, nMonth, nDay);
        DWORD dwColor = 0xFFFFFF;
        settings.GetDateDesc(nDay, nMonth, nYear, dwColor);
    }
}

}

int main(int argc, char** argv)
{
    const Bench::Session session;
    Bench::Host host;
    Pump();
    bool bForward = false;
    const std::map<std::string, std::function<void()>> works = {
        {"paint", [&] { host.m_calendar.PaintGrid(); }},
        {"month", // forwards and back, so that each count of steps goes through the same two months
         [&] {
             host.m_calendar.StepMonth(bForward = !bForward);
             Pump();
         }},
        {"resize",
         [&] {
             bForward = !bForward;
             host.MoveWindow(0, 0, Bench::kWidth + (bForward ? 20 : 0), Bench::kHeight + (bForward ? 15 : 0));
             Pump();
         }},
        {"lookups", [&] { LookUpMonth(host.m_calendar.GetSettings()); }},
    };
    const auto work = argc == 3 ? works.find(argv[1]) : works.end();
    if (work == works.end()) {
        std::fprintf(stderr, "usage: counted_work paint|month|resize|lookups COUNT\n");
        return 2;
    }
    for (int i = 0; i < 2 * kWarmUp; ++i)
        work->second();
    CALLGRIND_START_INSTRUMENTATION;
    for (int i = 0; i < std::atoi(argv[2]); ++i)
        work->second();
    CALLGRIND_STOP_INSTRUMENTATION;
    return 0;
}
