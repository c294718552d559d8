// The windows there are, by their handles.
#include "window.h"

#include "errors.h"
#include "handle_table.h"
#include "host_widget.h"
#include "window_surface.h"
#include "window_tree.h"

#include <atomic>
#include <mutex>

namespace winapi {

Window::Window() = default;
Window::~Window() = default;

bool Window::isTopLevel() const
{
    return parent == &desktop();
}

bool Window::isVisible() const
{
    const Window* window = this;
    while (window && window->is(WS_VISIBLE))
        window = window->parent;
    return !window;
}

namespace {

HandleTable<HWND, Window>& windows()
{
    static auto& table = *new HandleTable<HWND, Window>;
    return table;
}

// Held for changes of the table, and by other threads for looking into it.
std::mutex& tableMutex()
{
    static auto& mutex = *new std::mutex;
    return mutex;
}

// The thread that made the first window, and makes all others.
std::atomic<DWORD> threadOfWindows = 0;

struct Ended
{
    int calls = 0; // that are under way
    std::vector<WindowPtr> windows;
};

Ended& ended()
{
    static auto& kept = *new Ended;
    return kept;
}

}

WindowPtr findWindow(HWND handle)
{
    WindowPtr found = windows().find(handle);
    if (!found)
        SetLastError(ERROR_INVALID_WINDOW_HANDLE);
    return found;
}

WindowPtr addWindow()
{
    auto window = std::make_shared<Window>();
    if (threadOfWindows == 0)
        threadOfWindows = GetCurrentThreadId();
    const std::lock_guard lock(tableMutex());
    window->handle = windows().add(window);
    return window;
}

void removeWindow(const Window& window)
{
    WindowPtr removed;
    {
        const std::lock_guard lock(tableMutex());
        removed = windows().remove(window.handle);
    }
    if (ended().calls > 0)
        ended().windows.push_back(std::move(removed));
}

bool isAlive(const Window& window)
{
    return windows().find(window.handle) != nullptr;
}

bool existsForAnyThread(HWND handle)
{
    const std::lock_guard lock(tableMutex());
    return windows().contains(handle);
}

EndedWindowsKept::EndedWindowsKept()
{
    ++ended().calls;
}

EndedWindowsKept::~EndedWindowsKept()
{
    if (--ended().calls > 0)
        return;
    const std::vector<WindowPtr> gone = std::exchange(ended().windows, {});
}

bool EndedWindowsKept::any()
{
    return ended().calls > 0;
}

LRESULT callProcedure(Window& window, UINT message, WPARAM wParam, LPARAM lParam)
{
    return window.procedure(window.handle, message, wParam, lParam);
}

}

using namespace winapi;

BOOL IsWindow(HWND window)
{
    return window && (existsForAnyThread(window) || fail(ERROR_INVALID_WINDOW_HANDLE));
}

DWORD GetWindowThreadProcessId(HWND window, LPDWORD process)
{
    if (!IsWindow(window))
        return 0;
    if (process)
        *process = GetCurrentProcessId();
    return threadOfWindows;
}
