// What the user waits for on Windows, beside the system's own month calendar: from the call to the end of the
// painting.
#include "BenchCalendar.h"

#include <afxcmn.h>
#include <commctrl.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace {

constexpr int kWarmUp = 20;
constexpr int kRounds = 400;

void Pump()
{
    MSG message;
    while (::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
        ::DispatchMessageA(&message);
}

// The median of so many rounds, each timed with the painting that follows, in microseconds.
template <class Work>
double Measure(Work work)
{
    using Clock = std::chrono::steady_clock;
    std::vector<double> times;
    for (int i = -kWarmUp; i < kRounds; ++i) {
        const auto start = Clock::now();
        work(i % 2 == 0);
        Pump();
        ::GdiFlush();
        if (i >= 0)
            times.push_back(std::chrono::duration<double, std::micro>(Clock::now() - start).count());
    }
    std::nth_element(times.begin(), times.begin() + kRounds / 2, times.end());
    return times[kRounds / 2];
}

// The system's calendar, in a window of its own.
HWND CreateTheirs()
{
    const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_DATE_CLASSES};
    ::InitCommonControlsEx(&classes);
    const HWND hWnd =
        ::CreateWindowExA(0, MONTHCAL_CLASSA, "", WS_POPUP | WS_VISIBLE, 320, 0, Bench::kWidth,
                          Bench::kHeight, nullptr, nullptr, ::GetModuleHandleA(nullptr), nullptr);
    SYSTEMTIME date{2026, 7, 0, 9, 0, 0, 0, 0};
    ::SendMessageA(hWnd, MCM_SETCURSEL, 0, reinterpret_cast<LPARAM>(&date));
    return hWnd;
}

void Press(HWND hWnd, WPARAM nKey)
{
    ::SendMessageA(hWnd, WM_KEYDOWN, nKey, 1);
    ::SendMessageA(hWnd, WM_KEYUP, nKey, 1);
}

void Print(const char* szWork, double dOurs, double dTheirs)
{
    std::printf("%-12s %10.1f us %10.1f us %8.3f\n", szWork, dOurs, dTheirs, dOurs / dTheirs);
}

}

int main()
{
    const Bench::Session session;
    Bench::Host host;
    Bench::Calendar& ours = host.m_calendar;
    const HWND hTheirs = CreateTheirs();
    Pump();
    std::printf("%-12s %13s %13s %8s\n", "", "ours", "the system's", "ratio");
    Print("month step", Measure([&](bool bForward) { ours.StepMonth(bForward); }),
          Measure([&](bool bForward) { Press(hTheirs, bForward ? VK_NEXT : VK_PRIOR); }));
    Print("day move", Measure([&](bool bForward) { Press(ours, bForward ? VK_RIGHT : VK_LEFT); }),
          Measure([&](bool bForward) { Press(hTheirs, bForward ? VK_RIGHT : VK_LEFT); }));
    ::DestroyWindow(hTheirs);
    return 0;
}
