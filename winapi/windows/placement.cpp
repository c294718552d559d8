// Size, position, visibility and coordinates.
#include "focus.h"
#include "geometry.h"
#include "host_widget.h"
#include "update_region.h"
#include "window_tree.h"

using namespace winapi;

namespace {

// Flags that only WM_WINDOWPOSCHANGED carries.
constexpr UINT noClientSize = 0x0800;
constexpr UINT noClientMove = 0x1000;

QRect requestedRect(const Window& window, const WINDOWPOS& pos)
{
    QRect rect = window.rect;
    if (!(pos.flags & SWP_NOMOVE))
        rect.moveTopLeft({pos.x, pos.y});
    if (!(pos.flags & SWP_NOSIZE))
        rect.setSize({std::max(pos.cx, 0), std::max(pos.cy, 0)});
    return rect;
}

bool standsAfter(const Window& window, HWND insertAfter)
{
    const auto& siblings = window.parent->children;
    if (insertAfter == HWND_BOTTOM)
        return siblings.back() == &window;
    if (insertAfter == HWND_TOP || insertAfter == HWND_TOPMOST || insertAfter == HWND_NOTOPMOST)
        return siblings.front() == &window;
    return insertAfter == window.handle || GetWindow(window.handle, GW_HWNDPREV) == insertAfter;
}

// Strikes out what would change nothing.
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
    if (standsAfter(window, pos.hwndInsertAfter))
        pos.flags |= SWP_NOZORDER;
}

bool changesNothing(const WINDOWPOS& pos)
{
    return (pos.flags & SWP_NOMOVE) && (pos.flags & SWP_NOSIZE) && (pos.flags & SWP_NOZORDER) &&
           !(pos.flags & (SWP_SHOWWINDOW | SWP_HIDEWINDOW | SWP_FRAMECHANGED));
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
    if (!(pos.flags & SWP_NOZORDER)) {
        Window& parent = *window.parent;
        unlinkWindow(window);
        linkWindow(window, parent, pos.hwndInsertAfter);
    }
}

// Brings the widgets of controls in line with the place and visibility of their windows.
void followControls(Window& window)
{
    if (window.control)
        window.control->follow(window);
    for (Window* const child : window.children)
        followControls(*child);
}

void applyAndRepaint(Window& window, const QRect& rect, const WINDOWPOS& pos)
{
    const Exposure before = exposureOf(window);
    const QSize sizeBefore = window.rect.size();
    apply(window, rect, pos);
    if (window.isTopLevel())
        followWindow(window, !(pos.flags & SWP_NOACTIVATE));
    followControls(window);
    if (pos.flags & SWP_NOREDRAW)
        return;
    const bool keep = !(pos.flags & SWP_NOCOPYBITS) && !redrawsWhole(window, sizeBefore);
    repaintAfterChange(window, before, keep);
    if (!(pos.flags & SWP_NOZORDER) && !window.isTopLevel())
        invalidate(window, window.clientRect(), true, Children::All);
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
    if (flags & (SWP_NOACTIVATE | SWP_HIDEWINDOW))
        return;
    if (window.is(WS_CHILD))
        SendMessageA(window.handle, WM_CHILDACTIVATE, 0, 0);
    else
        activate(&window, ActivatedBy::Program);
}

}

BOOL SetWindowPos(HWND handle, HWND insertAfter, int x, int y, int width, int height, UINT flags)
{
    const WindowPtr window = findWindow(handle);
    if (!window || !window->parent)
        return FALSE;
    WINDOWPOS pos{handle, insertAfter, x, y, width, height, flags};
    if (!(flags & SWP_NOSENDCHANGING))
        SendMessageA(handle, WM_WINDOWPOSCHANGING, 0, reinterpret_cast<LPARAM>(&pos));
    if (!isAlive(*window))
        return FALSE;

    const QRect rect = requestedRect(*window, pos);
    reduce(*window, rect, pos);
    const bool nothing = changesNothing(pos);
    if (!nothing) {
        if (!(pos.flags & SWP_NOSIZE) || (pos.flags & SWP_FRAMECHANGED))
            sendCalcSize(*window, rect, pos);
        if (!isAlive(*window))
            return FALSE;
        applyAndRepaint(*window, rect, pos);
    }
    activateAfterPlacing(*window, pos.flags);
    if (nothing || !isAlive(*window))
        return TRUE;

    pos.x = window->rect.x();
    pos.y = window->rect.y();
    pos.cx = window->rect.width();
    pos.cy = window->rect.height();
    pos.flags |= (pos.flags & SWP_NOSIZE ? noClientSize : 0) | (pos.flags & SWP_NOMOVE ? noClientMove : 0);
    SendMessageA(handle, WM_WINDOWPOSCHANGED, 0, reinterpret_cast<LPARAM>(&pos));
    return TRUE;
}

