// Size, position, visibility and coordinates.
#include "placement.h"

#include "focus.h"
#include "geometry.h"
#include "host_widget.h"
#include "update_region.h"
#include "window_tree.h"

namespace winapi {

namespace {

constexpr int kLeast = -0x8000;
constexpr int kMost = 0x7FFF;

}

QPoint placeWithin(int x, int y)
{
    return {std::clamp(x, kLeast, kMost), std::clamp(y, kLeast, kMost)};
}

QSize sizeWithin(int width, int height)
{
    return {std::clamp(width, 0, kMost), std::clamp(height, 0, kMost)};
}

}

using namespace winapi;

namespace {

QRect requestedRect(const Window& window, const WINDOWPOS& pos)
{
    QRect rect = window.rect;
    if (!(pos.flags & SWP_NOMOVE))
        rect.moveTopLeft(placeWithin(pos.x, pos.y));
    if (!(pos.flags & SWP_NOSIZE))
        rect.setSize(sizeWithin(pos.cx, pos.cy));
    return rect;
}

// Takes back each request that would change nothing.
void reduce(const Window& window, const QRect& rect, WINDOWPOS& pos)
{
    if (rect.topLeft() == window.rect.topLeft())
        pos.flags |= SWP_NOMOVE;
    if (rect.size() == window.rect.size())
        pos.flags |= SWP_NOSIZE;
    if (window.is(WS_VISIBLE))
        pos.flags &= ~SWP_SHOWWINDOW;
    else
        pos.flags &= ~SWP_HIDEWINDOW;
    if (window.parent->children.front() == &window)
        pos.flags |= SWP_NOZORDER;
}

bool changesNothing(const WINDOWPOS& pos)
{
    return (pos.flags & SWP_NOMOVE) && (pos.flags & SWP_NOSIZE) && (pos.flags & SWP_NOZORDER) &&
           !(pos.flags & (SWP_SHOWWINDOW | SWP_HIDEWINDOW));
}

bool redrawsWhole(const Window& window, const QSize& before)
{
    const UINT style = window.windowClass->info.style;
    return ((style & CS_HREDRAW) && before.width() != window.rect.width()) ||
           ((style & CS_VREDRAW) && before.height() != window.rect.height());
}

void apply(Window& window, const QRect& rect, const WINDOWPOS& pos)
{
    window.rect = rect;
    if (pos.flags & SWP_SHOWWINDOW)
        window.style |= WS_VISIBLE;
    if (pos.flags & SWP_HIDEWINDOW)
        window.style &= ~WS_VISIBLE;
    if (!(pos.flags & SWP_NOZORDER))
        raiseWindow(window);
}

void applyAndRepaint(Window& window, const QRect& rect, const WINDOWPOS& pos)
{
    const Exposure before = exposureOf(window);
    const QSize sizeBefore = window.rect.size();
    apply(window, rect, pos);
    if (window.isTopLevel())
        followWindow(window, !(pos.flags & SWP_NOACTIVATE));
    if (pos.flags & SWP_NOREDRAW)
        return;
    repaintAfterChange(window, before, !redrawsWhole(window, sizeBefore));
}

void sendCalcSize(Window& window, const QRect& rect, WINDOWPOS& pos)
{
    NCCALCSIZE_PARAMS params{};
    params.rgrc[0] = toRect(rect);
    params.rgrc[1] = params.rgrc[2] = toRect(window.rect);
    params.lppos = &pos;
    SendMessageA(window.handle, WM_NCCALCSIZE, TRUE, reinterpret_cast<LPARAM>(&params));
}

void activateAfterPlacing(Window& window, UINT flags)
{
    if (window.isTopLevel() && !(flags & (SWP_NOACTIVATE | SWP_HIDEWINDOW)))
        activate(&window, ActivatedBy::Program);
}

}

bool winapi::placeWindow(HWND handle, const QRect& requested, UINT flags)
{
    const EndedWindowsKept kept;
    const WindowPtr window = findWindow(handle);
    if (!window || !window->parent)
        return false;
    WINDOWPOS pos{handle, HWND_TOP, requested.x(), requested.y(), requested.width(), requested.height(),
                  flags};
    SendMessageA(handle, WM_WINDOWPOSCHANGING, 0, reinterpret_cast<LPARAM>(&pos));
    if (!isAlive(*window))
        return false;

    const QRect rect = requestedRect(*window, pos);
    reduce(*window, rect, pos);
    const bool nothing = changesNothing(pos);
    if (!nothing) {
        if (!(pos.flags & SWP_NOSIZE))
            sendCalcSize(*window, rect, pos);
        if (!isAlive(*window))
            return false;
        applyAndRepaint(*window, rect, pos);
    }
    if (isAlive(*window))
        activateAfterPlacing(*window, pos.flags);
    if (nothing || !isAlive(*window))
        return true;

    pos.x = window->rect.x();
    pos.y = window->rect.y();
    pos.cx = window->rect.width();
    pos.cy = window->rect.height();
    pos.flags |= (pos.flags & SWP_NOSIZE ? kNoClientSize : 0) | (pos.flags & SWP_NOMOVE ? kNoClientMove : 0);
    SendMessageA(handle, WM_WINDOWPOSCHANGED, 0, reinterpret_cast<LPARAM>(&pos));
    return true;
}

