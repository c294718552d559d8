// The windows there are, by their handles.
#include "window.h"

#include "handle_table.h"
#include "host_widget.h"
#include "window_surface.h"
#include "window_tree.h"

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
    // Never destroyed: a program may leave windows behind, and by then the Qt application, which their
    // widgets need, is gone.
    static auto& table = *new HandleTable<HWND, Window>;
    return table;
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
    window->handle = windows().add(window);
    return window;
}

void removeWindow(const Window& window)
{
    windows().remove(window.handle);
}

bool isAlive(const Window& window)
{
    return windows().find(window.handle) != nullptr;
}

LRESULT callProcedure(Window& window, UINT message, WPARAM wParam, LPARAM lParam)
{
    return window.procedure(window.handle, message, wParam, lParam);
}

}

using namespace winapi;

BOOL IsWindow(HWND window)
{
    return window && findWindow(window) != nullptr;
}

DWORD GetWindowThreadProcessId(HWND window, LPDWORD process)
{
    if (!findWindow(window))
        return 0;
    if (process)
        *process = GetCurrentProcessId();
    return GetCurrentThreadId();
}