BOOL MoveWindow(HWND handle, int x, int y, int width, int height, BOOL repaint)
{
    return SetWindowPos(handle, nullptr, x, y, width, height,
                        SWP_NOZORDER | SWP_NOACTIVATE | (repaint ? 0 : SWP_NOREDRAW));
}

BOOL BringWindowToTop(HWND handle)
{
    return SetWindowPos(handle, HWND_TOP, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE);
}

namespace {

UINT showFlags(const Window& window, int command)
{
    constexpr UINT inPlace = SWP_NOSIZE | SWP_NOMOVE;
    constexpr UINT quiet = SWP_NOZORDER | SWP_NOACTIVATE;
    if (command == SW_HIDE)
        return SWP_HIDEWINDOW | inPlace |
               (window.is(WS_CHILD) || GetActiveWindow() != window.handle ? quiet : 0);
    if (window.is(WS_CHILD) || command == SW_SHOWNA || command == SW_SHOWNOACTIVATE)
        return SWP_SHOWWINDOW | inPlace | quiet;
    return SWP_SHOWWINDOW | inPlace;
}

void setState(Window& window, int command)
{
    window.style &= ~(WS_MINIMIZE | WS_MAXIMIZE);
    if (command == SW_SHOWMAXIMIZED)
        window.style |= WS_MAXIMIZE;
    if (command == SW_MINIMIZE || command == SW_SHOWMINIMIZED)
        window.style |= WS_MINIMIZE;
    followWindow(window, true);
}

bool keepsState(int command)
{
    return command == SW_HIDE || command == SW_SHOW || command == SW_SHOWNA;
}

// A child of something hidden is only marked.
void changeVisibility(Window& window, int command)
{
    if (window.is(WS_CHILD) && !window.parent->isVisible()) {
        window.style ^= WS_VISIBLE;
        return;
    }
    SetWindowPos(window.handle, HWND_TOP, 0, 0, 0, 0, showFlags(window, command));
    if (command == SW_HIDE && isAlive(window))
        leaveHidden(window);
}

void tellSizeOnce(Window& window)
{
    if (!std::exchange(window.sizeIsNews, false))
        return;
    SendMessageA(window.handle, WM_SIZE, SIZE_RESTORED, toLParam(window.rect.size()));
    if (isAlive(window))
        SendMessageA(window.handle, WM_MOVE, 0, toLParam(window.rect.topLeft()));
}

}

BOOL ShowWindow(HWND handle, int command)
{
    const WindowPtr window = findWindow(handle);
    if (!window || !window->parent)
        return FALSE;
    const bool wasVisible = window->is(WS_VISIBLE);
    const bool show = command != SW_HIDE;
    if (!keepsState(command) && window->isTopLevel())
        setState(*window, command);
    if (show == wasVisible) {
        if (show && window->isTopLevel() && command != SW_SHOWNA && command != SW_SHOWNOACTIVATE)
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

BOOL IsIconic(HWND handle)
{
    const WindowPtr window = findWindow(handle);
    return window && window->is(WS_MINIMIZE);
}

BOOL IsZoomed(HWND handle)
{
    const WindowPtr window = findWindow(handle);
    return window && window->is(WS_MAXIMIZE);
}

HWND SetParent(HWND handle, HWND newParent)
{
    const WindowPtr window = findWindow(handle);
    const WindowPtr parent = findWindow(newParent);
    if (!window || !parent || window->isTopLevel() || window == parent || isDescendant(*window, *parent))
        return nullptr;
    const HWND old = window->parent->handle;
    const bool visible = ShowWindow(handle, SW_HIDE);
    unlinkWindow(*window);
    linkWindow(*window, *parent, HWND_TOP);
    if (visible)
        ShowWindow(handle, SW_SHOW);
    return old;
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
    const WindowPtr source = findWindow(from ? from : GetDesktopWindow());
    const WindowPtr target = findWindow(to ? to : GetDesktopWindow());
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

BOOL AdjustWindowRectEx(LPRECT rect, DWORD, BOOL, DWORD)
{
    return rect != nullptr;
}

BOOL AdjustWindowRect(LPRECT rect, DWORD style, BOOL menu)
{
    return AdjustWindowRectEx(rect, style, menu, 0);
}