BOOL MoveWindow(HWND handle, int x, int y, int width, int height, BOOL repaint)
{
    return placeWindow(handle, {placeWithin(x, y), sizeWithin(width, height)},
                       SWP_NOZORDER | SWP_NOACTIVATE | (repaint ? 0 : SWP_NOREDRAW));
}

namespace {

UINT showFlags(const Window& window, int command)
{
    constexpr UINT kInPlace = SWP_NOSIZE | SWP_NOMOVE;
    constexpr UINT kQuiet = SWP_NOZORDER | SWP_NOACTIVATE;
    if (command == SW_HIDE)
        return SWP_HIDEWINDOW | kInPlace |
               (window.is(WS_CHILD) || GetActiveWindow() != window.handle ? kQuiet : 0);
    if (window.is(WS_CHILD) || command == SW_SHOWNA)
        return SWP_SHOWWINDOW | kInPlace | kQuiet;
    return SWP_SHOWWINDOW | kInPlace;
}

// While a window above a child is hidden, only the child's style changes.
void changeVisibility(Window& window, int command)
{
    if (window.is(WS_CHILD) && !window.parent->isVisible()) {
        window.style ^= WS_VISIBLE;
        return;
    }
    placeWindow(window.handle, {}, showFlags(window, command));
    if (command == SW_HIDE && isAlive(window))
        leaveHidden(window);
}

void tellSizeOnce(Window& window)
{
    if (std::exchange(window.sizeIsNews, false))
        tellSizeAndPlace(window);
}

}

void winapi::tellSizeAndPlace(Window& window)
{
    SendMessageA(window.handle, WM_SIZE, SIZE_RESTORED, toLParam(window.rect.size()));
    if (isAlive(window))
        SendMessageA(window.handle, WM_MOVE, 0, toLParam(window.rect.topLeft()));
}

BOOL ShowWindow(HWND handle, int command)
{
    const EndedWindowsKept kept;
    const WindowPtr window = findWindow(handle);
    if (!window || !window->parent)
        return FALSE;
    const bool wasVisible = window->is(WS_VISIBLE);
    const bool show = command != SW_HIDE;
    if (show == wasVisible) {
        if (show && window->isTopLevel() && command != SW_SHOWNA)
            activate(window.get(), ActivatedBy::Program);
        return wasVisible;
    }
    SendMessageA(handle, WM_SHOWWINDOW, show, 0);
    if (isAlive(*window))
        changeVisibility(*window, command);
    if (show && isAlive(*window))
        tellSizeOnce(*window);
    return wasVisible;
}

BOOL IsWindowVisible(HWND handle)
{
    const WindowPtr window = findWindow(handle);
    return window && window->isVisible();
}

BOOL GetClientRect(HWND handle, LPRECT rect)
{
    const WindowPtr window = findWindow(handle);
    if (!window || !rect)
        return FALSE;
    *rect = toRect(window->clientRect());
    return TRUE;
}

BOOL GetWindowRect(HWND handle, LPRECT rect)
{
    const WindowPtr window = findWindow(handle);
    if (!window || !rect)
        return FALSE;
    *rect = toRect(window->clientRect().translated(screenOrigin(*window)));
    return TRUE;
}

int MapWindowPoints(HWND from, HWND to, LPPOINT points, UINT count)
{
    const WindowPtr source = findWindow(from ? from : desktop().handle);
    const WindowPtr target = findWindow(to ? to : desktop().handle);
    if (!source || !target || !points)
        return 0;
    const QPoint offset = screenOrigin(*source) - screenOrigin(*target);
    for (UINT i = 0; i < count; ++i) {
        points[i].x += offset.x();
        points[i].y += offset.y();
    }
    return static_cast<int>(toLParam(offset));
}

BOOL ScreenToClient(HWND window, LPPOINT point)
{
    if (!findWindow(window) || !point)
        return FALSE;
    MapWindowPoints(nullptr, window, point, 1);
    return TRUE;
}

BOOL ClientToScreen(HWND window, LPPOINT point)
{
    if (!findWindow(window) || !point)
        return FALSE;
    MapWindowPoints(window, nullptr, point, 1);
    return TRUE;
}
