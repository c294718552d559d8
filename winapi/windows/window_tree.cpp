// The tree of windows: which stands in which, in which order, and where on the screen.
#include "window_tree.h"

#include "application.h"
#include "host_widget.h"

#include <QScreen>

#include <algorithm>

namespace winapi {

namespace {

WindowPtr makeDesktop()
{
    const WindowPtr window = addWindow();
    window->style = WS_VISIBLE;
    window->procedure = DefWindowProcA;
    window->windowClass = std::make_shared<WindowClass>();
    application(); // without it there is no screen
    window->rect = QRect({}, QGuiApplication::primaryScreen()->size());
    return window;
}

}

Window& desktop()
{
    static const WindowPtr window = makeDesktop();
    return *window;
}

Window& rootOf(Window& window)
{
    Window* root = &window;
    while (root->parent && !root->isTopLevel())
        root = root->parent;
    return *root;
}

bool isDescendant(const Window& ancestor, const Window& window)
{
    const Window* above = window.parent;
    while (above && above != &ancestor)
        above = above->parent;
    return above != nullptr;
}

void linkWindow(Window& window, Window& parent)
{
    window.parent = &parent;
    parent.children.push_back(&window);
}

void raiseWindow(Window& window)
{
    auto& siblings = window.parent->children;
    const auto self = std::find(siblings.begin(), siblings.end(), &window);
    std::rotate(siblings.begin(), self, self + 1);
}

void unlinkWindow(Window& window)
{
    if (window.parent)
        std::erase(window.parent->children, &window);
}

std::vector<Window*> shownChildren(const Window& window)
{
    std::vector<Window*> shown;
    std::copy_if(window.children.begin(), window.children.end(), std::back_inserter(shown),
                 [](const Window* child) { return child->is(WS_VISIBLE); });
    return shown;
}

void notifyAncestors(Window& window, WPARAM event,
                     const std::function<LPARAM(const Window& parent)>& detailFor)
{
    for (WindowPtr below = findWindow(window.handle); below->is(WS_CHILD);) {
        const WindowPtr parent = findWindow(below->parent->handle);
        SendMessageA(parent->handle, WM_PARENTNOTIFY, event, detailFor(*parent));
        if (!isAlive(window) || !isAlive(*parent))
            return;
        below = parent;
    }
}

QPoint originInRoot(const Window& window)
{
    QPoint origin;
    for (const Window* w = &window; w->parent && !w->isTopLevel(); w = w->parent)
        origin += w->rect.topLeft();
    return origin;
}

QPoint screenOrigin(const Window& window)
{
    if (!window.parent)
        return {0, 0};
    const Window& root = rootOf(const_cast<Window&>(window));
    const QPoint rootOrigin = root.host ? root.host->screenOrigin() : root.rect.topLeft();
    return rootOrigin + originInRoot(window);
}

namespace {

// `point` is the place in the window's client area.
Window& hitTestIn(Window& window, QPoint point)
{
    const auto hit = std::ranges::find_if(window.children, [point](const Window* child) {
        return child->is(WS_VISIBLE) && child->isEnabled() && child->rect.contains(point);
    });
    return hit == window.children.end() ? window : hitTestIn(**hit, point - (*hit)->rect.topLeft());
}

Window* topLevelAt(QPoint screen)
{
    const auto& all = desktop().children;
    const auto found = std::find_if(all.begin(), all.end(), [screen](const Window* window) {
        return window->is(WS_VISIBLE) &&
               window->clientRect().translated(screenOrigin(*window)).contains(screen);
    });
    return found == all.end() ? nullptr : *found;
}

}

WindowPtr hitTest(QPoint screen)
{
    Window* const top = topLevelAt(screen);
    return top ? findWindow(hitTestIn(*top, screen - screenOrigin(*top)).handle) : nullptr;
}

}

using namespace winapi;

BOOL IsChild(HWND parent, HWND window)
{
    const WindowPtr ancestor = findWindow(parent);
    const WindowPtr child = findWindow(window);
    return ancestor && child && child->is(WS_CHILD) && isDescendant(*ancestor, *child);
}

HWND GetParent(HWND window)
{
    const WindowPtr found = findWindow(window);
    if (!found || !found->parent)
        return nullptr;
    if (found->is(WS_CHILD))
        return found->parent->handle;
    return found->is(WS_POPUP) ? found->owner : nullptr;
}

HWND GetAncestor(HWND window, UINT)
{
    const WindowPtr found = findWindow(window);
    return found && found->parent ? rootOf(*found).handle : nullptr;
}

HWND GetWindow(HWND window, UINT command)
{
    const WindowPtr found = findWindow(window);
    if (!found)
        return nullptr;
    if (command == GW_CHILD)
        return found->children.empty() ? nullptr : found->children.front()->handle;
    if (command != GW_HWNDNEXT) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    if (!found->parent)
        return nullptr;
    const auto& siblings = found->parent->children;
    const auto next = std::find(siblings.begin(), siblings.end(), found.get()) + 1;
    return next == siblings.end() ? nullptr : (*next)->handle;
}

HWND GetDlgItem(HWND parent, int id)
{
    const WindowPtr found = findWindow(parent);
    if (!found)
        return nullptr;
    for (const Window* child : found->children) {
        if (static_cast<int>(child->id) == id)
            return child->handle;
    }
    SetLastError(ERROR_CONTROL_ID_NOT_FOUND);
    return nullptr;
}

int GetDlgCtrlID(HWND window)
{
    const WindowPtr found = findWindow(window);
    return found ? static_cast<int>(found->id) : 0;
}

BOOL EnumThreadWindows(DWORD, WNDENUMPROC proc, LPARAM lParam)
{
    if (!proc)
        return FALSE;
    std::vector<HWND> handles;
    for (const Window* window : desktop().children)
        handles.push_back(window->handle);
    return std::all_of(handles.begin(), handles.end(),
                       [&](HWND handle) { return !IsWindow(handle) || proc(handle, lParam); });
}

// Unlike hitTest, it finds hidden and disabled children too.
HWND ChildWindowFromPoint(HWND parent, POINT point)
{
    const WindowPtr found = findWindow(parent);
    const QPoint place(point.x, point.y);
    if (!found || !found->clientRect().contains(place))
        return nullptr;
    for (const Window* child : found->children) {
        if (child->rect.contains(place))
            return child->handle;
    }
    return parent;
}
