// How windows are created and destroyed, and the messages that they get meanwhile.
#include "focus.h"
#include "geometry.h"
#include "hooks.h"
#include "host_widget.h"
#include "message_queue.h"
#include "mouse.h"
#include "paint.h"
#include "placement.h"
#include "rooms_above.h"
#include "timer.h"
#include "update_region.h"
#include "window_class.h"
#include "window_surface.h"
#include "window_tree.h"

using namespace winapi;

namespace {

constexpr QSize kDefaultSize(640, 480);
constexpr QPoint kDefaultPosition(60, 60);

QRect initialRect(const CREATESTRUCTA& create)
{
    const bool place = create.x != CW_USEDEFAULT;
    const bool size = create.cx != CW_USEDEFAULT;
    return {place ? placeWithin(create.x, create.y) : kDefaultPosition,
            size ? sizeWithin(create.cx, create.cy) : kDefaultSize};
}

// The parent of a child, the owner of anything else; false when there is no such window.
bool resolveParent(const CREATESTRUCTA& create, WindowPtr& parent)
{
    if (create.hwndParent && create.hwndParent != desktop().handle) {
        parent = findWindow(create.hwndParent);
        return parent != nullptr;
    }
    if (create.style & WS_CHILD) {
        SetLastError(ERROR_TLW_WITH_WSCHILD);
        return false;
    }
    return true;
}

WindowPtr makeWindow(const CREATESTRUCTA& create, const WindowClassPtr& windowClass, const WindowPtr& parent)
{
    const bool child = create.style & WS_CHILD;
    const WindowPtr window = addWindow();
    window->windowClass = windowClass;
    window->procedure = windowClass->info.lpfnWndProc;
    window->style = static_cast<DWORD>(create.style) & ~WS_VISIBLE;
    window->exStyle = create.dwExStyle;
    window->id = child ? reinterpret_cast<LONG_PTR>(create.hMenu) : 0;
    window->rect = initialRect(create);
    if (!child && parent)
        window->owner = rootOf(*parent).handle;
    linkWindow(*window, child ? *parent : desktop());
    if (!child)
        raiseWindow(*window);
    return window;
}

void forget(Window& window)
{
    if (window.isTopLevel())
        releaseContextsOf(window);
    unlinkWindow(window);
    discardMessagesOf(window);
    killTimersOf(window);
    forgetMouse(window);
    forgetFocus(window);
    forgetAccessible(window.handle);
    removeWindow(window);
    destroyHost(window);
}

void tellAncestors(Window& window, UINT event)
{
    const HWND handle = window.handle;
    notifyAncestors(window, MAKEWPARAM(event, window.id),
                    [handle](const Window&) { return reinterpret_cast<LPARAM>(handle); });
}

// False when the window refused or is gone.
bool sendCreationMessages(Window& window, CREATESTRUCTA& create)
{
    const HWND handle = window.handle;
    if (!SendMessageA(handle, WM_NCCREATE, 0, reinterpret_cast<LPARAM>(&create)) || !isAlive(window))
        return false;
    RECT rect = toRect(window.rect);
    SendMessageA(handle, WM_NCCALCSIZE, FALSE, reinterpret_cast<LPARAM>(&rect));
    if (SendMessageA(handle, WM_CREATE, 0, reinterpret_cast<LPARAM>(&create)) == -1)
        return false;
    return isAlive(window);
}

void discard(Window& window)
{
    if (!isAlive(window))
        return;
    SendMessageA(window.handle, WM_NCDESTROY, 0, 0);
    forget(window);
}

}

HWND CreateWindowExA(DWORD exStyle, LPCSTR className, LPCSTR text, DWORD style, int x, int y, int width,
                     int height, HWND parentHandle, HMENU menuOrId, HINSTANCE instance, LPVOID param)
{
    const EndedWindowsKept kept;
    const WindowClassPtr windowClass = findClass(className);
    if (!windowClass) {
        SetLastError(ERROR_CANNOT_FIND_WND_CLASS);
        return nullptr;
    }
    CREATESTRUCTA create{
        param, instance,  menuOrId, parentHandle, height, width, y, x, static_cast<LONG>(style),
        text,  className, exStyle};
    WindowPtr parent;
    if (!resolveParent(create, parent))
        return nullptr;

    const WindowPtr window = makeWindow(create, windowClass, parent);
    const HWND handle = window->handle;
    CBT_CREATEWNDA hook{&create, HWND_TOP};
    if (callHooks(WH_CBT, HCBT_CREATEWND, reinterpret_cast<WPARAM>(handle),
                  reinterpret_cast<LPARAM>(&hook))) {
        forget(*window);
        return nullptr;
    }
    if (!sendCreationMessages(*window, create)) {
        discard(*window);
        return nullptr;
    }
    window->sizeIsNews = !(style & (WS_CHILD | WS_POPUP));
    if (!window->sizeIsNews)
        tellSizeAndPlace(*window);
    if (isAlive(*window))
        tellAncestors(*window, WM_CREATE);
    if (isAlive(*window) && (style & WS_VISIBLE))
        ShowWindow(handle, SW_SHOW);
    return isAlive(*window) ? handle : nullptr;
}

namespace {

template <class Visit>
void forEachChild(Window& window, Visit visit)
{
    std::vector<WindowPtr> children;
    for (const Window* child : window.children)
        children.push_back(findWindow(child->handle));
    for (const WindowPtr& child : children) {
        if (isAlive(*child))
            visit(*child);
    }
}

void sendDestroy(Window& window)
{
    window.dying = true;
    SendMessageA(window.handle, WM_DESTROY, 0, 0);
    forEachChild(window, sendDestroy);
}

void remove(Window& window)
{
    forEachChild(window, remove);
    SendMessageA(window.handle, WM_NCDESTROY, 0, 0);
    forEachChild(window, remove); // that a handler has made meanwhile
    if (isAlive(window))
        forget(window);
}

void destroyOwned(HWND owner)
{
    const auto all = desktop().children;
    std::vector<HWND> owned;
    for (const Window* window : all) {
        if (window->owner == owner)
            owned.push_back(window->handle);
    }
    for (const HWND handle : owned)
        DestroyWindow(handle);
}

void hideForGood(Window& window)
{
    if (!window.is(WS_VISIBLE))
        return;
    if (window.is(WS_CHILD))
        ShowWindow(window.handle, SW_HIDE);
    else
        placeWindow(window.handle, {},
                    SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}

BOOL DestroyWindow(HWND handle)
{
    const EndedWindowsKept kept;
    const WindowPtr window = findWindow(handle);
    if (!window || window->dying || !window->parent)
        return FALSE;
    // A handler of what follows may ask for the same again, and is answered that it is done.
    if (std::exchange(window->ending, true))
        return TRUE;
    if (callHooks(WH_CBT, HCBT_DESTROYWND, reinterpret_cast<WPARAM>(handle), 0)) {
        window->ending = false;
        return FALSE;
    }
    endMenuOf(*window);
    tellAncestors(*window, WM_DESTROY);
    if (isAlive(*window))
        hideForGood(*window);
    if (isAlive(*window))
        leaveDestroyed(*window);
    destroyOwned(handle);
    if (!isAlive(*window))
        return TRUE;
    sendDestroy(*window);
    if (isAlive(*window))
        remove(*window);
    return TRUE;
}
