// Windows as the calls see them: the tree, and what each window holds.
#pragma once

#include "winuser.h"

#include <QPoint>
#include <QPointer>
#include <QRect>
#include <QRegion>
#include <QVariant>

#include <memory>
#include <string>
#include <vector>

class QInputMethodEvent;

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
    // Its window, or one above that, was moved, sized, shown or hidden.
    virtual void follow(Window&) {}
    // Text that an input method is making, shown but not typed yet; and what it asks of the text that it is
    // made for, with places in the widget of the top-level window. Nothing is made where it gets no answer.
    virtual void compose(Window&, QInputMethodEvent&) {}
    virtual QVariant answer(Qt::InputMethodQuery) const { return {}; }
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
    HINSTANCE instance = nullptr;
    LONG_PTR userData = 0;
    std::vector<std::byte> extra;
    std::string text;
    std::unique_ptr<ControlState> control;

    QRect rect;              // in the parent's client area, or on the screen
    bool sizeIsNews = false; // the first showing tells the window its size
    bool dying = false;
    QRegion update; // in client coordinates
    bool eraseUpdate = false;

    std::unique_ptr<WindowSurface> surface; // of a top-level window, once it is drawn on
    QPointer<HostWidget> host;              // of a top-level window, once it is shown
    HWND lastFocus = nullptr;               // of an embedded window: which child had the focus

    bool isTopLevel() const;
    bool isVisible() const; // with all its ancestors
    bool isEnabled() const { return !(style & WS_DISABLED); }
    bool is(DWORD bits) const { return (style & bits) == bits; }
    QRect clientRect() const { return {QPoint(0, 0), rect.size()}; }
};
using WindowPtr = std::shared_ptr<Window>;

// Null, and the last error set, when there is no such window. A caller that sends messages holds the pointer.
WindowPtr findWindow(HWND handle);
WindowPtr addWindow();
void removeWindow(const Window& window);
bool isAlive(const Window& window);

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
