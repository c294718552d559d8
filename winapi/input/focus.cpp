// Which window has the keyboard, which is active, and which has captured the mouse.
#include "focus.h"

#include "hooks.h"
#include "host_widget.h"
#include "oleacc.h"
#include "window_tree.h"

#include <algorithm>

namespace winapi {

namespace {

struct InputState
{
    HWND focus = nullptr;
    HWND active = nullptr;
    HWND capture = nullptr;
};

InputState& state()
{
    static auto& input = *new InputState;
    return input;
}

bool isUsable(const Window* window)
{
    for (; window && window->parent; window = window->parent) {
        if (!window->isEnabled())
            return false;
    }
    return true;
}

HWND moveFocus(HWND window)
{
    const HWND old = state().focus;
    if (old == window)
        return old;
    if (callHooks(WH_CBT, HCBT_SETFOCUS, reinterpret_cast<WPARAM>(window), reinterpret_cast<LPARAM>(old)))
        return nullptr;
    state().focus = window;
    if (IsWindow(old))
        SendMessageA(old, WM_KILLFOCUS, reinterpret_cast<WPARAM>(window), 0);
    if (state().focus == window)
        NotifyWinEvent(EVENT_OBJECT_FOCUS, window, OBJID_CLIENT, CHILDID_SELF);
    // The window that lost the focus may have given it to another.
    if (window && state().focus == window && IsWindow(window))
        SendMessageA(window, WM_SETFOCUS, reinterpret_cast<WPARAM>(old), 0);
    return old;
}

void deactivate(HWND old, HWND next)
{
    SendMessageA(old, WM_NCACTIVATE, FALSE, 0);
    SendMessageA(old, WM_ACTIVATE, WA_INACTIVE, reinterpret_cast<LPARAM>(next));
}

void leaveApplication(HWND old)
{
    if (IsWindow(old))
        SendMessageA(old, WM_ACTIVATEAPP, FALSE, 0);
    moveFocus(nullptr);
}

void moveCapture(HWND window)
{
    const HWND old = std::exchange(state().capture, window);
    if (old && IsWindow(old))
        SendMessageA(old, WM_CAPTURECHANGED, 0, reinterpret_cast<LPARAM>(window));
}

// The window that is active after `root`: its owner, else the topmost that can be.
Window* successorOf(const Window& root)
{
    if (const WindowPtr owner = root.owner ? findWindow(root.owner) : nullptr)
        return &rootOf(*owner);
    const auto& all = desktop().children;
    const auto found = std::find_if(all.begin(), all.end(), [&](const Window* window) {
        return window != &root && window->is(WS_VISIBLE) && window->isEnabled() && !window->dying;
    });
    return found == all.end() ? nullptr : *found;
}

bool holds(const Window& window, HWND handle)
{
    const WindowPtr found = handle ? findWindow(handle) : nullptr;
    return found && (found.get() == &window || isDescendant(window, *found));
}

}

bool activate(Window* root, ActivatedBy by)
{
    const EndedWindowsKept kept;
    const HWND next = root ? root->handle : nullptr;
    const HWND old = state().active;
    if (old == next)
        return true;
    if (root && !root->isEnabled())
        return false;
    if (root && callHooks(WH_CBT, HCBT_ACTIVATE, reinterpret_cast<WPARAM>(next), 0))
        return false;

    if (IsWindow(old))
        deactivate(old, next);
    if (state().active != old)
        return state().active == next;
    if (root && !isAlive(*root))
        return false;
    state().active = next;
    if (!root) {
        leaveApplication(old);
        return true;
    }
    if (by != ActivatedBy::Host && root->host)
        root->host->takeActivation();
    if (!isAlive(*root))
        return false;
    if (root->host || root->is(WS_VISIBLE))
        raiseWindow(*root);
    if (!old)
        SendMessageA(next, WM_ACTIVATEAPP, TRUE, 0);
    SendMessageA(next, WM_NCACTIVATE, TRUE, 0);
    SendMessageA(next, WM_ACTIVATE, by == ActivatedBy::Mouse ? WA_CLICKACTIVE : WA_ACTIVE,
                 reinterpret_cast<LPARAM>(old));
    const WindowPtr still = findWindow(next);
    if (still && state().active == next && !holds(*still, state().focus))
        moveFocus(next);
    return state().active == next;
}

void leaveHidden(Window& window)
{
    const EndedWindowsKept kept;
    if (window.isTopLevel()) {
        if (state().active == window.handle)
            activate(successorOf(window), ActivatedBy::Program);
        return;
    }
    if (state().focus == window.handle)
        moveFocus(window.parent->handle);
}

void forgetFocus(const Window& window)
{
    InputState& input = state();
    for (HWND* const holder : {&input.focus, &input.active, &input.capture})
        if (*holder == window.handle)
            *holder = nullptr;
}

void leaveDestroyed(Window& window)
{
    const EndedWindowsKept kept;
    if (holds(window, state().capture))
        state().capture = nullptr;
    if (window.isTopLevel() || !holds(window, state().focus))
        leaveHidden(window);
    else
        moveFocus(window.parent->handle);
}

void setCapture(HWND window)
{
    moveCapture(window);
}

HWND captureHolder()
{
    return state().capture;
}

void releaseCapture(HWND window)
{
    if (window && state().capture == window)
        moveCapture(nullptr);
}

}

using namespace winapi;

HWND SetFocus(HWND handle)
{
    const EndedWindowsKept kept;
    if (!handle)
        return moveFocus(nullptr);
    const WindowPtr window = findWindow(handle);
    if (!window || !isUsable(window.get()))
        return nullptr;
    if (state().focus == handle)
        return handle;
    const HWND old = state().focus;
    if (!activate(&rootOf(*window), ActivatedBy::Program))
        return nullptr;
    if (!isAlive(*window))
        return old;
    if (state().focus != handle)
        moveFocus(handle);
    return old;
}

HWND GetFocus()
{
    return state().focus;
}

HWND GetActiveWindow()
{
    return state().active;
}

BOOL EnableWindow(HWND handle, BOOL enable)
{
    const EndedWindowsKept kept;
    const WindowPtr window = findWindow(handle);
    if (!window)
        return FALSE;
    const bool wasDisabled = !window->isEnabled();
    if (enable && wasDisabled) {
        window->style &= ~WS_DISABLED;
        SendMessageA(handle, WM_ENABLE, TRUE, 0);
    } else if (!enable) {
        SendMessageA(handle, WM_CANCELMODE, 0, 0);
        window->style |= WS_DISABLED;
        if (state().focus == handle)
            moveFocus(nullptr);
        if (!wasDisabled && isAlive(*window))
            SendMessageA(handle, WM_ENABLE, FALSE, 0);
    }
    return wasDisabled;
}

BOOL IsWindowEnabled(HWND handle)
{
    const WindowPtr window = findWindow(handle);
    return window && window->isEnabled();
}
