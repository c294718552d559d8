// The mouse: which window gets its messages, which is told when the pointer leaves it, and the cursor.
#include "mouse.h"

#include "application.h"
#include "focus.h"
#include "host_widget.h"
#include "keyboard.h"
#include "message_queue.h"
#include "window_tree.h"

#include <QCursor>

#include <algorithm>

namespace winapi {

namespace {

struct MouseState
{
    HWND under = nullptr;   // the window that the pointer was on at the last message
    HWND tracked = nullptr; // is to hear when the pointer leaves it (TrackMouseEvent)
};

MouseState& state()
{
    static auto& mouse = *new MouseState;
    return mouse;
}

LPARAM clientPoint(const Window& window, QPoint screen)
{
    return toLParam(screen - screenOrigin(window));
}

void tellLeave()
{
    const HWND window = std::exchange(state().tracked, nullptr);
    if (window && IsWindow(window))
        PostMessageA(window, WM_MOUSELEAVE, 0, 0);
}

void trackMove(HWND under)
{
    state().under = under;
    if (state().tracked != under)
        tellLeave();
}

bool isWheel(UINT message)
{
    return message == WM_MOUSEWHEEL || message == WM_MOUSEHWHEEL;
}

bool isPress(UINT message)
{
    return message == WM_LBUTTONDOWN || message == WM_RBUTTONDOWN || message == WM_MBUTTONDOWN;
}

struct ButtonMessage
{
    UINT message;
    int key;
};
constexpr ButtonMessage kButtonMessages[] = {
    {WM_LBUTTONDOWN, VK_LBUTTON}, {WM_LBUTTONUP, VK_LBUTTON},   {WM_RBUTTONDOWN, VK_RBUTTON},
    {WM_RBUTTONUP, VK_RBUTTON},   {WM_MBUTTONDOWN, VK_MBUTTON}, {WM_MBUTTONUP, VK_MBUTTON},
};

void noteButton(UINT message)
{
    for (const ButtonMessage& one : kButtonMessages) {
        if (one.message == message)
            noteKey(one.key, isPress(message));
    }
}

// False when the window is gone.
bool activateByPress(Window& window, UINT message, QPoint screen)
{
    notifyAncestors(window, message, [screen](const Window& parent) { return clientPoint(parent, screen); });
    if (!isAlive(window) || window.handle == GetActiveWindow())
        return isAlive(window);
    const HWND root = rootOf(window).handle;
    const auto answer = SendMessageA(window.handle, WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(root),
                                     MAKELPARAM(HTCLIENT, message));
    const WindowPtr top = findWindow(root);
    if (top && (answer == MA_ACTIVATE || answer == 0))
        activate(top.get(), ActivatedBy::Mouse);
    return isAlive(window);
}

UINT messageFor(const MouseInput& input, const Window& window)
{
    const bool twice = input.doubleClick && (window.windowClass->info.style & CS_DBLCLKS);
    return twice ? input.message + (WM_LBUTTONDBLCLK - WM_LBUTTONDOWN) : input.message;
}

MSG messageTo(const Window& window, const MouseInput& input)
{
    if (isWheel(input.message))
        return makeMessage(window.handle, input.message, MAKEWPARAM(mouseKeys(), input.wheelDelta),
                           toLParam(input.screen));
    return makeMessage(window.handle, messageFor(input, window), mouseKeys(),
                       clientPoint(window, input.screen));
}

}

WPARAM mouseKeys()
{
    constexpr struct
    {
        int key;
        WPARAM bit;
    } kBits[] = {{VK_LBUTTON, MK_LBUTTON},
                 {VK_RBUTTON, MK_RBUTTON},
                 {VK_MBUTTON, MK_MBUTTON},
                 {VK_SHIFT, MK_SHIFT},
                 {VK_CONTROL, MK_CONTROL}};
    WPARAM keys = 0;
    for (const auto& [key, bit] : kBits)
        keys |= isDown(key) ? bit : 0;
    return keys;
}

// The focus plays no part in it, not even for the wheel: its message goes to the window under the pointer.
std::optional<MSG> toMessage(const MouseInput& input)
{
    noteModifiers(input.modifiers);
    noteButton(input.message);
    if (const HWND holder = captureHolder()) {
        const WindowPtr window = findWindow(holder);
        return window ? std::optional(messageTo(*window, input)) : std::nullopt;
    }
    const WindowPtr under = hitTest(input.screen);
    trackMove(under ? under->handle : nullptr);
    if (!under || !rootOf(*under).isEnabled())
        return std::nullopt;
    if (isPress(input.message) && !activateByPress(*under, input.message, input.screen))
        return std::nullopt;
    SendMessageA(under->handle, WM_SETCURSOR, reinterpret_cast<WPARAM>(under->handle),
                 MAKELPARAM(HTCLIENT, messageFor(input, *under)));
    return isAlive(*under) ? std::optional(messageTo(*under, input)) : std::nullopt;
}

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
    if (state().tracked == window.handle)
        state().tracked = nullptr;
}

}

using namespace winapi;

BOOL TrackMouseEvent(LPTRACKMOUSEEVENT request)
{
    if (!request || request->cbSize != sizeof *request || request->dwFlags != TME_LEAVE) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    if (!findWindow(request->hwndTrack))
        return FALSE;
    state().tracked = request->hwndTrack;
    // The pointer may be elsewhere already.
    if (state().under != state().tracked)
        tellLeave();
    return TRUE;
}

namespace {

struct CursorShape
{
    LPCSTR name;
    Qt::CursorShape shape;
};

// A cursor's handle is its place among these, counted from 1.
const std::vector<CursorShape>& cursorShapes()
{
    static const std::vector<CursorShape> shapes = {{IDC_ARROW, Qt::ArrowCursor},
                                                    {IDC_IBEAM, Qt::IBeamCursor}};
    return shapes;
}

HCURSOR& currentCursor()
{
    static HCURSOR cursor = LoadCursorA(nullptr, IDC_ARROW);
    return cursor;
}

Qt::CursorShape shapeOf(HCURSOR cursor)
{
    const auto index = reinterpret_cast<ULONG_PTR>(cursor);
    return index == 0 ? Qt::BlankCursor : cursorShapes()[index - 1].shape;
}

}

HCURSOR LoadCursorA(HINSTANCE, LPCSTR name)
{
    const auto& shapes = cursorShapes();
    const auto found = std::find_if(shapes.begin(), shapes.end(),
                                    [name](const CursorShape& one) { return one.name == name; });
    return found == shapes.end() ? nullptr : reinterpret_cast<HCURSOR>(found - shapes.begin() + 1);
}

HCURSOR SetCursor(HCURSOR cursor)
{
    if (reinterpret_cast<ULONG_PTR>(cursor) > cursorShapes().size())
        return currentCursor();
    const HCURSOR old = std::exchange(currentCursor(), cursor);
    const WindowPtr under = state().under ? findWindow(state().under) : nullptr;
    if (under && rootOf(*under).host)
        rootOf(*under).host->setCursor(shapeOf(cursor));
    return old;
}

BOOL SetCursorPos(int x, int y)
{
    application();
    QCursor::setPos(x, y);
    return TRUE;
}
