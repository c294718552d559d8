// Timers of windows and of the program.
#include "timer.h"

#include "application.h"
#include "message_queue.h"

#include <QTimer>

#include <algorithm>
#include <memory>

namespace winapi {

namespace {

constexpr UINT kShortest = 10; // milliseconds

struct Timer
{
    HWND window;
    UINT_PTR id;
    TIMERPROC procedure;
    bool due = false;
    QTimer clock;
};
using TimerList = std::vector<std::unique_ptr<Timer>>;

TimerList& timers()
{
    static TimerList& list = *new TimerList; // never destroyed: by then the Qt application may be gone
    return list;
}

TimerList::iterator findTimer(HWND window, UINT_PTR id)
{
    return std::find_if(timers().begin(), timers().end(),
                        [&](const auto& timer) { return timer->window == window && timer->id == id; });
}

UINT_PTR freeId()
{
    static UINT_PTR last = 0x7000;
    return ++last;
}

Timer& timerFor(HWND window, UINT_PTR id)
{
    const auto found = findTimer(window, id);
    if (found != timers().end())
        return **found;
    auto& added = *timers().emplace_back(std::make_unique<Timer>());
    added.window = window;
    added.id = id;
    QObject::connect(&added.clock, &QTimer::timeout, &added.clock, [&added] {
        added.due = true;
        wakeQueue();
    });
    return added;
}

}

std::optional<MSG> takeDueTimer(HWND window)
{
    const auto due = std::find_if(timers().begin(), timers().end(), [&](const auto& timer) {
        return timer->due && (!window || timer->window == window || IsChild(window, timer->window));
    });
    if (due == timers().end())
        return std::nullopt;
    (*due)->due = false;
    return makeMessage((*due)->window, WM_TIMER, (*due)->id, reinterpret_cast<LPARAM>((*due)->procedure));
}

void killTimersOf(const Window& window)
{
    std::erase_if(timers(), [&](const auto& timer) { return timer->window == window.handle; });
}

}

using namespace winapi;

UINT_PTR SetTimer(HWND window, UINT_PTR id, UINT milliseconds, TIMERPROC proc)
{
    if (window && !findWindow(window))
        return 0;
    application();
    if (!window && findTimer(nullptr, id) == timers().end())
        id = freeId();
    Timer& timer = timerFor(window, id);
    timer.procedure = proc;
    timer.due = false;
    timer.clock.start(static_cast<int>(std::clamp<UINT>(milliseconds, kShortest, 0x7fffffff)));
    // A window may number its timer 0, but 0 as an answer means failure.
    return id ? id : 1;
}

BOOL KillTimer(HWND window, UINT_PTR id)
{
    const auto found = findTimer(window, id);
    if (found == timers().end())
        return FALSE;
    timers().erase(found);
    return TRUE;
}
