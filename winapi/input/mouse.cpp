#include "mouse.h"

#include "application.h"
#include "focus.h"
#include "host_widget.h"
#include "keyboard.h"
#include "message_queue.h"
#include "window_tree.h"

#include <QCursor>
#include <QTimer>

#include <memory>

namespace winapi {

namespace {

constexpr int defaultHoverTime = 400;
constexpr int hoverRange = 2; // pixels to each side

// What TrackMouseEvent asked for.
struct Tracking
{
    HWND window = nullptr;
    DWORD flags = 0;
    DWORD hoverTime = defaultHoverTime;
    QPoint hoverStart;
    std::unique_ptr<QTimer> hoverTimer;
};

struct MouseState
{
    HWND under = nullptr; // the window that the last message went to
    QPoint screen;
    Tracking tracking;
};

MouseState& state()
{
    static MouseState mouse;
    return mouse;
}

LPARAM clientPoint(const Window& window, QPoint screen)
{
    return toLParam(screen - screenOrigin(window));
}

void endTracking(DWORD flags)
{
    Tracking& tracking = state().tracking;
    tracking.flags &= ~flags;
    if (!(tracking.flags & TME_HOVER))
        tracking.hoverTimer.reset();
    if (!tracking.flags)
        tracking.window = nullptr;
}

void tellLeave()
{
    const Tracking& tracking = state().tracking;
    const HWND window = tracking.window;
    const bool wanted = tracking.flags & TME_LEAVE;
    endTracking(TME_LEAVE | TME_HOVER);
    if (wanted && IsWindow(window))
        PostMessageA(window, WM_MOUSELEAVE, 0, 0);
}

void tellHover()
{
    const WindowPtr window = findWindow(state().tracking.window);
    endTracking(TME_HOVER);
    if (window)
        PostMessageA(window->handle, WM_MOUSEHOVER, mouseKeys(), clientPoint(*window, state().screen));
}

void startHover()
{
    Tracking& tracking = state().tracking;
    tracking.hoverStart = state().screen;
    application();
    tracking.hoverTimer = std::make_unique<QTimer>();
    tracking.hoverTimer->setSingleShot(true);
    QObject::connect(tracking.hoverTimer.get(), &QTimer::timeout, tellHover);
    tracking.hoverTimer->start(static_cast<int>(tracking.hoverTime));
}

void trackMove(HWND under, QPoint screen)
{
    MouseState& mouse = state();
    mouse.under = under;
    mouse.screen = screen;
    Tracking& tracking = mouse.tracking;
    if (!tracking.window)
        return;
    if (tracking.window != under)
        tellLeave();
    else if ((tracking.flags & TME_HOVER) &&
             (screen - tracking.hoverStart).manhattanLength() > 2 * hoverRange)
        startHover();
}

bool isWheel(UINT message)
{
    return message == WM_MOUSEWHEEL || message == WM_MOUSEHWHEEL;
}

bool isPress(UINT message)
{
    return message == WM_LBUTTONDOWN || message == WM_RBUTTONDOWN || message == WM_MBUTTONDOWN;
}

int keyOfButton(UINT message)
{
    switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
        return VK_LBUTTON;
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:
        return VK_RBUTTON;
    case WM_MBUTTONDOWN:
    case WM_MBUTTONUP:
        return VK_MBUTTON;
    default:
        return 0;
    }
}

void tellAncestorsOfPress(Window& window, UINT message, QPoint screen)
{
    for (Window* w = &window; w->is(WS_CHILD) && !(w->exStyle & WS_EX_NOPARENTNOTIFY);) {
        const WindowPtr parent = findWindow(w->parent->handle);
        SendMessageA(parent->handle, WM_PARENTNOTIFY, message, clientPoint(*parent, screen));
        if (!isAlive(window) || !isAlive(*parent))
            return;
        w = parent.get();
    }
}

// False when the press is eaten.
bool activateByPress(Window& window, UINT message, QPoint screen)
{
    tellAncestorsOfPress(window, message, screen);
    if (!isAlive(window) || window.handle == GetActiveWindow())
        return isAlive(window);
    const HWND root = rootOf(window).handle;
    const auto answer = SendMessageA(window.handle, WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(root),
                                     MAKELPARAM(HTCLIENT, message));
    const WindowPtr top = findWindow(root);
    if (top && (answer == MA_ACTIVATE || answer == MA_ACTIVATEANDEAT || answer == 0))
        activate(top.get(), ActivatedBy::Mouse);
    return isAlive(window) && answer != MA_ACTIVATEANDEAT && answer != MA_NOACTIVATEANDEAT;
}

UINT messageFor(const MouseInput& input, const Window& window)
{
    const bool twice = input.doubleClick && (window.windowClass->info.style & CS_DBLCLKS);
    return twice ? input.message + (WM_LBUTTONDBLCLK - WM_LBUTTONDOWN) : input.message;
}

std::optional<MSG> captured(const MouseInput& input)
{
    const WindowPtr window = findWindow(GetCapture());
    if (!window)
        return std::nullopt;
    if (isWheel(input.message))
        return makeMessage(window->handle, input.message, MAKEWPARAM(mouseKeys(), input.wheelDelta),
                           toLParam(input.screen));
    return makeMessage(window->handle, messageFor(input, *window), mouseKeys(),
                       clientPoint(*window, input.screen));
}

}

