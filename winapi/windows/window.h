// What winapi knows of each window.
#pragma once

#include "winuser.h"

#include <QPoint>
#include <QPointer>
#include <QRect>
#include <QRegion>

#include <memory>
#include <string>
#include <vector>

namespace winapi {

class HostWidget;
class WindowSurface;

struct WindowClass
{
    WNDCLASSEXA info{};
    std::string name;
    ATOM atom = 0;
};
using WindowClassPtr = std::shared_ptr<const WindowClass>;

struct Window;

// What a control keeps with its window.
struct ControlState
{
    virtual ~ControlState() = default;
};

struct Window
{
    Window();
    ~Window();
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    HWND handle = nullptr;
    Window* parent = nullptr; // the desktop for a top-level window
    HWND owner = nullptr;
    std::vector<Window*> children; // the topmost first

    WindowClassPtr windowClass;
    WNDPROC procedure = nullptr;
    DWORD style = 0;
    DWORD exStyle = 0;
    LONG_PTR id = 0;
    std::string text;
    std::unique_ptr<ControlState> control;

    QRect rect;               // in the parent's client area, or on the screen
    bool sizeIsNews = false;  // the window is told its size when it is first shown
    bool ending = false;      // DestroyWindow is at work on it
    bool dying = false;       // DestroyWindow is at work on it
    QRegion update;           // what waits to be painted, in client coordinates
    bool eraseUpdate = false; // and is to be erased before

    std::unique_ptr<WindowSurface> surface; // of a top-level window, once it is drawn on
    QPointer<HostWidget> host;              // of a top-level window, once it is shown
    HWND lastFocus = nullptr;               // the child that had the focus when the widget lost it

    bool isTopLevel() const;
    bool isVisible() const; // with all its ancestors
    bool isEnabled() const { return !(style & WS_DISABLED); }
    bool is(DWORD bits) const { return (style & bits) == bits; }
    QRect clientRect() const { return {QPoint(0, 0), rect.size()}; }
};
using WindowPtr = std::shared_ptr<Window>;

// Null, and the last error set, when there is no such window. A message may destroy the window, so a caller
// that sends one holds the pointer and asks isAlive afterwards.
WindowPtr findWindow(HWND handle);
WindowPtr addWindow();
void removeWindow(const Window& window);
bool isAlive(const Window& window);
// The same for any thread.
bool existsForAnyThread(HWND handle);

// While one of these lives, windows that end keep their memory. Each call that sends messages makes one:
// whatever the handlers destroy, the call may still look at its windows, and isAlive tells what became of
// them.
class EndedWindowsKept
{
public:
    EndedWindowsKept();
    ~EndedWindowsKept();
    EndedWindowsKept(const EndedWindowsKept&) = delete;
    EndedWindowsKept& operator=(const EndedWindowsKept&) = delete;

    // Whether a call that sends messages is under way.
    static bool any();
};

LRESULT callProcedure(Window& window, UINT message, WPARAM wParam, LPARAM lParam);

inline LPARAM toLParam(QPoint point)
{
    return MAKELPARAM(point.x(), point.y());
}
inline LPARAM toLParam(QSize size)
{
    return MAKELPARAM(size.width(), size.height());
}

}