WPARAM mouseKeys()
{
    constexpr struct
    {
        int key;
        WPARAM bit;
    } bits[] = {{VK_LBUTTON, MK_LBUTTON},
                {VK_RBUTTON, MK_RBUTTON},
                {VK_MBUTTON, MK_MBUTTON},
                {VK_SHIFT, MK_SHIFT},
                {VK_CONTROL, MK_CONTROL}};
    WPARAM keys = 0;
    for (const auto& [key, bit] : bits)
        keys |= isDown(key) ? bit : 0;
    return keys;
}

std::optional<MSG> toMessage(const MouseInput& input)
{
    noteModifiers(input.modifiers);
    if (const int key = keyOfButton(input.message))
        noteKeyOfMessage(key, isPress(input.message));
    if (GetCapture()) {
        state().screen = input.screen;
        return captured(input);
    }
    const WindowPtr under = hitTest(input.screen);
    trackMove(under ? under->handle : nullptr, input.screen);
    if (!under || !rootOf(*under).isEnabled())
        return std::nullopt;
    if (isPress(input.message) && !activateByPress(*under, input.message, input.screen))
        return std::nullopt;

    const UINT message = messageFor(input, *under);
    SendMessageA(under->handle, WM_SETCURSOR, reinterpret_cast<WPARAM>(under->handle),
                 MAKELPARAM(HTCLIENT, message));
    if (!isAlive(*under))
        return std::nullopt;
    // The wheel as well: the focus plays no part in it.
    if (isWheel(input.message))
        return makeMessage(under->handle, message, MAKEWPARAM(mouseKeys(), input.wheelDelta),
                           toLParam(input.screen));
    return makeMessage(under->handle, message, mouseKeys(), clientPoint(*under, input.screen));
}

// Unless it is in another top-level window already.
void mouseLeft(const Window& root)
{
    const WindowPtr under = state().under ? findWindow(state().under) : nullptr;
    if (!under || &rootOf(*under) != &root)
        return;
    state().under = nullptr;
    tellLeave();
}

void forgetMouse(const Window& window)
{
    if (state().under == window.handle)
        state().under = nullptr;
    if (state().tracking.window == window.handle)
        endTracking(TME_LEAVE | TME_HOVER);
}

}

using namespace winapi;

BOOL TrackMouseEvent(LPTRACKMOUSEEVENT request)
{
    if (!request || request->cbSize != sizeof *request)
        return FALSE;
    Tracking& tracking = state().tracking;
    if (request->dwFlags & TME_QUERY) {
        *request = {sizeof *request, tracking.flags, tracking.window, tracking.hoverTime};
        return TRUE;
    }
    if (!findWindow(request->hwndTrack))
        return FALSE;
    if (request->dwFlags & TME_CANCEL) {
        if (tracking.window == request->hwndTrack)
            endTracking(request->dwFlags & (TME_HOVER | TME_LEAVE));
        return TRUE;
    }
    tracking.window = request->hwndTrack;
    tracking.flags |= request->dwFlags & (TME_HOVER | TME_LEAVE);
    if (request->dwFlags & TME_HOVER) {
        const DWORD time = request->dwHoverTime;
        tracking.hoverTime = time == HOVER_DEFAULT || time == 0 ? defaultHoverTime : time;
        startHover();
    }
    // The pointer may be elsewhere already.
    if (state().under != tracking.window)
        tellLeave();
    return TRUE;
}

UINT GetDoubleClickTime()
{
    application();
    return static_cast<UINT>(QApplication::doubleClickInterval());
}

namespace {

struct CursorShape
{
    WORD id;
    Qt::CursorShape shape;
};
constexpr CursorShape cursorShapes[] = {
    {32512, Qt::ArrowCursor},     {32513, Qt::IBeamCursor},        {32514, Qt::WaitCursor},
    {32515, Qt::CrossCursor},     {32642, Qt::SizeFDiagCursor},    {32643, Qt::SizeBDiagCursor},
    {32644, Qt::SizeHorCursor},   {32645, Qt::SizeVerCursor},      {32646, Qt::SizeAllCursor},
    {32648, Qt::ForbiddenCursor}, {32649, Qt::PointingHandCursor},
};

HCURSOR& currentCursor()
{
    static HCURSOR cursor = LoadCursorA(nullptr, IDC_ARROW);
    return cursor;
}

// A cursor's handle is its place in the table, counted from 1.
Qt::CursorShape shapeOf(HCURSOR cursor)
{
    const auto index = reinterpret_cast<ULONG_PTR>(cursor);
    return index == 0 ? Qt::BlankCursor : cursorShapes[index - 1].shape;
}

}

HCURSOR LoadCursorA(HINSTANCE, LPCSTR name)
{
    for (std::size_t i = 0; i < std::size(cursorShapes); ++i) {
        if (name == MAKEINTRESOURCEA(cursorShapes[i].id))
            return reinterpret_cast<HCURSOR>(i + 1);
    }
    return nullptr;
}

HCURSOR SetCursor(HCURSOR cursor)
{
    if (reinterpret_cast<ULONG_PTR>(cursor) > std::size(cursorShapes))
        return currentCursor();
    const HCURSOR old = std::exchange(currentCursor(), cursor);
    const WindowPtr under = state().under ? findWindow(state().under) : nullptr;
    if (under && rootOf(*under).host)
        rootOf(*under).host->setCursor(shapeOf(cursor));
    return old;
}

HCURSOR GetCursor()
{
    return currentCursor();
}

BOOL GetCursorPos(LPPOINT point)
{
    if (!point)
        return FALSE;
    application();
    const QPoint place = QCursor::pos();
    *point = {place.x(), place.y()};
    return TRUE;
}

BOOL SetCursorPos(int x, int y)
{
    application();
    QCursor::setPos(x, y);
    return TRUE;
}
